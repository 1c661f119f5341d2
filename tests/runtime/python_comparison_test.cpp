// Compares dates, Base64 and numbers with what Python's standard library makes of them.
#include "runtime/binary.h"
#include "runtime/core_types.h"

#include "tests/runtime/outcomes.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <sstream>

using namespace tessera;

namespace {

using Fields = std::vector<std::string>;

std::string OutputOf(const std::string& command) {
    std::string output;
    if (FILE* pipe = popen(command.c_str(), "r")) {
        char buffer[4096];
        while (const std::size_t size = std::fread(buffer, 1, sizeof buffer, pipe)) {
            output.append(buffer, size);
        }
        EXPECT_EQ(pclose(pipe), 0) << command;
    }
    return output;
}

void CompareDate(const Fields& fields) {
    const DateTime value = CoreTypes::CastToDateTime(fields[1]);
    EXPECT_EQ(std::to_string(value.Value()), fields[2]) << fields[1];
    EXPECT_EQ(std::to_string(value.DayOfYear()), fields[3]) << fields[1];
    EXPECT_EQ(std::to_string(value.Weeknumber()), fields[4]) << fields[1];
}

void CompareZone(const Fields& fields) {
    EXPECT_EQ(std::to_string(CoreTypes::CastToDateTime(fields[1]).NormalizedValue()), fields[2]) << fields[1];
}

void CompareBinary(const Fields& fields) {
    EXPECT_EQ(PrintBase64(ParseHex(fields[1])), fields[2]);
    EXPECT_EQ(PrintHex(ParseBase64(fields[2])), fields[1]);
}

void CompareNumber(const Fields& fields) {
    ASSERT_EQ(CoreTypes::IsNumber(fields[1]), fields[2] != "none") << fields[1];
    if (CoreTypes::IsNumber(fields[1])) {
        EXPECT_EQ(CoreTypes::CastToDouble(fields[1]), std::strtod(fields[2].c_str(), nullptr)) << fields[1];
    }
}

void CompareDecimal(const Fields& fields) {
    EXPECT_EQ(CoreTypes::CastToString(std::strtod(fields[1].c_str(), nullptr)), fields[2]);
}

} // namespace

TEST(PythonComparison, Agrees) {
    if (std::system("python3 -c 'import sys; sys.exit(sys.version_info < (3, 9))' >/dev/null 2>&1") != 0) {
        GTEST_SKIP() << "python3 (3.9 or newer) is not installed";
    }
    const std::map<std::string, void (*)(const Fields&)> comparisons = {
        {"date", CompareDate},     {"zone", CompareZone},       {"binary", CompareBinary},
        {"number", CompareNumber}, {"decimal", CompareDecimal},
    };
    std::map<std::string, int> counts;
    std::istringstream lines(OutputOf("python3 '" XTTML_PYTHON_REFERENCE "'"));
    for (std::string line; std::getline(lines, line);) {
        const Fields fields = Split(line, '\t');
        comparisons.at(fields[0])(fields);
        ++counts[fields[0]];
    }
    EXPECT_EQ(counts.size(), comparisons.size());
}
