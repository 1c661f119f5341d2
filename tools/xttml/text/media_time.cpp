#include "tools/xttml/text/media_time.h"

#include <algorithm>
#include <charconv>
#include <fmt/compile.h>
#include <limits>
#include <tuple>

namespace xttml {

namespace {

constexpr MediaTime longestTime = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t second = 1000;
constexpr std::int64_t minute = 60 * second;
constexpr std::int64_t hour = 60 * minute;

struct Metric {
    std::string_view name;
    std::int64_t milliseconds;
};

constexpr Metric metrics[] = {{"ms", 1}, {"s", second}, {"m", minute}, {"h", hour}};

bool Take(std::string_view& text, char character) {
    if (text.empty() || text.front() != character)
        return false;
    text.remove_prefix(1);
    return true;
}

/// Takes one or more digits off the front of the text.
std::string_view TakeDigits(std::string_view& text) {
    std::size_t count = text.find_first_not_of("0123456789");
    if (count == std::string_view::npos)
        count = text.size();
    const std::string_view digits = text.substr(0, count);
    text.remove_prefix(count);
    return digits;
}

std::optional<std::int64_t> TakeNumber(std::string_view& text) {
    const std::string_view digits = TakeDigits(text);
    std::int64_t value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec != std::errc() || value > longestTime)
        return std::nullopt;
    return value;
}

/// Takes a decimal fraction, point included, off the front of the text: its part of a unit, truncated.
/// Without a point 0; nothing for a point without digits.
std::optional<std::int64_t> TakeFraction(std::string_view& text, std::int64_t unit) {
    if (!Take(text, '.'))
        return 0;
    const std::string_view digits = TakeDigits(text);
    if (digits.empty())
        return std::nullopt;
    std::int64_t numerator = 0;
    std::int64_t denominator = 1;
    for (const char digit : digits.substr(0, 9)) {
        numerator = numerator * 10 + (digit - '0');
        denominator *= 10;
    }
    return numerator * unit / denominator;
}

std::optional<WrittenTime> InRange(WrittenTime time) {
    return time.milliseconds > longestTime ? std::nullopt : std::optional(time);
}

std::optional<WrittenTime> ParseOffsetTime(std::string_view text) {
    const bool startsWithPoint = !text.empty() && text.front() == '.';
    const auto count = startsWithPoint ? 0 : TakeNumber(text);
    if (!count)
        return std::nullopt;
    if (text.empty())
        return InRange({*count});
    for (const Metric& metric : metrics) {
        std::string_view rest = text;
        const auto fraction = TakeFraction(rest, metric.milliseconds);
        if (fraction && rest == metric.name)
            return InRange({*count * metric.milliseconds + *fraction});
    }
    return std::nullopt;
}

/// Takes what follows the seconds of a clock time: a fraction or frames.
bool TakeRest(std::string_view& text, WrittenTime& time) {
    time.hasFrames = Take(text, ':');
    const auto rest = time.hasFrames ? TakeNumber(text) : TakeFraction(text, second);
    if (!rest)
        return false;
    if (time.hasFrames)
        time.frames = static_cast<std::int32_t>(*rest);
    else
        time.milliseconds += *rest;
    return text.empty();
}

std::optional<WrittenTime> ParseClockTime(std::string_view text) {
    const auto hours = TakeNumber(text);
    if (!hours || !Take(text, ':'))
        return std::nullopt;
    const auto minutes = TakeNumber(text);
    if (!minutes || *minutes > 59 || !Take(text, ':'))
        return std::nullopt;
    const auto seconds = TakeNumber(text);
    if (!seconds || *seconds > 59)
        return std::nullopt;
    WrittenTime time{*hours * hour + *minutes * minute + *seconds * second};
    return TakeRest(text, time) ? InRange(time) : std::nullopt;
}

} // namespace

bool IsBefore(const WrittenTime& left, const WrittenTime& right) {
    return std::tie(left.milliseconds, left.frames) < std::tie(right.milliseconds, right.frames);
}

std::optional<WrittenTime> ParseTime(std::string_view text) {
    return text.find(':') == std::string_view::npos ? ParseOffsetTime(text) : ParseClockTime(text);
}

std::optional<std::int32_t> ParseInteger(std::string_view text) {
    std::int32_t value = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

std::string FormatTime(std::optional<MediaTime> time) {
    if (!time)
        return "-";
    const MediaTime distance = *time < 0 ? -*time : *time;
    char text[40]; // hours have 13 digits at most
    char* const end =
        fmt::format_to(text, FMT_COMPILE("{}{:02}:{:02}:{:02}.{:03}"), *time < 0 ? "-" : "", distance / hour,
                       distance / minute % 60, distance / second % 60, distance % second);
    return {text, end};
}

std::string TimeInFileName(std::optional<MediaTime> time) {
    std::string name = time ? FormatTime(time) : "unknown";
    std::replace(name.begin(), name.end(), ':', '-');
    return name;
}

} // namespace xttml
