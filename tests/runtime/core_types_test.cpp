#include "runtime/core_types.h"

#include "tests/support/outcomes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

using namespace tessera;

namespace {

constexpr long long INT64_LOWEST = std::numeric_limits<long long>::min();
constexpr unsigned long long UINT64_LARGEST = std::numeric_limits<unsigned long long>::max();

std::string CannotConvert(const std::string& value, const std::string& source, const std::string& target) {
    return "Source value '" + value + "' of type " + source + " cannot be converted to " + target;
}

// What an integer cast of a text gives, or the message of what it throws.
template <class Integer, Integer (*cast)(const std::string&)>
std::string Outcome(const std::string& text) {
    try {
        return std::to_string(cast(text));
    } catch (const ConversionException& exception) {
        return exception.message();
    }
}

constexpr auto ToInt = Outcome<int, CoreTypes::CastToInt>;
constexpr auto ToUInt = Outcome<unsigned, CoreTypes::CastToUInt>;
constexpr auto ToInt64 = Outcome<long long, CoreTypes::CastToInt64>;
constexpr auto ToUInt64 = Outcome<unsigned long long, CoreTypes::CastToUInt64>;

template <class T>
auto IsPrinted(T value) -> decltype(CoreTypes::CastToString(value), true) {
    return true;
}

bool IsPrinted(...) {
    return false;
}

} // namespace

TEST(CoreTypes, IntegersFromText) {
    const struct {
        std::string (*cast)(const std::string&);
        std::string text;
        std::string outcome;
    } cases[] = {
        {ToUInt64, " \t30\r\n", "30"},
        {ToUInt64, "+30", "30"},
        {ToUInt64, "-0", "0"},
        {ToUInt64, "29.97", "29"},
        {ToUInt64, "3e1", "30"},
        {ToUInt64, ".9", "0"},
        {ToUInt64, "18446744073709551615", "18446744073709551615"},
        {ToUInt64, "18446744073709551616", CannotConvert("18446744073709551616", "string", "unsignedLong")},
        {ToUInt64, "20000000000000000000", CannotConvert("20000000000000000000", "string", "unsignedLong")},
        {ToUInt64, "184467644072147483647.9",
         CannotConvert("184467644072147000000", "double", "unsignedLong")},
        {ToUInt64, " -1 ", CannotConvert(" -1 ", "string", "unsignedLong")},
        {ToUInt64, "-0.5", CannotConvert("-0.5", "double", "unsignedLong")},
        {ToUInt64, "1e400", CannotConvert("INF", "double", "unsignedLong")},
        {ToUInt64, " NaN", CannotConvert(" NaN", "string", "unsignedLong")},
        {ToUInt64, "", "'' could not be parsed as int"},
        {ToUInt64, " 30fps", "' 30fps' could not be parsed as int"},
        {ToUInt64, "+INF", "'+INF' could not be parsed as int"},
        {ToInt, "2147483647", "2147483647"},
        {ToInt, "-2147483648", "-2147483648"},
        {ToInt, "2147483648", CannotConvert("2147483648", "string", "int")},
        {ToInt, "-2147483649", CannotConvert("-2147483649", "string", "int")},
        {ToInt, "-2.9", "-2"},
        {ToInt, "2147483647.9", CannotConvert("2147483647.9", "double", "int")},
        {ToInt, "-3e9", CannotConvert("-3000000000", "double", "int")},
        {ToInt, "-INF", CannotConvert("-INF", "string", "int")},
        {ToUInt, "4294967295", "4294967295"},
        {ToUInt, "4294967296", CannotConvert("4294967296", "string", "unsignedInt")},
        {ToUInt, "-1", CannotConvert("-1", "string", "unsignedInt")},
        {ToUInt, "one", "'one' could not be parsed as int"},
        {ToInt64, "9223372036854775807", "9223372036854775807"},
        {ToInt64, "-9223372036854775808", "-9223372036854775808"},
        {ToInt64, "9223372036854775808", CannotConvert("9223372036854775808", "string", "long")},
        {ToInt64, "-9223372036854775809", CannotConvert("-9223372036854775809", "string", "long")},
        {ToInt64, "-18446744073709551617", CannotConvert("-18446744073709551617", "string", "long")},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.cast(c.text), c.outcome);
    }
}

TEST(CoreTypes, BooleansFromText) {
    for (const char* text : {"true", "1", "  1 ", "\ttrue\n"}) {
        EXPECT_TRUE(CoreTypes::CastToBool(text)) << text;
    }
    for (const char* text : {"false", "0", "\r\n0"}) {
        EXPECT_FALSE(CoreTypes::CastToBool(std::string(text))) << text;
    }
    for (const std::string text : {"TRUE", "True", "yes", "", "tr ue", "10", "01", "+1"}) {
        EXPECT_EQ(ThrownMessage<StringParseException>([&] { CoreTypes::CastToBool(text); }),
                  "'" + text + "' could not be parsed as bool");
    }
    EXPECT_EQ(ThrownMessage<StringParseException>([] { CoreTypes::CastToBool(" no "); }),
              "' no ' could not be parsed as bool");
}

TEST(CoreTypes, DoublesFromText) {
    EXPECT_EQ(CoreTypes::CastToDouble(" -2.50 "), -2.5);
    EXPECT_EQ(CoreTypes::CastToDouble("5.e-1"), 0.5);
    EXPECT_TRUE(std::isnan(CoreTypes::CastToDouble("NaN")));
    EXPECT_EQ(CoreTypes::CastToDouble("-INF\n"), -std::numeric_limits<double>::infinity());
    for (const std::string text : {"", "nan", "0x10", "infinity", "1e", " 1,5 "}) {
        EXPECT_EQ(ThrownMessage<StringParseException>([&] { CoreTypes::CastToDouble(text); }),
                  "'" + text + "' could not be parsed as int");
    }
    EXPECT_TRUE(CoreTypes::IsNumber(" 1.e5"));
    EXPECT_FALSE(CoreTypes::IsNumber("1.e"));
}

TEST(CoreTypes, NumbersBetweenTypes) {
    EXPECT_EQ(CoreTypes::CastToUInt64(-1), UINT64_LARGEST);
    EXPECT_EQ(CoreTypes::CastToInt(2147483647U), 2147483647);
    EXPECT_EQ(CoreTypes::CastToUInt(4294967295LL), 4294967295U);
    EXPECT_EQ(CoreTypes::CastToInt(-2147483648LL), std::numeric_limits<int>::min());
    EXPECT_EQ(CoreTypes::CastToInt64(-7), -7);
    EXPECT_EQ(CoreTypes::CastToInt(-2147483648.0), std::numeric_limits<int>::min());
    EXPECT_EQ(CoreTypes::CastToInt64(-9223372036854775808.0), INT64_LOWEST);
    EXPECT_EQ(CoreTypes::CastToUInt64(18446744073709549568.0), 18446744073709549568U);
    EXPECT_EQ(CoreTypes::CastToUInt(4294967295.0), 4294967295U);
    EXPECT_EQ(CoreTypes::CastToInt(-0.99), 0);
    EXPECT_EQ(CoreTypes::CastToDouble(UINT64_LARGEST), 18446744073709551616.0);
    EXPECT_TRUE(CoreTypes::CastToBool(0.1) && CoreTypes::CastToBool(-1) &&
                CoreTypes::CastToBool(INT64_LOWEST));
    EXPECT_FALSE(CoreTypes::CastToBool(-0.0) || CoreTypes::CastToBool(0ULL));

    const auto expectRefused = [](auto action, const char* value, const char* source, const char* target) {
        EXPECT_EQ(ThrownMessage<OutOfRangeException>(action), CannotConvert(value, source, target));
    };
    expectRefused([] { CoreTypes::CastToInt(2147483648U); }, "2147483648", "unsignedInt", "int");
    expectRefused([] { CoreTypes::CastToUInt(-1); }, "-1", "int", "unsignedInt");
    expectRefused([] { CoreTypes::CastToInt(INT64_LOWEST); }, "-9223372036854775808", "long", "int");
    expectRefused([] { CoreTypes::CastToUInt(4294967296LL); }, "4294967296", "long", "unsignedInt");
    expectRefused([] { CoreTypes::CastToUInt64(-1LL); }, "-1", "long", "unsignedLong");
    expectRefused([] { CoreTypes::CastToInt64(9223372036854775808ULL); }, "9223372036854775808",
                  "unsignedLong", "long");
    expectRefused([] { CoreTypes::CastToInt(2147483648.0); }, "2147483648", "double", "int");
    expectRefused([] { CoreTypes::CastToUInt(-0.5); }, "-0.5", "double", "unsignedInt");
    expectRefused([] { CoreTypes::CastToInt64(9223372036854775808.0); }, "9223372036854780000", "double",
                  "long");
    expectRefused([] { CoreTypes::CastToUInt64(18446744073709551616.0); }, "18446744073709600000", "double",
                  "unsignedLong");
    expectRefused([] { CoreTypes::CastToInt(std::nan("")); }, "NaN", "double", "int");
}

TEST(CoreTypes, OtherNumbersArePromoted) {
    enum Side { LEFT = 5 };
    EXPECT_EQ(CoreTypes::CastToString(LEFT), "5");
    EXPECT_EQ(CoreTypes::CastToInt('a'), 97);
    EXPECT_EQ(CoreTypes::CastToUInt64(short{-1}), UINT64_LARGEST);
    EXPECT_EQ(CoreTypes::CastToInt64(LEFT), 5);
    EXPECT_EQ(CoreTypes::CastToDouble(2.5F), 2.5);
    EXPECT_EQ(*std::unique_ptr<int>(CoreTypes::Box('a')), 97);
    EXPECT_EQ(*std::unique_ptr<std::int64_t>(CoreTypes::Box(std::int64_t{-3})), -3);
    const std::uint64_t large = UINT64_LARGEST;
    EXPECT_EQ(CoreTypes::CastToString(&large), "18446744073709551615");
    EXPECT_EQ(ThrownMessage<OutOfRangeException>([] { CoreTypes::CastToUInt64(std::int64_t{-1}); }),
              CannotConvert("-1", "long", "unsignedLong"));
    EXPECT_FALSE(IsPrinted(static_cast<unsigned char*>(nullptr)));
    EXPECT_TRUE(IsPrinted(&large) && IsPrinted("text"));
}

TEST(CoreTypes, DigitsAreReadWithSignAndOverflow) {
    const struct {
        const char* text;
        std::uint64_t magnitude;
        bool positive, overflow;
    } cases[] = {
        {"+30", 30, true, false},
        {"-30", 30, false, false},
        {"-0", 0, true, false},
        {"-18446744073709551615", UINT64_LARGEST, false, false},
        {"-18446744073709551616", 0, false, true},
        {"30/", 30, true, false}, // no digit, though next to them
        {"", 0, true, false},
    };
    for (const auto& c : cases) {
        const ParsedInteger integer = CoreTypes::ParseInteger(c.text);
        EXPECT_EQ(integer.magnitude, c.magnitude) << c.text;
        EXPECT_EQ(integer.positive, c.positive) << c.text;
        EXPECT_EQ(integer.overflow, c.overflow) << c.text;
    }
}

TEST(CoreTypes, StringsOfOtherValues) {
    EXPECT_EQ(CoreTypes::CastToString("a b "), "a b ");
    EXPECT_EQ(CoreTypes::CastToString(std::string("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(CoreTypes::CastToString(true) + CoreTypes::CastToString(false), "truefalse");
    EXPECT_EQ(CoreTypes::CastToString(INT64_LOWEST), "-9223372036854775808");
    EXPECT_EQ(CoreTypes::CastToString(UINT64_LARGEST), "18446744073709551615");
    EXPECT_EQ(CoreTypes::CastToString(std::vector<unsigned char>{'M', 'a'}), "TWE=");
    EXPECT_EQ(CoreTypes::FormatBase64({'M'}) + CoreTypes::BinaryToBase64String({'M'}) +
                  CoreTypes::BinaryToHexString({'M'}),
              "TQ==TQ==4D");
    EXPECT_EQ(CoreTypes::ParseBase64Binary("TQ=="), CoreTypes::ParseHexBinary("4D"));
    EXPECT_EQ(CoreTypes::CastToString(QName("urn:x", "tt:p")), "tt:p");
    EXPECT_EQ(CoreTypes::CastToQName("{urn:x}p").uri, "urn:x");
    EXPECT_EQ(CoreTypes::FormatNumber(7, 3) + CoreTypes::FormatFraction(50, 4) +
                  CoreTypes::FormatTimezone(-90),
              "007.005-01:30");
}

TEST(CoreTypes, BoxesHoldACopyOrNothing) {
    int number = 5;
    const std::unique_ptr<int> box(CoreTypes::Box(number));
    number = 6;
    const int& unboxed = CoreTypes::Unbox(box.get());
    *box = 7;
    EXPECT_EQ(unboxed, 5);
    const std::unique_ptr<std::string> text(CoreTypes::Box(std::string("12")));
    EXPECT_EQ(CoreTypes::CastToInt(text.get()), 12);
    const bool yes = true;
    EXPECT_EQ(CoreTypes::CastToString(&yes), "true");
    const std::unique_ptr<DateTime> time(CoreTypes::Box(&static_cast<const DateTime&>(DateTime(5, 60))));
    EXPECT_EQ(CoreTypes::CastToDateTime(time.get()), DateTime(5, 60));
    EXPECT_EQ(CoreTypes::Box(static_cast<const double*>(nullptr)), nullptr);
}

TEST(CoreTypes, NullIsAnError) {
    const auto expectError = [](auto action) {
        EXPECT_EQ(ThrownMessage<Error>(action), "Trying to read NULL value.");
    };
    expectError([] { CoreTypes::Unbox(static_cast<const bool*>(nullptr)); });
    expectError([] { CoreTypes::CastToBool(static_cast<const bool*>(nullptr)); });
    expectError([] { CoreTypes::CastToInt(static_cast<const int*>(nullptr)); });
    expectError([] { CoreTypes::CastToDouble(static_cast<const double*>(nullptr)); });
    expectError([] { CoreTypes::CastToString(static_cast<const std::string*>(nullptr)); });
    expectError([] { CoreTypes::CastToString(static_cast<const char*>(nullptr)); });
    expectError([] { CoreTypes::CastToDuration(static_cast<const Duration*>(nullptr)); });
}
