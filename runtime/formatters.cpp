#include "runtime/formatters.h"

#include "runtime/binary.h"
#include "runtime/date_time_text.h"
#include "runtime/duration_text.h"
#include "runtime/number.h"

namespace tessera {

std::string XmlFormatter::Format(const DateTime& value) const {
    return PrintDateTime(value);
}

std::string XmlFormatter::Format(const Duration& value) const {
    return PrintDuration(value.YearMonthPart(), value.DayTimePart());
}

std::string XmlFormatter::Format(long long value) const {
    return PrintNumber(value);
}

std::string XmlFormatter::Format(unsigned long long value) const {
    return PrintNumber(value);
}

std::string XmlFormatter::Format(double value) const {
    return PrintDouble(value);
}

std::string XmlFormatter::Format(const std::string& value) const {
    return value;
}

std::string XmlFormatter::Format(const std::vector<unsigned char>& value) const {
    return PrintBase64(value);
}

std::string XmlFormatter::Format(bool value) const {
    return value ? "true" : "false";
}

std::vector<unsigned char> XmlFormatter::ParseBinary(const std::string& text) const {
    return ParseBase64(text);
}

std::string XmlTimeFormatter::Format(const DateTime& value) const {
    return PrintTime(value);
}

std::string XmlDateFormatter::Format(const DateTime& value) const {
    return PrintDate(value);
}

std::string XmlGYearFormatter::Format(const DateTime& value) const {
    return PrintGYear(value);
}

std::string XmlGMonthFormatter::Format(const DateTime& value) const {
    return PrintGMonth(value);
}

std::string XmlGDayFormatter::Format(const DateTime& value) const {
    return PrintGDay(value);
}

std::string XmlGYearMonthFormatter::Format(const DateTime& value) const {
    return PrintGYearMonth(value);
}

std::string XmlGMonthDayFormatter::Format(const DateTime& value) const {
    return PrintGMonthDay(value);
}

std::string XmlHexBinaryFormatter::Format(const std::vector<unsigned char>& value) const {
    return PrintHex(value);
}

std::vector<unsigned char> XmlHexBinaryFormatter::ParseBinary(const std::string& text) const {
    return ParseHex(text);
}

std::string XmlIntegerFormatter::Format(double value) const {
    return PrintNumber(TruncateDouble<long long>(value));
}

namespace {

constexpr XmlFormatter PLAIN_FORMATTER;
constexpr XmlTimeFormatter TIME_FORMATTER;
constexpr XmlDateFormatter DATE_FORMATTER;
constexpr XmlGYearFormatter G_YEAR_FORMATTER;
constexpr XmlGMonthFormatter G_MONTH_FORMATTER;
constexpr XmlGDayFormatter G_DAY_FORMATTER;
constexpr XmlGYearMonthFormatter G_YEAR_MONTH_FORMATTER;
constexpr XmlGMonthDayFormatter G_MONTH_DAY_FORMATTER;
constexpr XmlIntegerFormatter INTEGER_FORMATTER;
constexpr XmlHexBinaryFormatter HEX_BINARY_FORMATTER;

} // namespace

constexpr const XmlFormatter& Exported_TimeFormatter = TIME_FORMATTER;
constexpr const XmlFormatter& Exported_DateFormatter = DATE_FORMATTER;
constexpr const XmlFormatter& Exported_DateTimeFormatter = PLAIN_FORMATTER;
constexpr const XmlFormatter& Exported_GYearFormatter = G_YEAR_FORMATTER;
constexpr const XmlFormatter& Exported_GMonthFormatter = G_MONTH_FORMATTER;
constexpr const XmlFormatter& Exported_GDayFormatter = G_DAY_FORMATTER;
constexpr const XmlFormatter& Exported_GYearMonthFormatter = G_YEAR_MONTH_FORMATTER;
constexpr const XmlFormatter& Exported_GMonthDayFormatter = G_MONTH_DAY_FORMATTER;
constexpr const XmlFormatter& Exported_IntegerFormatter = INTEGER_FORMATTER;
constexpr const XmlFormatter& Exported_DecimalFormatter = PLAIN_FORMATTER;
constexpr const XmlFormatter& Exported_AnySimpleTypeFormatter = PLAIN_FORMATTER;
constexpr const XmlFormatter& Exported_DurationFormatter = PLAIN_FORMATTER;
constexpr const XmlFormatter& Exported_DoubleFormatter = PLAIN_FORMATTER;
constexpr const XmlFormatter& Exported_Base64BinaryFormatter = PLAIN_FORMATTER;
constexpr const XmlFormatter& Exported_HexBinaryFormatter = HEX_BINARY_FORMATTER;

} // namespace tessera
