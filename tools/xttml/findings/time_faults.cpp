#include "tools/xttml/findings/time_faults.h"

#include <algorithm>
#include <cstdlib>
#include <fmt/format.h>
#include <string_view>
#include <vector>

namespace xttml {

namespace {

constexpr const char* digits = "0123456789";
constexpr std::size_t digitsOfFractionRead = 3;

bool IsNumber(std::string_view text) {
    return text.find_first_not_of(digits) == std::string_view::npos;
}

/// A number of any length; saturates.
unsigned long long NumberOf(std::string_view text) {
    return std::strtoull(std::string(text).c_str(), nullptr, 10);
}

/// The fields of a clock time; what stands behind a point in the last one is one more.
std::vector<std::string_view> FieldsOf(std::string_view time) {
    std::vector<std::string_view> fields;
    for (std::size_t colon = time.find(':'); colon != std::string_view::npos; colon = time.find(':')) {
        fields.push_back(time.substr(0, colon));
        time.remove_prefix(colon + 1);
    }
    const std::size_t point = std::min(time.find('.'), time.size());
    fields.push_back(time.substr(0, point));
    if (point < time.size())
        fields.push_back(time.substr(point + 1, digitsOfFractionRead));
    return fields;
}

std::string FaultOfClockTime(std::string_view time, bool hasFrames, std::int32_t frameRate) {
    const std::vector<std::string_view> fields = FieldsOf(time);
    for (const std::string_view field : fields) {
        if (!IsNumber(field))
            return fmt::format("'{}' is no number", field);
    }
    if (NumberOf(fields[1]) > 59 || NumberOf(fields[2]) > 59)
        return "minutes and seconds end at 59";
    if (hasFrames && NumberOf(fields[3]) >= static_cast<unsigned long long>(std::max(frameRate, 0)))
        return fmt::format("there are {} frames a second, counted from 0", frameRate);
    return "";
}

/// Of an offset time with a metric, the only one.
std::string FaultOfRate(char metric, std::int32_t frameRate) {
    if (metric == 'f' && frameRate <= 0)
        return "the document has no frame rate";
    return metric == 't' ? "the document has no tick rate, or the time is too large" : "";
}

std::string FaultOfOffsetTime(std::string_view time, std::int32_t frameRate) {
    const std::size_t unit = time.find_first_not_of("0123456789.");
    const std::string_view number = time.substr(0, unit);
    const std::string_view metric = time.substr(number.size());
    if (metric.empty())
        return "it has no unit: h, m, s, ms, f or t";
    const bool isMetric =
        metric == "ms" ||
        (metric.size() == 1 && std::string_view("hmsft").find(metric[0]) != std::string_view::npos);
    if (!isMetric || std::count(number.begin(), number.end(), '.') > 1)
        return "it is not one number with one unit";
    return FaultOfRate(metric[0], frameRate);
}

std::ptrdiff_t ColonsOf(std::string_view time) {
    return std::count(time.begin(), time.end(), ':');
}

} // namespace

bool HasColonsOfNoTime(const std::string& time) {
    const std::ptrdiff_t colons = ColonsOf(time);
    return colons == 1 || colons > 3;
}

std::string FaultOfTime(const std::string& time, std::int32_t frameRate) {
    if (time.empty())
        return "it is empty";
    if (HasColonsOfNoTime(time))
        return "a clock time has two or three colons";
    return ColonsOf(time) == 0 ? FaultOfOffsetTime(time, frameRate)
                               : FaultOfClockTime(time, ColonsOf(time) == 3, frameRate);
}

} // namespace xttml
