// The lexical formatters: what writes a typed value in the form of its XML Schema type.
//
// The library has one constant object of each class, ready before any static initialiser runs and never
// destroyed. A formatter is not deleted through a pointer to its base: no destructor is virtual.
#ifndef XTTML_RUNTIME_FORMATTERS_H
#define XTTML_RUNTIME_FORMATTERS_H

#include "runtime/date_time.h"
#include "runtime/duration.h"
#include "runtime/export.h"

#include <string>
#include <vector>

namespace tessera {

/// Root of the formatters: writes every kind of value and reads bytes. The order of the nine operations is
/// fixed.
class XTTML_API ValueFormatter {
public:
    /// @{
    /// The text of a value.
    virtual std::string Format(const DateTime& value) const = 0;
    virtual std::string Format(const Duration& value) const = 0;
    virtual std::string Format(long long value) const = 0;
    virtual std::string Format(unsigned long long value) const = 0;
    virtual std::string Format(double value) const = 0;
    virtual std::string Format(const std::string& value) const = 0;
    virtual std::string Format(const std::vector<unsigned char>& value) const = 0;
    virtual std::string Format(bool value) const = 0;
    /// @}
    /// The bytes in a text.
    virtual std::vector<unsigned char> ParseBinary(const std::string& text) const = 0;

protected:
    constexpr ValueFormatter() = default;
    ~ValueFormatter() = default;
};

/// The forms of dateTime, duration, decimal, double, string, base64Binary and boolean; the base of the
/// others. A class derived from it that declares a Format also says `using XmlFormatter::Format`.
class XTTML_API XmlFormatter : public ValueFormatter {
public:
    constexpr XmlFormatter() = default;

    /// The dateTime form.
    std::string Format(const DateTime& value) const override;
    /// Both parts after one sign and one "P"; see CoreTypes::CastToString.
    std::string Format(const Duration& value) const override;
    /// @{
    /// Decimal digits, a "-" before those of a negative value.
    std::string Format(long long value) const override;
    std::string Format(unsigned long long value) const override;
    /// @}
    /// The shortest plain decimal of at most 15 significant digits; see CoreTypes::CastToString.
    std::string Format(double value) const override;
    /// The text unchanged.
    std::string Format(const std::string& value) const override;
    /// Base64 without line breaks.
    std::string Format(const std::vector<unsigned char>& value) const override;
    /// "true" or "false".
    std::string Format(bool value) const override;
    /// Reads Base64; throws StringParseException of type "base64Binary".
    std::vector<unsigned char> ParseBinary(const std::string& text) const override;

    /// As for a long long.
    std::string Format(int value) const { return Format(static_cast<long long>(value)); }
    /// As for an unsigned long long.
    std::string Format(unsigned value) const { return Format(static_cast<unsigned long long>(value)); }
    /// As for a long long.
    std::string Format(long value) const { return Format(static_cast<long long>(value)); }
    /// As for an unsigned long long.
    std::string Format(unsigned long value) const { return Format(static_cast<unsigned long long>(value)); }
    /// Keeps pointers, string literals among them, from being taken for a bool.
    std::string Format(const void* value) const = delete;
};

/// Writes a DateTime as hh:mm:ss, fraction; then the timezone when there is one.
class XTTML_API XmlTimeFormatter : public XmlFormatter {
public:
    constexpr XmlTimeFormatter() = default;

    using XmlFormatter::Format;
    /// hh:mm:ss, fraction, timezone.
    std::string Format(const DateTime& value) const override;
};

/// Writes a DateTime as yyyy-mm-dd; then the timezone when there is one.
class XTTML_API XmlDateFormatter : public XmlFormatter {
public:
    constexpr XmlDateFormatter() = default;

    using XmlFormatter::Format;
    /// yyyy-mm-dd, timezone.
    std::string Format(const DateTime& value) const override;
};

/// Writes a DateTime as yyyy; then the timezone when there is one.
class XTTML_API XmlGYearFormatter : public XmlFormatter {
public:
    constexpr XmlGYearFormatter() = default;

    using XmlFormatter::Format;
    /// yyyy, timezone.
    std::string Format(const DateTime& value) const override;
};

/// Writes a DateTime as --mm; then the timezone when there is one.
class XTTML_API XmlGMonthFormatter : public XmlFormatter {
public:
    constexpr XmlGMonthFormatter() = default;

    using XmlFormatter::Format;
    /// --mm, timezone.
    std::string Format(const DateTime& value) const override;
};

/// Writes a DateTime as ---dd; then the timezone when there is one.
class XTTML_API XmlGDayFormatter : public XmlFormatter {
public:
    constexpr XmlGDayFormatter() = default;

    using XmlFormatter::Format;
    /// ---dd, timezone.
    std::string Format(const DateTime& value) const override;
};

/// Writes a DateTime as yyyy-mm; then the timezone when there is one.
class XTTML_API XmlGYearMonthFormatter : public XmlFormatter {
public:
    constexpr XmlGYearMonthFormatter() = default;

    using XmlFormatter::Format;
    /// yyyy-mm, timezone.
    std::string Format(const DateTime& value) const override;
};

/// Writes a DateTime as --mm-dd; then the timezone when there is one.
class XTTML_API XmlGMonthDayFormatter : public XmlFormatter {
public:
    constexpr XmlGMonthDayFormatter() = default;

    using XmlFormatter::Format;
    /// --mm-dd, timezone.
    std::string Format(const DateTime& value) const override;
};

/// Writes and reads bytes as hexadecimal digits.
class XTTML_API XmlHexBinaryFormatter : public XmlFormatter {
public:
    constexpr XmlHexBinaryFormatter() = default;

    using XmlFormatter::Format;
    /// Upper-case digits.
    std::string Format(const std::vector<unsigned char>& value) const override;
    /// Throws StringParseException of type "hexBinary".
    std::vector<unsigned char> ParseBinary(const std::string& text) const override;
};

/// Writes a double as a whole number.
class XTTML_API XmlIntegerFormatter : public XmlFormatter {
public:
    constexpr XmlIntegerFormatter() = default;

    using XmlFormatter::Format;
    /// Truncates toward zero; throws OutOfRangeException beyond signed 64 bits.
    std::string Format(double value) const override;
};

/// @{
/// The formatter of the type that the name gives, through which other modules reach the object.
extern XTTML_API const XmlFormatter& Exported_TimeFormatter;
extern XTTML_API const XmlFormatter& Exported_DateFormatter;
extern XTTML_API const XmlFormatter& Exported_DateTimeFormatter;
extern XTTML_API const XmlFormatter& Exported_GYearFormatter;
extern XTTML_API const XmlFormatter& Exported_GMonthFormatter;
extern XTTML_API const XmlFormatter& Exported_GDayFormatter;
extern XTTML_API const XmlFormatter& Exported_GYearMonthFormatter;
extern XTTML_API const XmlFormatter& Exported_GMonthDayFormatter;
extern XTTML_API const XmlFormatter& Exported_IntegerFormatter;
extern XTTML_API const XmlFormatter& Exported_DecimalFormatter;
extern XTTML_API const XmlFormatter& Exported_AnySimpleTypeFormatter;
extern XTTML_API const XmlFormatter& Exported_DurationFormatter;
extern XTTML_API const XmlFormatter& Exported_DoubleFormatter;
extern XTTML_API const XmlFormatter& Exported_Base64BinaryFormatter;
extern XTTML_API const XmlFormatter& Exported_HexBinaryFormatter;
/// @}

} // namespace tessera

#endif
