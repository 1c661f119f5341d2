// The lexical formatters: what writes a typed value in the form of its XML Schema type.
//
// There is one constant object of each class. They are ready before any static initialiser runs and are
// never destroyed, so the classes have no virtual destructor.
#ifndef XTTML_RUNTIME_FORMATTERS_H
#define XTTML_RUNTIME_FORMATTERS_H

#include "runtime/date_time.h"
#include "runtime/duration.h"

#include <string>
#include <vector>

namespace tessera {

/// Root of the formatters; none exists on its own.
class ValueFormatter {
protected:
    constexpr ValueFormatter() = default;
    ~ValueFormatter() = default;
};

/// The forms of dateTime, duration, decimal, double, string, base64Binary and boolean; the base of the
/// others. The order of the nine operations is fixed.
class XmlFormatter : public ValueFormatter {
public:
    constexpr XmlFormatter() = default;

    /// The dateTime form.
    virtual std::string Format(const DateTime& value) const;
    /// Throws ValueNotRepresentableException when the signs of the parts differ.
    virtual std::string Format(const Duration& value) const;
    virtual std::string Format(long long value) const;
    virtual std::string Format(unsigned long long value) const;
    /// The shortest plain decimal of at most 15 significant digits; see PrintDouble.
    virtual std::string Format(double value) const;
    /// The text unchanged.
    virtual std::string Format(const std::string& value) const;
    /// Base64 without line breaks.
    virtual std::string Format(const std::vector<unsigned char>& value) const;
    /// "true" or "false".
    virtual std::string Format(bool value) const;
    /// Reads Base64; throws StringParseException of type "base64Binary".
    virtual std::vector<unsigned char> ParseBinary(const std::string& text) const;
};

/// A formatter that differs from the base in the form of a DateTime only.
template <std::string (*Print)(const DateTime&)>
class DateTimePartFormatter final : public XmlFormatter {
public:
    constexpr DateTimePartFormatter() = default;

    using XmlFormatter::Format;
    std::string Format(const DateTime& value) const override { return Print(value); }
};

using XmlTimeFormatter = DateTimePartFormatter<PrintTime>;
using XmlDateFormatter = DateTimePartFormatter<PrintDate>;
using XmlGYearFormatter = DateTimePartFormatter<PrintGYear>;
using XmlGMonthFormatter = DateTimePartFormatter<PrintGMonth>;
using XmlGDayFormatter = DateTimePartFormatter<PrintGDay>;
using XmlGYearMonthFormatter = DateTimePartFormatter<PrintGYearMonth>;
using XmlGMonthDayFormatter = DateTimePartFormatter<PrintGMonthDay>;

/// Writes and reads bytes as hexadecimal digits.
class XmlHexBinaryFormatter final : public XmlFormatter {
public:
    constexpr XmlHexBinaryFormatter() = default;

    using XmlFormatter::Format;
    /// Upper-case digits.
    std::string Format(const std::vector<unsigned char>& value) const override;
    /// Throws StringParseException of type "hexBinary".
    std::vector<unsigned char> ParseBinary(const std::string& text) const override;
};

/// Writes a double as a whole number.
class XmlIntegerFormatter final : public XmlFormatter {
public:
    constexpr XmlIntegerFormatter() = default;

    using XmlFormatter::Format;
    /// Truncates toward zero; throws OutOfRangeException beyond signed 64 bits.
    std::string Format(double value) const override;
};

// The formatter of each type, through which other modules reach the objects.
extern const XmlFormatter& Exported_TimeFormatter;
extern const XmlFormatter& Exported_DateFormatter;
extern const XmlFormatter& Exported_DateTimeFormatter;
extern const XmlFormatter& Exported_GYearFormatter;
extern const XmlFormatter& Exported_GMonthFormatter;
extern const XmlFormatter& Exported_GDayFormatter;
extern const XmlFormatter& Exported_GYearMonthFormatter;
extern const XmlFormatter& Exported_GMonthDayFormatter;
extern const XmlFormatter& Exported_IntegerFormatter;
extern const XmlFormatter& Exported_DecimalFormatter;
extern const XmlFormatter& Exported_AnySimpleTypeFormatter;
extern const XmlFormatter& Exported_DurationFormatter;
extern const XmlFormatter& Exported_DoubleFormatter;
extern const XmlFormatter& Exported_Base64BinaryFormatter;
extern const XmlFormatter& Exported_HexBinaryFormatter;

} // namespace tessera

#endif
