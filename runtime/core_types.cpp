#include "runtime/core_types.h"

#include "runtime/binary.h"
#include "runtime/date_time_text.h"
#include "runtime/duration_text.h"
#include "runtime/number.h"
#include "runtime/whitespace.h"

#include <iterator>

namespace tessera {

namespace {

// Nothing when `Integer` cannot hold it.
template <class Integer>
std::optional<Integer> FitInteger(const ParsedInteger& integer) {
    return integer.overflow ? std::nullopt
                            : IntegerFromMagnitude<Integer>(integer.magnitude, integer.positive);
}

template <class Integer>
Integer ParseNumber(const std::string& value) {
    const std::string_view text = TrimWhitespace(value);
    const LexicalNumber number = ClassifyNumber(text);
    if (number.kind == NumberKind::DECIMAL || number.kind == NumberKind::FLOATING_POINT) {
        return TruncateDouble<Integer>(ReadDouble(number.text.c_str()));
    }
    if (number.kind == NumberKind::NONE && !SpecialDouble(text)) {
        throw StringParseException("int", value);
    }
    const std::optional<Integer> integer =
        number.kind == NumberKind::INTEGER ? FitInteger<Integer>(ParseInteger(number.text)) : std::nullopt;
    if (!integer) {
        throw OutOfRangeException("string", TypeName<Integer>(), value);
    }
    return *integer;
}

template <class Number>
unsigned long long ToUInt64(Number value) {
    return CastNumber<unsigned long long>(value);
}

// The only cast that changes a value without a word.
unsigned long long ToUInt64(int value) {
    return static_cast<unsigned long long>(value);
}

Duration ParseDuration(const std::string& value) {
    Duration result;
    if (!TryParseDuration(value, result)) {
        throw StringParseException("duration", value);
    }
    return result;
}

DateTime ParseDateTime(const std::string& value, unsigned parts, const char* typeName) {
    DateTime result;
    if (!TryParseDateTime(value, parts, result)) {
        throw StringParseException(typeName, value);
    }
    return result;
}

// In the order of CoreTypes::DateTimeFormat.
constexpr std::string (*DATE_TIME_PRINTERS[])(const DateTime&) = {
    PrintDateTime,  PrintDate, PrintTime,          PrintGYear,   PrintGYearMonth, PrintGMonth,
    PrintGMonthDay, PrintGDay, PrintDateSpaceTime, PrintSeconds, PrintDays};

} // namespace

// The casts of one type of number.
#define XTTML_DEFINE_CASTS(Number)                                                                           \
    std::string CoreTypes::CastToString(Number value) {                                                      \
        return PrintNumber(value);                                                                           \
    }                                                                                                        \
    bool CoreTypes::CastToBool(Number value) {                                                               \
        return value != 0;                                                                                   \
    }                                                                                                        \
    int CoreTypes::CastToInt(Number value) {                                                                 \
        return CastNumber<int>(value);                                                                       \
    }                                                                                                        \
    unsigned CoreTypes::CastToUInt(Number value) {                                                           \
        return CastNumber<unsigned>(value);                                                                  \
    }                                                                                                        \
    long long CoreTypes::CastToInt64(Number value) {                                                         \
        return CastNumber<long long>(value);                                                                 \
    }                                                                                                        \
    unsigned long long CoreTypes::CastToUInt64(Number value) {                                               \
        return ToUInt64(value);                                                                              \
    }                                                                                                        \
    double CoreTypes::CastToDouble(Number value) {                                                           \
        return static_cast<double>(value);                                                                   \
    }

XTTML_DEFINE_CASTS(int)
XTTML_DEFINE_CASTS(unsigned)
XTTML_DEFINE_CASTS(long)
XTTML_DEFINE_CASTS(unsigned long)
XTTML_DEFINE_CASTS(long long)
XTTML_DEFINE_CASTS(unsigned long long)
XTTML_DEFINE_CASTS(double)

std::string CoreTypes::CastToString(const std::string& value) {
    return value;
}

std::string CoreTypes::CastToString(const char* value) {
    RequireNotNull(value);
    return value;
}

std::string CoreTypes::CastToString(bool value) {
    return value ? "true" : "false";
}

std::string CoreTypes::CastToString(const std::vector<unsigned char>& value) {
    return PrintBase64(value);
}

std::string CoreTypes::CastToString(const QName& value) {
    return value.ToString();
}

std::string CoreTypes::CastToString(const DateTime& value, DateTimeFormat format) {
    const auto index = static_cast<std::size_t>(format);
    return index < std::size(DATE_TIME_PRINTERS) ? DATE_TIME_PRINTERS[index](value) : PrintDateTime(value);
}

std::string CoreTypes::CastToString(const Duration& value) {
    return PrintDuration(value.YearMonthPart(), value.DayTimePart());
}

std::string CoreTypes::CastToString(const DayTimeDuration& value) {
    return PrintDuration(value);
}

std::string CoreTypes::CastToString(const YearMonthDuration& value) {
    return PrintDuration(value);
}

bool CoreTypes::CastToBool(const std::string& value) {
    const std::string text = CollapseWhitespace(value);
    const bool isTrue = text == "true" || text == "1";
    if (!isTrue && text != "false" && text != "0") {
        throw StringParseException("bool", value);
    }
    return isTrue;
}

bool CoreTypes::CastToBool(const char* value) {
    return CastToBool(CastToString(value));
}

int CoreTypes::CastToInt(const std::string& value) {
    return ParseNumber<int>(value);
}

unsigned CoreTypes::CastToUInt(const std::string& value) {
    return ParseNumber<unsigned>(value);
}

long long CoreTypes::CastToInt64(const std::string& value) {
    return ParseNumber<long long>(value);
}

unsigned long long CoreTypes::CastToUInt64(const std::string& value) {
    return ParseNumber<unsigned long long>(value);
}

double CoreTypes::CastToDouble(const std::string& value) {
    const std::optional<double> number = ParseDouble(value);
    if (!number) {
        throw StringParseException("int", value);
    }
    return *number;
}

bool CoreTypes::IsNumber(const std::string& value) {
    return tessera::IsNumber(value);
}

ParsedInteger CoreTypes::ParseInteger(const std::string& text) {
    return tessera::ParseInteger(text);
}

DateTime CoreTypes::CastToDateTime(const std::string& value) {
    return ParseDateTime(value, ALLOW_ALL, "dateTime");
}

DateTime CoreTypes::CastToDateTime(const DateTime& value) {
    return value;
}

DateTime CoreTypes::CastToDateTime(const DateTime& value, DateTimeFormat) {
    return value;
}

DateTime CoreTypes::CastToDateTime(const DateTime* value) {
    return Unbox(value);
}

bool CoreTypes::TryParseDateTime(const std::string& text, unsigned parts, DateTime& result) {
    return tessera::TryParseDateTime(text, parts, result);
}

DateTime CoreTypes::ParseTime(const std::string& value, unsigned format) {
    return ParseDateTime(value, format | ALLOW_TIME, "time");
}

Duration CoreTypes::CastToDuration(const std::string& value) {
    return ParseDuration(value);
}

Duration CoreTypes::CastToDuration(const Duration& value) {
    return value;
}

Duration CoreTypes::CastToDuration(const Duration* value) {
    return Unbox(value);
}

DayTimeDuration CoreTypes::CastToDayTimeDuration(const std::string& value) {
    const Duration duration = ParseDuration(value);
    if (duration.YearMonthPart() != YearMonthDuration()) {
        throw StringParseException("duration", value);
    }
    return duration.DayTimePart();
}

DayTimeDuration CoreTypes::CastToDayTimeDuration(const DayTimeDuration& value) {
    return value;
}

YearMonthDuration CoreTypes::CastToYearMonthDuration(const std::string& value) {
    const Duration duration = ParseDuration(value);
    if (duration.DayTimePart() != DayTimeDuration()) {
        throw StringParseException("duration", value);
    }
    return duration.YearMonthPart();
}

YearMonthDuration CoreTypes::CastToYearMonthDuration(const YearMonthDuration& value) {
    return value;
}

QName CoreTypes::CastToQName(const std::string& value) {
    return QName(value);
}

QName CoreTypes::CastToQName(const QName& value) {
    return value;
}

std::vector<unsigned char> CoreTypes::CastToBinary(const std::vector<unsigned char>& value) {
    return value;
}

std::vector<unsigned char> CoreTypes::ParseBase64Binary(const std::string& value) {
    return ParseBase64(value);
}

std::vector<unsigned char> CoreTypes::ParseHexBinary(const std::string& value) {
    return ParseHex(value);
}

std::string CoreTypes::FormatBase64(const std::vector<unsigned char>& value) {
    return PrintBase64(value);
}

std::string CoreTypes::BinaryToBase64String(const std::vector<unsigned char>& value) {
    return PrintBase64(value);
}

std::string CoreTypes::BinaryToHexString(const std::vector<unsigned char>& value) {
    return PrintHex(value);
}

std::string CoreTypes::FormatNumber(unsigned long long value, unsigned width) {
    return PrintDigits(value, width);
}

std::string CoreTypes::FormatFraction(unsigned long long value, unsigned width) {
    return PrintFraction(value, width);
}

std::string CoreTypes::FormatTimezone(short minutes) {
    return PrintTimezone(minutes);
}

void CoreTypes::RequireNotNull(const void* pointer) {
    if (pointer == nullptr) {
        throw Error("Trying to read NULL value.");
    }
}

} // namespace tessera
