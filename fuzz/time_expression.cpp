// Any text as a time expression, and any time written as one.
#include "fuzz/choices.h"
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "parser/ttml_parser.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <vector>

namespace {

constexpr std::int64_t INVALID = -1;
constexpr std::int64_t TOO_LARGE = std::int64_t{1} << 31;

/// Digits alone; nothing when another character is among them. Held at a bound that no time reaches.
std::optional<std::int64_t> ReadDigits(const std::string& text) {
    std::int64_t value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return std::nullopt;
        value = std::min(value * 10 + (c - '0'), TOO_LARGE);
    }
    return value < TOO_LARGE ? std::optional<std::int64_t>(value) : std::nullopt;
}

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> fields(1);
    for (const char c : text) {
        if (c == separator)
            fields.emplace_back();
        else
            fields.back() += c;
    }
    return fields;
}

/// What a clock time means, worked out in wide integers from its fields.
std::int64_t ClockTime(const std::string& text, std::int32_t frameRate) {
    std::vector<std::string> fields = Split(text, ':');
    std::string fraction;
    const std::size_t point = fields.back().find('.');
    if (point != std::string::npos) {
        fraction = fields.back().substr(point + 1, 3);
        fields.back().resize(point);
    }
    const auto hours = ReadDigits(fields[0]);
    const auto minutes = ReadDigits(fields[1]);
    const auto seconds = ReadDigits(fields[2]);
    const auto frames = fields.size() == 4 ? ReadDigits(fields[3]) : 0;
    const auto thousandths = ReadDigits(fraction);
    if (!hours || !minutes || !seconds || !frames || !thousandths || *minutes > 59 || *seconds > 59)
        return INVALID;
    std::int64_t milliseconds = 0;
    if (fields.size() == 4) {
        if (*frames >= frameRate)
            return INVALID;
        milliseconds = (1000 * *frames + *thousandths) / frameRate;
    } else {
        fraction.resize(3, '0');
        milliseconds = *ReadDigits(fraction);
    }
    const std::int64_t time = ((*hours * 60 + *minutes) * 60 + *seconds) * 1000 + milliseconds;
    return time < TOO_LARGE ? time : INVALID;
}

void RequireReadsBack(std::int32_t time) {
    char text[64];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d.%03d", time / 3600000, time / 60000 % 60,
                  time / 1000 % 60, time % 1000);
    Require(TtmlParser::iGetTimeFromString(text, 0) == time, "a clock time reads back");
    const std::int32_t tenthOfMillion = time % 10000000; // what single precision holds
    std::snprintf(text, sizeof text, "%dms", tenthOfMillion);
    Require(TtmlParser::iGetTimeFromString(text, 0) == tenthOfMillion, "an offset time reads back");
    std::snprintf(text, sizeof text, "%dt", time);
    Require(TtmlParser::iGetTimeFromString(text, 0, 1000) == time, "a time in ticks reads back");
}

void RequireTime(const std::string& text, std::int32_t frameRate, double tickRate) {
    const std::int32_t time = TtmlParser::iGetTimeFromString(text, frameRate, tickRate);
    Require(time >= INVALID, "a time is -1 or more");
    const auto colons = std::count(text.begin(), text.end(), ':');
    if (colons == 2 || colons == 3)
        Require(time == ClockTime(text, frameRate), "a clock time");
    else if (colons > 0)
        Require(time == 0, "neither a clock time nor an offset time");
    else if (TtmlParser::eGetOffsetTimeMetric(text) == OFFSET_METRIC_NONE)
        Require(time == INVALID, "a time has a metric");
    else
        Require(time == TtmlParser::iGetTimeFromString(text + " a", frameRate, tickRate),
                "what follows the metric does not count");
    Require(text.empty() || TtmlParser::iGetTimeFromString(" " + text, frameRate, tickRate) <= 0,
            "no space before a time");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    constexpr double tickRates[] = {0, 1, 25, 1e-300, 1e300, 90000, 10000000, -1};
    Choices choices(bytes, size);
    const std::int32_t frameRate = choices.Once(4) ? choices.SignedNumber() : choices.Byte();
    const double tickRate = choices.OneOf(tickRates);
    RequireReadsBack(choices.SignedNumber() & INT32_MAX);
    std::string text = choices.Rest();
    RequireTime(text, frameRate, tickRate);
    const std::string trimmed = TtmlParser::rTrim(text);
    Require(text == trimmed && TtmlParser::rTrim(text) == trimmed, "trimming trims once");
    return 0;
}
