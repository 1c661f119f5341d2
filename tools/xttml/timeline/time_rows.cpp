#include "tools/xttml/timeline/time_rows.h"

#include <iterator>

namespace xttml {

namespace {

constexpr MediaTime second = 1000;
constexpr MediaTime minute = 60 * second;
constexpr MediaTime hour = 60 * minute;
constexpr MediaTime mostRows = 60;

constexpr TimeScale scales[] = {
    {10 * second, second},   {20 * second, 2 * second}, {30 * second, 5 * second},
    {minute, 5 * second},    {2 * minute, 10 * second}, {5 * minute, 30 * second},
    {10 * minute, minute},   {30 * minute, 5 * minute}, {hour, 5 * minute},
    {2 * hour, 10 * minute}, {6 * hour, 30 * minute},   {12 * hour, hour},
    {24 * hour, 2 * hour},
};

/// The last multiple of a step that is not above a number.
MediaTime Floor(MediaTime number, MediaTime step) {
    const MediaTime rest = number % step;
    return number - (rest < 0 ? rest + step : rest);
}

MediaTime RowsFor(MediaTime begin, MediaTime end, MediaTime row) {
    return std::max<MediaTime>((end - Floor(begin, row) + row - 1) / row, 1);
}

/// The first scale with few enough rows, the last one for want of others.
const TimeScale& ScaleFor(MediaTime begin, MediaTime end) {
    const auto suits = [&](const TimeScale& scale) {
        return RowsFor(begin, end, scale.row) <= (scale.row < minute ? 1 : mostRows);
    };
    return *std::find_if(std::begin(scales), std::prev(std::end(scales)), suits);
}

} // namespace

TimeRows::TimeRows(MediaTime begin, MediaTime end)
    : scale_(ScaleFor(begin, end)), begin_(Floor(begin, scale_.row)),
      count_(static_cast<std::size_t>(RowsFor(begin, end, scale_.row))) {}

} // namespace xttml
