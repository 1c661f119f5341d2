namespace tessera {
class XmlGMonthDayFormatter; // may be declared ahead
}

#include "runtime/formatters.h"

#include "runtime/exceptions.h"
#include "tests/support/outcomes.h"

#include <gtest/gtest.h>

using namespace tessera;

namespace {

class ExclamationFormatter : public XmlGDayFormatter {
public:
    using XmlGDayFormatter::Format;
    std::string Format(const std::string& value) const override { return value + "!"; }
};

} // namespace

TEST(Formatters, WriteDatesInTheirOwnForm) {
    const DateTime value(-12, 3, 5, 13, 5, 9.25, 0);
    const struct {
        const XmlFormatter& formatter;
        const char* text;
    } cases[] = {
        {Exported_TimeFormatter, "13:05:09.25Z"},
        {Exported_DateFormatter, "-0012-03-05Z"},
        {Exported_DateTimeFormatter, "-0012-03-05T13:05:09.25Z"},
        {Exported_GYearFormatter, "-0012Z"},
        {Exported_GMonthFormatter, "--03Z"},
        {Exported_GDayFormatter, "---05Z"},
        {Exported_GYearMonthFormatter, "-0012-03Z"},
        {Exported_GMonthDayFormatter, "--03-05Z"},
        {Exported_IntegerFormatter, "-0012-03-05T13:05:09.25Z"},
        {Exported_HexBinaryFormatter, "-0012-03-05T13:05:09.25Z"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.formatter.Format(value), c.text);
    }
    EXPECT_EQ(Exported_TimeFormatter.Format(DateTime(2011, 1, 1, 13, 5, 9.25)), "13:05:09.25");
    EXPECT_EQ(Exported_GMonthDayFormatter.Format(DateTime(2011, 1, 2, 0, 0, 0, -330)), "--01-02-05:30");
}

TEST(Formatters, WriteEveryOtherValueAsTheBaseDoes) {
    const XmlFormatter* const formatters[] = {&Exported_AnySimpleTypeFormatter, &Exported_TimeFormatter,
                                              &Exported_HexBinaryFormatter, &Exported_IntegerFormatter};
    for (const XmlFormatter* formatter : formatters) {
        EXPECT_EQ(formatter->Format(Duration(YearMonthDuration(1), DayTimeDuration(1))), "P1MT0.0000001S");
        EXPECT_EQ(formatter->Format(-5LL) + formatter->Format(5ULL), "-55");
        EXPECT_EQ(formatter->Format(std::int64_t{-5}) + formatter->Format(std::uint64_t{5}), "-55");
        EXPECT_EQ(formatter->Format(-5) + formatter->Format(5U), "-55");
        EXPECT_EQ(formatter->Format(std::string(" a ")), " a ");
        EXPECT_EQ(formatter->Format(true) + formatter->Format(false), "truefalse");
    }
    EXPECT_EQ(Exported_DecimalFormatter.Format(2.5), "2.5");
    EXPECT_EQ(Exported_Base64BinaryFormatter.Format(std::vector<unsigned char>{'M'}), "TQ==");
    EXPECT_EQ(Exported_Base64BinaryFormatter.ParseBinary(" TQ== "), std::vector<unsigned char>{'M'});
    EXPECT_EQ(Exported_HexBinaryFormatter.ParseBinary("0a"), std::vector<unsigned char>{0x0A});
}

TEST(Formatters, AreClassesToDeriveFrom) {
    const ExclamationFormatter exclamation;
    const ValueFormatter& formatter = exclamation;
    EXPECT_EQ(formatter.Format(DateTime(2011, 1, 2, 0, 0, 0)), "---02");
    EXPECT_EQ(formatter.Format(std::string("a")), "a!");
}

TEST(Formatters, WriteWholeNumbersForIntegers) {
    EXPECT_EQ(Exported_IntegerFormatter.Format(-2.9), "-2");
    EXPECT_EQ(Exported_IntegerFormatter.Format(1e18), "1000000000000000000");
    EXPECT_EQ(ThrownMessage<OutOfRangeException>([] { Exported_IntegerFormatter.Format(1e19); }),
              "Source value '10000000000000000000' of type double cannot be converted to long");
}
