// The casts between the lexical form of XML Schema values and the typed values of the runtime.
//
// Integers are read with white space around them; "25.9" and "3e1" are numbers too and truncated. What a
// cast throws: StringParseException for text that has not the form of the type, OutOfRangeException for a
// number outside the target's range, Error ("Trying to read NULL value.") for a null pointer. The value in a
// message is the text as given, or the decimal form of a number.
#ifndef XTTML_RUNTIME_CORE_TYPES_H
#define XTTML_RUNTIME_CORE_TYPES_H

#include "runtime/date_time.h"
#include "runtime/duration.h"
#include "runtime/exceptions.h"
#include "runtime/number.h"
#include "runtime/qname.h"

#include <string>
#include <type_traits>
#include <vector>

namespace tessera {

/// Whether `T` is one of `Types`.
template <class T, class... Types>
constexpr bool IS_ONE_OF = (std::is_same_v<T, Types> || ...);

/// True for the types of which boxes are made.
template <class T>
constexpr bool IS_BOXABLE =
    IS_ONE_OF<T, bool, int, unsigned, long long, unsigned long long, double, std::string, DateTime, Duration>;

/// The cast family; only static functions. A cast of a pointer to a boxable value casts the value and throws
/// Error for null.
class CoreTypes {
    template <class T>
    using IfBoxable = std::enable_if_t<IS_BOXABLE<T>, int>;
    template <class T>
    using IfNumber = std::enable_if_t<std::is_arithmetic_v<T>, int>;

public:
    /// The output forms of a DateTime; see the Print functions of date_time.h.
    enum DateTimeFormat {
        FormatDateTime = 0,
        FormatDate = 1,
        FormatTime = 2,
        FormatGYear = 3,
        FormatGYearMonth = 4,
        FormatGMonth = 5,
        FormatGMonthDay = 6,
        FormatGDay = 7,
        FormatDateSpaceTime = 8,
        FormatSeconds = 9,
        FormatDays = 10
    };

    CoreTypes() = delete;

    /// The text unchanged.
    static std::string CastToString(const std::string& value);
    /// The characters up to the terminating zero.
    static std::string CastToString(const char* value);
    /// "true" or "false".
    static std::string CastToString(bool value);
    /// Decimal digits; for a double the shortest plain decimal of at most 15 significant digits.
    template <class Number, IfNumber<Number> = 0>
    static std::string CastToString(Number value) {
        return PrintNumber(value);
    }
    /// Base64 without line breaks.
    static std::string CastToString(const std::vector<unsigned char>& value);
    /// "prefix:localName" or "localName".
    static std::string CastToString(const QName& value);
    /// An unknown format counts as FormatDateTime.
    static std::string CastToString(const DateTime& value, DateTimeFormat format = FormatDateTime);
    /// Throws ValueNotRepresentableException when the signs of the parts differ.
    static std::string CastToString(const Duration& value);
    static std::string CastToString(const DayTimeDuration& value);
    static std::string CastToString(const YearMonthDuration& value);
    template <class T, IfBoxable<T> = 0>
    static std::string CastToString(const T* value) {
        return CastToString(Unbox(value));
    }

    /// "true" and "1", "false" and "0", white space around them allowed.
    static bool CastToBool(const std::string& value);
    static bool CastToBool(const char* value);
    /// True when not 0; NaN is not 0.
    template <class Number, IfNumber<Number> = 0>
    static bool CastToBool(Number value) {
        return value != 0;
    }
    template <class T, IfBoxable<T> = 0>
    static bool CastToBool(const T* value) {
        return CastToBool(Unbox(value));
    }

    static int CastToInt(const std::string& value);
    /// A double is truncated toward zero; so below.
    template <class Number, IfNumber<Number> = 0>
    static int CastToInt(Number value) {
        return CastNumber<int>(value);
    }
    template <class T, IfBoxable<T> = 0>
    static int CastToInt(const T* value) {
        return CastToInt(Unbox(value));
    }

    static unsigned CastToUInt(const std::string& value);
    template <class Number, IfNumber<Number> = 0>
    static unsigned CastToUInt(Number value) {
        return CastNumber<unsigned>(value);
    }
    template <class T, IfBoxable<T> = 0>
    static unsigned CastToUInt(const T* value) {
        return CastToUInt(Unbox(value));
    }

    static long long CastToInt64(const std::string& value);
    template <class Number, IfNumber<Number> = 0>
    static long long CastToInt64(Number value) {
        return CastNumber<long long>(value);
    }
    template <class T, IfBoxable<T> = 0>
    static long long CastToInt64(const T* value) {
        return CastToInt64(Unbox(value));
    }

    static unsigned long long CastToUInt64(const std::string& value);
    /// Extends the sign without a range check: -1 gives 18446744073709551615.
    static unsigned long long CastToUInt64(int value);
    template <class Number, IfNumber<Number> = 0>
    static unsigned long long CastToUInt64(Number value) {
        return CastNumber<unsigned long long>(value);
    }
    template <class T, IfBoxable<T> = 0>
    static unsigned long long CastToUInt64(const T* value) {
        return CastToUInt64(Unbox(value));
    }

    /// "NaN", "INF", "-INF" or a number; what is neither is no "int" in the exception's message.
    static double CastToDouble(const std::string& value);
    /// The nearest double.
    template <class Number, IfNumber<Number> = 0>
    static double CastToDouble(Number value) {
        return static_cast<double>(value);
    }
    template <class T, IfBoxable<T> = 0>
    static double CastToDouble(const T* value) {
        return CastToDouble(Unbox(value));
    }

    /// True for "NaN", "INF", "-INF" and every number, white space around it allowed.
    static bool IsNumber(const std::string& value);

    /// Any date, time or part of a date; throws StringParseException of type "dateTime", and for a field out
    /// of its range InvalidArgumentException.
    static DateTime CastToDateTime(const std::string& value);
    static DateTime CastToDateTime(const DateTime& value);
    /// A copy; the format changes nothing.
    static DateTime CastToDateTime(const DateTime& value, DateTimeFormat format);
    static DateTime CastToDateTime(const DateTime* value);
    /// As CastToDateTime, restricted to the parts that `format` (DateTimeParts) names and the time, which
    /// is always allowed; throws StringParseException of type "time".
    static DateTime ParseTime(const std::string& value, unsigned format);

    /// Throws StringParseException of type "duration"; so do the two below, also for a text with a part that
    /// they cannot hold.
    static Duration CastToDuration(const std::string& value);
    static Duration CastToDuration(const Duration& value);
    static Duration CastToDuration(const Duration* value);
    static DayTimeDuration CastToDayTimeDuration(const std::string& value);
    static DayTimeDuration CastToDayTimeDuration(const DayTimeDuration& value);
    static YearMonthDuration CastToYearMonthDuration(const std::string& value);
    static YearMonthDuration CastToYearMonthDuration(const YearMonthDuration& value);

    /// A local name or Clark notation; see QName.
    static QName CastToQName(const std::string& value);
    static QName CastToQName(const QName& value);

    static std::vector<unsigned char> CastToBinary(const std::vector<unsigned char>& value);
    /// Throws StringParseException of type "base64Binary".
    static std::vector<unsigned char> ParseBase64Binary(const std::string& value);
    /// Throws StringParseException of type "hexBinary".
    static std::vector<unsigned char> ParseHexBinary(const std::string& value);
    /// Base64 without line breaks.
    static std::string FormatBase64(const std::vector<unsigned char>& value);
    static std::string BinaryToBase64String(const std::vector<unsigned char>& value);
    /// Upper-case digits.
    static std::string BinaryToHexString(const std::vector<unsigned char>& value);

    /// Decimal digits, zeros before them up to `width`.
    static std::string FormatNumber(unsigned long long value, unsigned width);
    /// The fraction `value` / 10^`width` as "." and its digits without trailing zeros; empty for 0.
    static std::string FormatFraction(unsigned long long value, unsigned width);
    /// "Z", or the sign, hours and minutes of an offset in minutes; empty for DateTime::NO_TIMEZONE.
    static std::string FormatTimezone(short minutes);

    /// A new heap copy, which the caller owns.
    template <class T, IfBoxable<T> = 0>
    static T* Box(const T& value) {
        return new T(value);
    }
    /// A new heap copy of what is pointed to, which the caller owns; null for null.
    template <class T, IfBoxable<T> = 0>
    static T* Box(const T* value) {
        return value == nullptr ? nullptr : new T(*value);
    }
    /// The value in a box; throws Error for null.
    template <class T, IfBoxable<T> = 0>
    static const T& Unbox(const T* box) {
        RequireNotNull(box);
        return *box;
    }

private:
    static void RequireNotNull(const void* pointer);
};

} // namespace tessera

#endif
