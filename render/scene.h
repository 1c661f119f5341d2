// What is to be seen at a moment, as values in px of the target: nothing in it refers to an item, so that two
// moments are compared by what they show.
#ifndef XTTML_RENDER_SCENE_H
#define XTTML_RENDER_SCENE_H

#include "render/geometry.h"
#include "render/picture.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>
#include <x_ttml_items.h>

namespace xttml::render {

/// A colour, not multiplied by its alpha.
struct Color {
    std::uint8_t red = 0;   ///< 0 to 255
    std::uint8_t green = 0; ///< 0 to 255
    std::uint8_t blue = 0;  ///< 0 to 255
    std::uint8_t alpha = 0; ///< 0: transparent, 255: opaque
};

/// How a piece of text looks.
struct Look {
    double fontSize = 0;         ///< px
    double lineHeight = 0;       ///< px; 0: the font's own
    std::int32_t isBold = 0;     ///< 1: bold
    std::int32_t isItalic = 0;   ///< 1: italic
    std::int32_t isHidden = 0;   ///< 1: takes its room, but neither text nor background is seen
    std::int32_t decoration = 0; ///< X_TTML_TEXT_DECORATION_...
    Color color;                 ///< of the text
    Color background;            ///< behind the text
};

/// A piece of a paragraph with one look.
struct StyledPiece {
    std::size_t end =
        0;     ///< where it ends in the paragraph's text, in bytes; it begins where the one before ends
    Look look; ///< its look
};

/// The text of an item.
struct Paragraph {
    std::string text;                ///< UTF-8; lines are separated by U+2028
    std::vector<StyledPiece> pieces; ///< in the order of the text, all of it
    Look look;                       ///< of lines without text
    std::int32_t textAlign = 0;      ///< X_TTML_TEXT_ALIGN_...
};

/// Paragraphs one below the other in an area, which clips them.
struct TextBlock {
    Box area;                          ///< px
    std::int32_t displayAlign = 0;     ///< X_TTML_DISPLAY_ALIGN_...
    std::vector<Paragraph> paragraphs; ///< from top to bottom
};

/// A box of one colour: the background of a region.
struct Fill {
    Box area;    ///< px
    Color color; ///< its colour
};

/// A picture scaled into a box.
struct PlacedPicture {
    Box box;                                ///< px; it may reach out of the area
    Box area;                               ///< what of it is seen
    std::shared_ptr<const Picture> picture; ///< decoded
};

/// Something to paint.
using Layer = std::variant<Fill, PlacedPicture, TextBlock>;
/// What is to be painted, one above the other.
using Scene = std::vector<Layer>;

/// @{
/// Whether two values show the same.
bool operator==(const Color& a, const Color& b);
bool operator==(const Look& a, const Look& b);
bool operator==(const StyledPiece& a, const StyledPiece& b);
bool operator==(const Paragraph& a, const Paragraph& b);
bool operator==(const TextBlock& a, const TextBlock& b);
bool operator==(const Fill& a, const Fill& b);
bool operator==(const PlacedPicture& a, const PlacedPicture& b);
/// @}

} // namespace xttml::render

#endif
