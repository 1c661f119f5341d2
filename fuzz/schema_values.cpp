// Any text as a value of XML Schema: what is read and written reads back equal.
#include "binding/tables.h"
#include "fuzz/choices.h"
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "runtime/core_types.h"
#include "runtime/facets.h"
#include "runtime/formatters.h"
#include "runtime/whitespace.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <optional>

using namespace tessera;

namespace {

/// What a cast gives, or nothing when it refuses the text in one of its ways.
template <class Cast>
auto Read(Cast&& cast) -> std::optional<decltype(cast())> {
    try {
        return cast();
    } catch (const ConversionException&) {
        return std::nullopt;
    } catch (const InvalidArgumentException&) {
        return std::nullopt;
    }
}

void RequireIntegers(const std::string& text) {
    const auto wide = Read([&] { return CoreTypes::CastToInt64(text); });
    const auto positive = Read([&] { return CoreTypes::CastToUInt64(text); });
    const auto narrow = Read([&] { return CoreTypes::CastToInt(text); });
    const auto natural = Read([&] { return CoreTypes::CastToUInt(text); });
    Require(!wide || CoreTypes::CastToInt64(CoreTypes::CastToString(*wide)) == *wide, "a long reads back");
    Require(!positive || CoreTypes::CastToUInt64(CoreTypes::CastToString(*positive)) == *positive,
            "an unsignedLong reads back");
    // A fraction may lie between the largest value of a type and the end of its range.
    const bool isNarrow = wide && *wide > INT32_MIN && *wide < INT32_MAX;
    const bool isNatural = positive && *positive < UINT32_MAX;
    Require(narrow ? narrow == wide : !isNarrow, "an int is a short long");
    Require(natural ? natural == positive : !isNatural, "an unsignedInt is a short unsignedLong");
    Require(!(wide && positive) || (*wide >= 0 && static_cast<std::uint64_t>(*wide) == *positive) ||
                *wide == 0,
            "a number has one value");
    Require(!(wide || positive) || CoreTypes::IsNumber(text), "an integer is a number");
}

void RequireSameDouble(double read, double value) {
    const double error = std::abs(read - value);
    Require(read == value || (std::isnan(read) && std::isnan(value)) || error <= std::abs(value) * 5.3e-15 ||
                error <= std::numeric_limits<double>::denorm_min(),
            "a double reads back in 15 digits");
}

void RequireDouble(double value) {
    constexpr double largestIn15Digits = 1.79769313486231e308; // beyond it, 15 digits round up to infinity
    if (std::isfinite(value) && std::abs(value) > largestIn15Digits)
        return;
    const std::string text = CoreTypes::CastToString(value);
    const double read = CoreTypes::CastToDouble(text);
    RequireSameDouble(read, value);
    Require(CoreTypes::CastToString(read) == text, "the text of a double is stable");
    Require(text.find_first_of("eE") == std::string::npos, "no exponent is written");
}

void RequireDoubles(const std::string& text, std::uint64_t bits) {
    const auto read = Read([&] { return CoreTypes::CastToDouble(text); });
    Require(read.has_value() == CoreTypes::IsNumber(text), "a double is a number");
    if (read)
        RequireDouble(*read);
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    RequireDouble(value);
}

/// The offsets that two digits of hours can write.
bool HasPrintableZone(const DateTime& value) {
    return !value.HasTimezone() || std::abs(int{value.Timezone()}) < 100 * 60;
}

/// Behind a year or a month, such an offset reads as a month or a day.
bool HasWesternZone(const DateTime& value) {
    return value.HasTimezone() && value.Timezone() < 0;
}

/// The parts of a date that begin earlier than it; the year -29227 begins before the first tick.
void RequireParts(const DateTime& value) {
    for (const auto format :
         {CoreTypes::FormatDate, CoreTypes::FormatTime, CoreTypes::FormatGYear, CoreTypes::FormatGYearMonth,
          CoreTypes::FormatGMonth, CoreTypes::FormatGMonthDay, CoreTypes::FormatGDay}) {
        const std::string part = CoreTypes::CastToString(value, format);
        const auto readPart = Read([&] { return CoreTypes::CastToDateTime(part); });
        Require(readPart && CoreTypes::CastToString(*readPart, format) == part,
                "a part of a date reads back");
    }
}

void RequireDateTime(const DateTime& value) {
    const std::string text = CoreTypes::CastToString(value);
    const DateTime read = CoreTypes::CastToDateTime(text);
    Require(read.Value() == value.Value() && read.Timezone() == value.Timezone(), "a dateTime reads back");
    if (value.Year() > -29227 && !HasWesternZone(value))
        RequireParts(value);
    for (const auto format :
         {CoreTypes::FormatDateSpaceTime, CoreTypes::FormatSeconds, CoreTypes::FormatDays})
        Require(!CoreTypes::CastToString(value, format).empty(), "every date prints");
    Require(value.Month() >= 1 && value.Month() <= 12 && value.Day() >= 1 && value.Day() <= 31 &&
                value.Hour() <= 23 && value.Minute() <= 59 && value.Second() >= 0 && value.Second() < 60,
            "the parts of a date");
    Require(value.DayOfYear() >= 1 && value.DayOfYear() <= 366 && value.WeekOfMonth() >= 1 &&
                value.WeekOfMonth() <= 6 && value.Weeknumber() >= 1 && value.Weeknumber() <= 53,
            "the day of the year and the weeks");
}

void RequireDateTimes(const std::string& text, std::int64_t ticks) {
    const auto read = Read([&] { return CoreTypes::CastToDateTime(text); });
    if (read && HasPrintableZone(*read))
        RequireDateTime(*read);
    Read([&] { return CoreTypes::ParseTime(text, ALLOW_TIME); });
    RequireDateTime(DateTime(ticks));
}

void RequireDurations(const std::string& text, std::int64_t ticks, std::int32_t months) {
    const auto read = Read([&] { return CoreTypes::CastToDuration(text); });
    if (read)
        Require(CoreTypes::CastToDuration(CoreTypes::CastToString(*read)) == *read, "a duration reads back");
    const DayTimeDuration dayTime(ticks);
    const YearMonthDuration yearMonth(months);
    Require(CoreTypes::CastToDayTimeDuration(CoreTypes::CastToString(dayTime)) == dayTime,
            "a dayTimeDuration reads back");
    Require(CoreTypes::CastToYearMonthDuration(CoreTypes::CastToString(yearMonth)) == yearMonth,
            "a yearMonthDuration reads back");
}

/// Sums of a date and durations either fit or are refused.
void RequireArithmetic(std::int64_t ticks, std::int64_t added, std::int32_t months) {
    const DateTime date(ticks);
    const auto later = Read([&] { return date + DayTimeDuration(added); });
    if (later)
        Require((*later - DayTimeDuration(added)).Value() == ticks, "a sum is taken back");
    Read([&] { return date + YearMonthDuration(months); });
    Read([&] { return date - DateTime(added, 840); });
    const auto duration = Read([&] { return Duration(YearMonthDuration(months), DayTimeDuration(added)); });
    const auto sameDuration = duration;
    Require(!(duration < sameDuration) && duration == sameDuration, "a duration equals itself");
    const DateTime sameDate = date;
    Require(!(date < sameDate) && date <= sameDate, "a date equals itself");
}

void RequireBinary(const std::string& text) {
    const std::vector<unsigned char> bytes(text.begin(), text.end());
    Require(CoreTypes::ParseBase64Binary(CoreTypes::BinaryToBase64String(bytes)) == bytes,
            "Base64 reads back");
    Require(CoreTypes::ParseHexBinary(CoreTypes::BinaryToHexString(bytes)) == bytes, "hexBinary reads back");
    const auto base64 = Read([&] { return CoreTypes::ParseBase64Binary(text); });
    if (base64)
        Require(CoreTypes::ParseBase64Binary(CoreTypes::FormatBase64(*base64)) == *base64, "read Base64 too");
    const auto hex = Read([&] { return CoreTypes::ParseHexBinary(text); });
    if (hex)
        Require(CoreTypes::ParseHexBinary(CoreTypes::BinaryToHexString(*hex)) == *hex, "read hexBinary too");
}

void RequireWhitespace(const std::string& text) {
    const std::string collapsed = XsSchemaValidation::CollapseWhitespace(text);
    const std::string replaced = XsSchemaValidation::ReplaceWhitespace(text);
    Require(XsSchemaValidation::CollapseWhitespace(collapsed) == collapsed, "white space collapses once");
    Require(XsSchemaValidation::CollapseWhitespace(replaced) == collapsed, "replacing first changes nothing");
    Require(replaced.size() == text.size(), "replacing keeps the length");
    Require(LengthFacetCheckHelper::ComputeLength(text, WhitespaceType::COLLAPSE) == collapsed.size(),
            "the collapsed length");
    Require(LengthFacetCheckHelper::Equals(text, collapsed, WhitespaceType::COLLAPSE),
            "equal when collapsed");
    Require(LengthFacetCheckHelper::Equals(text, replaced, WhitespaceType::REPLACE), "equal when replaced");
    const auto boolean = Read([&] { return CoreTypes::CastToBool(text); });
    Require(!boolean || CoreTypes::CastToBool(CoreTypes::CastToString(*boolean)) == *boolean,
            "a bool reads back");
    Require(TrimWhitespace(TrimWhitespace(text)) == TrimWhitespace(text), "white space is trimmed once");
}

/// No type of TTML's schema has a facet that is checked.
void RequireType(const TypeInfo& type, const std::string& text, long long number) {
    Require(XsSchemaValidation::Validate(text, type), "every value is valid");
    if (!type.formatter)
        return;
    const XmlFormatter& formatter = **type.formatter;
    const std::vector<unsigned char> bytes(text.begin(), text.end());
    Require(formatter.ParseBinary(formatter.Format(bytes)) == bytes, "formatted bytes read back");
    Require(CoreTypes::CastToInt64(formatter.Format(number)) == number, "a formatted long reads back");
}

void RequireName(const std::string& text) {
    const QName name = CoreTypes::CastToQName(text);
    const QName again(name.uri, name.ToString());
    const bool hasEmptyPrefix = name.localName.rfind(':', 0) == 0; // no name, and not refused
    Require(hasEmptyPrefix || again.ToString() == name.ToString(), "a qualified name reads back");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Choices choices(bytes, size);
    const std::uint64_t bits = std::uint64_t{choices.Number()} << 32 | choices.Number();
    const std::int32_t number = choices.SignedNumber();
    const std::string text = choices.Rest();
    RequireIntegers(text);
    RequireDoubles(text, bits);
    RequireDateTimes(text, static_cast<std::int64_t>(bits));
    RequireDurations(text, static_cast<std::int64_t>(bits), number);
    RequireArithmetic(static_cast<std::int64_t>(bits),
                      std::int64_t{number} * (std::int64_t{1} << (number & 31)), number);
    RequireBinary(text);
    RequireWhitespace(text);
    RequireName(text);
    RequireType(ttaf1_dfxp::types[bits % ttaf1_dfxp::TYPE_COUNT], text, static_cast<std::int64_t>(bits));
    return 0;
}
