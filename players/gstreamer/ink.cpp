#include "players/gstreamer/ink.h"

#include <algorithm>
#include <cstddef>

namespace xttml::gstreamer {

namespace {

constexpr int mostFreeRows = 32; ///< inside a band

bool IsInk(std::uint32_t pixel) {
    return pixel != 0;
}

/// From the first pixel with ink of a row to the last one, and nothing when there is none.
GstVideoRectangle InkOfRow(const std::uint32_t* row, const GstVideoRectangle& area, int y) {
    const std::uint32_t* const begin = row + area.x;
    const std::uint32_t* const end = begin + area.w;
    const std::uint32_t* const first = std::find_if(begin, end, IsInk);
    if (first == end)
        return {};
    const auto last = std::find_if(std::make_reverse_iterator(end), std::make_reverse_iterator(first), IsInk);
    return {static_cast<int>(first - row), y, static_cast<int>(last.base() - first), 1};
}

void Include(GstVideoRectangle& band, const GstVideoRectangle& row) {
    const int right = std::max(band.x + band.w, row.x + row.w);
    band.x = std::min(band.x, row.x);
    band.w = right - band.x;
    band.h = row.y + row.h - band.y;
}

} // namespace

std::vector<GstVideoRectangle> InkBands(const std::uint32_t* pixels, std::int32_t rowPixels,
                                        const GstVideoRectangle& area) {
    std::vector<GstVideoRectangle> bands;
    for (int y = area.y; y < area.y + area.h; ++y) {
        const GstVideoRectangle row = InkOfRow(pixels + static_cast<std::ptrdiff_t>(y) * rowPixels, area, y);
        if (row.w == 0)
            continue;
        if (bands.empty() || y - (bands.back().y + bands.back().h) > mostFreeRows)
            bands.push_back(row);
        else
            Include(bands.back(), row);
    }
    return bands;
}

} // namespace xttml::gstreamer
