// Where a drawing is not transparent.
#ifndef XTTML_PLAYERS_GSTREAMER_INK_H
#define XTTML_PLAYERS_GSTREAMER_INK_H

#include <cstdint>
#include <gst/video/video.h>
#include <vector>

namespace xttml::gstreamer {

/// Bands of rows with nothing but free rows between, each as wide as what is in it: what lies at the top and
/// at the bottom of a frame costs nothing for all that lies between.
/// @param pixels rows of 32-bit pixels of which a transparent one is 0
/// @param rowPixels how many pixels a row has
/// @param area where to look, inside the rows
std::vector<GstVideoRectangle> InkBands(const std::uint32_t* pixels, std::int32_t rowPixels,
                                        const GstVideoRectangle& area);

} // namespace xttml::gstreamer

#endif
