#include "binding/tables.h"

#include "binding/formatter_slots.h"
#include "runtime/formatters.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using namespace ttaf1_dfxp;

namespace {

/// The type of that name in the namespace of that prefix.
const tessera::TypeInfo& TypeNamed(const std::string& prefix, const std::string& name) {
    for (std::uint32_t i = 0; i < TYPE_COUNT; ++i) {
        if (types[i].localName == name && namespaces[types[i].namespaceIndex].prefix == prefix) {
            return types[i];
        }
    }
    throw std::out_of_range(prefix + ":" + name);
}

} // namespace

TEST(Tables, FormattersOfTypes) {
    const struct {
        const char* type;
        const tessera::XmlFormatter* formatter;
    } rows[] = {
        {"time", &tessera::Exported_TimeFormatter},
        {"date", &tessera::Exported_DateFormatter},
        {"dateTime", &tessera::Exported_DateTimeFormatter},
        {"gYear", &tessera::Exported_GYearFormatter},
        {"gMonth", &tessera::Exported_GMonthFormatter},
        {"gDay", &tessera::Exported_GDayFormatter},
        {"gYearMonth", &tessera::Exported_GYearMonthFormatter},
        {"gMonthDay", &tessera::Exported_GMonthDayFormatter},
        {"int", &tessera::Exported_IntegerFormatter},
        {"decimal", &tessera::Exported_DecimalFormatter},
        {"double", &tessera::Exported_DoubleFormatter},
        {"hexBinary", &tessera::Exported_HexBinaryFormatter},
        {"string", &tessera::Exported_AnySimpleTypeFormatter},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(*TypeNamed("xs", row.type).formatter, row.formatter) << row.type;
    }
    EXPECT_EQ(TypeNamed("tt", "ttaf1_dfxp").formatter, nullptr);
    EXPECT_EQ(formatterSlots[DURATION], &tessera::Exported_DurationFormatter);
    EXPECT_EQ(formatterSlots[BASE64_BINARY], &tessera::Exported_Base64BinaryFormatter);
}
