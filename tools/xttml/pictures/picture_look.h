// How pictures are asked for.
#ifndef XTTML_TOOLS_XTTML_PICTURES_PICTURE_LOOK_H
#define XTTML_TOOLS_XTTML_PICTURES_PICTURE_LOOK_H

#include "render/geometry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <xttml/style/color.h>

namespace xttml {

/// The most pixels that a picture has: 256 MiB of them.
inline constexpr std::int64_t mostPixels = std::int64_t{64} << 20;

/// Whether a picture can have a size: no side below 1 px or above render::longestSide, and no more than
/// mostPixels.
bool IsPossible(render::Size size);

/// A size from "1280x720"; nothing for any other text and for a size that no picture can have.
std::optional<render::Size> ParsePictureSize(std::string_view text);

/// What lies below everything else.
struct Background {
    bool isCheckerboard = false; ///< grey squares; the colour counts for nothing then
    RgbaColor color = {0, 0, 0}; ///< a player's screen without video
};

/// A background from "checkerboard" or a colour as TTML writes it (TTML 1.0, 8.3.2), "transparent" among
/// them; nothing for any other text.
std::optional<Background> ParseBackground(std::string_view text);

/// How the screen is drawn.
struct PictureLook {
    std::optional<render::Size> size; ///< nothing: the frame's, else the root container's
    Background background;
    std::string frame;    ///< a PNG file that lies on the background; empty: none
    bool outline = false; ///< with the boxes of regions and the safe areas
};

} // namespace xttml

#endif
