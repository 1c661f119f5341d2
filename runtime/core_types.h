// The casts between the lexical form of XML Schema values and the typed values of the runtime.
//
// What they throw: StringParseException for a text that has not the form of the type, OutOfRangeException for
// a number outside the target's range, Error ("Trying to read NULL value.") for a null pointer; whatever else
// a function throws stands at it. The value in a message is the text as given, or the decimal form of a
// number.
//
// A number of any other type is promoted as the language promotes it: a char, a short and an unscoped
// enumerator count as an int, a float as a double.
#ifndef XTTML_RUNTIME_CORE_TYPES_H
#define XTTML_RUNTIME_CORE_TYPES_H

#include "runtime/date_time.h"
#include "runtime/duration.h"
#include "runtime/exceptions.h"
#include "runtime/export.h"
#include "runtime/parsed_integer.h"
#include "runtime/qname.h"

#include <string>
#include <type_traits>
#include <vector>

namespace tessera {

/// The cast family; only static functions.
class XTTML_API CoreTypes {
    template <class T, class... Types>
    static constexpr bool IS_ONE_OF = (std::is_same_v<T, Types> || ...);
    // Boxes are made of these types.
    template <class T>
    using IfBoxable = std::enable_if_t<IS_ONE_OF<T, bool, int, unsigned, long, unsigned long, long long,
                                                 unsigned long long, double, std::string, DateTime, Duration>,
                                       int>;

public:
    /// The output forms of a DateTime. Every form ends with the timezone when the value has one. Years have
    /// at least four digits and a "-" before 0000; months, days, hours, minutes and seconds have two digits;
    /// the fraction of a second has up to seven, without trailing zeros.
    enum DateTimeFormat {
        FormatDateTime = 0,      ///< date "T" time
        FormatDate = 1,          ///< yyyy-mm-dd
        FormatTime = 2,          ///< hh:mm:ss, fraction
        FormatGYear = 3,         ///< yyyy
        FormatGYearMonth = 4,    ///< yyyy-mm
        FormatGMonth = 5,        ///< --mm
        FormatGMonthDay = 6,     ///< --mm-dd
        FormatGDay = 7,          ///< ---dd
        FormatDateSpaceTime = 8, ///< date " " time
        FormatSeconds = 9,       ///< the tick count in seconds
        FormatDays = 10          ///< the tick count in days, up to seven decimals
    };

    CoreTypes() = delete;

    // To text.

    /// The text unchanged.
    static std::string CastToString(const std::string& value);
    /// The characters up to the terminating zero; throws Error for null.
    static std::string CastToString(const char* value);
    /// "true" or "false".
    static std::string CastToString(bool value);
    /// @{
    /// Decimal digits, a "-" before those of a negative value.
    static std::string CastToString(int value);
    static std::string CastToString(unsigned value);
    static std::string CastToString(long value);
    static std::string CastToString(unsigned long value);
    static std::string CastToString(long long value);
    static std::string CastToString(unsigned long long value);
    /// @}
    /// The shortest plain decimal (no exponent) that reads back as `value`, at most 15 significant digits; a
    /// value that needs more is rounded to the nearest with 15, a half up. "NaN", "INF" and "-INF" for what
    /// is no number; "0" for both zeros.
    static std::string CastToString(double value);
    /// Base64 without line breaks.
    static std::string CastToString(const std::vector<unsigned char>& value);
    /// "prefix:localName" or "localName".
    static std::string CastToString(const QName& value);
    /// An unknown format counts as FormatDateTime.
    static std::string CastToString(const DateTime& value, DateTimeFormat format = FormatDateTime);
    /// Both parts after one sign and one "P": "-P1Y2M3DT4H5M6.7S"; "PT0S" for zero.
    static std::string CastToString(const Duration& value);
    /// "P1DT2H3M4.5S", "-PT1M"; "PT0S" for zero.
    static std::string CastToString(const DayTimeDuration& value);
    /// "P1Y2M", "-P3M"; "P0M" for zero.
    static std::string CastToString(const YearMonthDuration& value);
    /// The value in a box, cast; throws Error for null.
    template <class T, IfBoxable<T> = 0>
    static std::string CastToString(const T* value) {
        return CastToString(Unbox(value));
    }
    /// Keeps other pointers from being taken for a bool.
    static std::string CastToString(const void* value) = delete;

    // To numbers. A text may have white space around it.

    /// @{
    /// "true" and "1", "false" and "0".
    static bool CastToBool(const std::string& value);
    static bool CastToBool(const char* value);
    /// @}
    /// @{
    /// True when not 0; NaN is not 0.
    static bool CastToBool(int value);
    static bool CastToBool(unsigned value);
    static bool CastToBool(long value);
    static bool CastToBool(unsigned long value);
    static bool CastToBool(long long value);
    static bool CastToBool(unsigned long long value);
    static bool CastToBool(double value);
    /// @}
    /// The value in a box, cast; throws Error for null.
    template <class T, IfBoxable<T> = 0>
    static bool CastToBool(const T* value) {
        return CastToBool(Unbox(value));
    }

    /// An integer, or another number ("25.9", "3e1") truncated toward zero; so below.
    static int CastToInt(const std::string& value);
    /// @{
    /// The value unchanged, a double truncated toward zero; so below.
    static int CastToInt(int value);
    static int CastToInt(unsigned value);
    static int CastToInt(long value);
    static int CastToInt(unsigned long value);
    static int CastToInt(long long value);
    static int CastToInt(unsigned long long value);
    static int CastToInt(double value);
    /// @}
    /// The value in a box, cast; throws Error for null.
    template <class T, IfBoxable<T> = 0>
    static int CastToInt(const T* value) {
        return CastToInt(Unbox(value));
    }

    /// As CastToInt.
    static unsigned CastToUInt(const std::string& value);
    /// @{
    /// As CastToInt.
    static unsigned CastToUInt(int value);
    static unsigned CastToUInt(unsigned value);
    static unsigned CastToUInt(long value);
    static unsigned CastToUInt(unsigned long value);
    static unsigned CastToUInt(long long value);
    static unsigned CastToUInt(unsigned long long value);
    static unsigned CastToUInt(double value);
    /// @}
    /// The value in a box, cast; throws Error for null.
    template <class T, IfBoxable<T> = 0>
    static unsigned CastToUInt(const T* value) {
        return CastToUInt(Unbox(value));
    }

    /// As CastToInt.
    static long long CastToInt64(const std::string& value);
    /// @{
    /// As CastToInt.
    static long long CastToInt64(int value);
    static long long CastToInt64(unsigned value);
    static long long CastToInt64(long value);
    static long long CastToInt64(unsigned long value);
    static long long CastToInt64(long long value);
    static long long CastToInt64(unsigned long long value);
    static long long CastToInt64(double value);
    /// @}
    /// The value in a box, cast; throws Error for null.
    template <class T, IfBoxable<T> = 0>
    static long long CastToInt64(const T* value) {
        return CastToInt64(Unbox(value));
    }

    /// As CastToInt.
    static unsigned long long CastToUInt64(const std::string& value);
    /// Extends the sign without a range check: -1 gives 18446744073709551615.
    static unsigned long long CastToUInt64(int value);
    /// @{
    /// As CastToInt.
    static unsigned long long CastToUInt64(unsigned value);
    static unsigned long long CastToUInt64(long value);
    static unsigned long long CastToUInt64(unsigned long value);
    static unsigned long long CastToUInt64(long long value);
    static unsigned long long CastToUInt64(unsigned long long value);
    static unsigned long long CastToUInt64(double value);
    /// @}
    /// The value in a box, cast; throws Error for null.
    template <class T, IfBoxable<T> = 0>
    static unsigned long long CastToUInt64(const T* value) {
        return CastToUInt64(Unbox(value));
    }

    /// "NaN", "INF", "-INF" or a number; of what is neither the message says that it is no "int".
    static double CastToDouble(const std::string& value);
    /// @{
    /// The nearest double.
    static double CastToDouble(int value);
    static double CastToDouble(unsigned value);
    static double CastToDouble(long value);
    static double CastToDouble(unsigned long value);
    static double CastToDouble(long long value);
    static double CastToDouble(unsigned long long value);
    static double CastToDouble(double value);
    /// @}
    /// The value in a box, cast; throws Error for null.
    template <class T, IfBoxable<T> = 0>
    static double CastToDouble(const T* value) {
        return CastToDouble(Unbox(value));
    }

    /// True for "NaN", "INF", "-INF" and every number, white space around it allowed.
    static bool IsNumber(const std::string& value);
    /// Reads an optional sign and the digits after it; what follows the digits is not read. Throws nothing.
    static ParsedInteger ParseInteger(const std::string& text);

    // To dates and durations.

    /// Any date, time or part of a date, of type "dateTime" in the message; see TryParseDateTime.
    static DateTime CastToDateTime(const std::string& value);
    /// A copy.
    static DateTime CastToDateTime(const DateTime& value);
    /// A copy; the format changes nothing.
    static DateTime CastToDateTime(const DateTime& value, DateTimeFormat format);
    /// A copy of the value in a box; throws Error for null.
    static DateTime CastToDateTime(const DateTime* value);
    /// As CastToDateTime, restricted to the parts that `format` (DateTimeParts) names and the time, which
    /// is always allowed; of type "time" in the message.
    static DateTime ParseTime(const std::string& value, unsigned format);
    /// Reads any output form but the last three, as far as `parts` (DateTimeParts) allows, white space around
    /// it allowed. A text without a date is of 0001-01-01, a date without a year of the leap year 0004. A "-"
    /// with two digits after a year is the month, after a month the day: a timezone west of Greenwich follows
    /// a day or a time only. The fraction of a second is read exactly, digits beyond the seventh are dropped.
    /// The offset of a timezone is not bounded.
    ///
    /// False for any other text; `result` is then unchanged. A field out of its range throws
    /// InvalidArgumentException as DateTime::Init does.
    static bool TryParseDateTime(const std::string& text, unsigned parts, DateTime& result);

    /// Reads the XML Schema form: "P" and at least one number with its designator, in the order Y M D, T,
    /// H M S, none of them twice, only the seconds with a fraction, which is read exactly (digits beyond the
    /// seventh are dropped); a "T" has a pair after it. White space may stand before it, not after it. Throws
    /// StringParseException of type "duration", also for a length that the fields cannot hold.
    static Duration CastToDuration(const std::string& value);
    /// A copy.
    static Duration CastToDuration(const Duration& value);
    /// A copy of the value in a box; throws Error for null.
    static Duration CastToDuration(const Duration* value);
    /// As CastToDuration, whose form it reads; refuses years and months other than 0 in the same way.
    static DayTimeDuration CastToDayTimeDuration(const std::string& value);
    /// A copy.
    static DayTimeDuration CastToDayTimeDuration(const DayTimeDuration& value);
    /// As CastToDuration, whose form it reads; refuses days and times other than 0 in the same way.
    static YearMonthDuration CastToYearMonthDuration(const std::string& value);
    /// A copy.
    static YearMonthDuration CastToYearMonthDuration(const YearMonthDuration& value);

    // To names and bytes.

    /// A local name or Clark notation; see QName. Throws nothing.
    static QName CastToQName(const std::string& value);
    /// A copy.
    static QName CastToQName(const QName& value);

    /// A copy.
    static std::vector<unsigned char> CastToBinary(const std::vector<unsigned char>& value);
    /// Groups of four Base64 characters, white space anywhere; of type "base64Binary" in the message.
    static std::vector<unsigned char> ParseBase64Binary(const std::string& value);
    /// Pairs of hexadecimal digits, white space around them; of type "hexBinary" in the message.
    static std::vector<unsigned char> ParseHexBinary(const std::string& value);
    /// @{
    /// Base64 without line breaks.
    static std::string FormatBase64(const std::vector<unsigned char>& value);
    static std::string BinaryToBase64String(const std::vector<unsigned char>& value);
    /// @}
    /// Upper-case hexadecimal digits.
    static std::string BinaryToHexString(const std::vector<unsigned char>& value);

    /// Decimal digits, zeros before them up to `width`.
    static std::string FormatNumber(unsigned long long value, unsigned width);
    /// The fraction `value` / 10^`width` as "." and its digits without trailing zeros; empty for 0.
    static std::string FormatFraction(unsigned long long value, unsigned width);
    /// "Z" for 0, else the sign, hours and minutes of an offset in minutes: "+05:30"; empty for
    /// DateTime::NO_TIMEZONE.
    static std::string FormatTimezone(short minutes);

    // Boxes: a pointer to a value or null for an absent one.

    /// @{
    /// A new heap copy, which the caller owns.
    static bool* Box(bool value) { return new bool(value); }
    static int* Box(int value) { return new int(value); }
    static unsigned* Box(unsigned value) { return new unsigned(value); }
    static long* Box(long value) { return new long(value); }
    static unsigned long* Box(unsigned long value) { return new unsigned long(value); }
    static long long* Box(long long value) { return new long long(value); }
    static unsigned long long* Box(unsigned long long value) { return new unsigned long long(value); }
    static double* Box(double value) { return new double(value); }
    static std::string* Box(const std::string& value) { return new std::string(value); }
    static DateTime* Box(const DateTime& value) { return new DateTime(value); }
    static Duration* Box(const Duration& value) { return new Duration(value); }
    /// @}
    /// A new heap copy of what is pointed to, which the caller owns; null for null.
    template <class T, IfBoxable<T> = 0>
    static T* Box(const T* value) {
        return value == nullptr ? nullptr : new T(*value);
    }
    /// Keeps other pointers from being taken for a bool.
    static void Box(const void* value) = delete;
    /// A copy of the value in a box; throws Error for null.
    template <class T, IfBoxable<T> = 0>
    static T Unbox(const T* box) {
        RequireNotNull(box);
        return *box;
    }

private:
    static void RequireNotNull(const void* pointer);
};

} // namespace tessera

#endif
