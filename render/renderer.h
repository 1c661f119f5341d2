// Draws display items into pixels: the items that are on screen at a moment, as a viewer sees them.
//
//     xttml::render::Renderer renderer({1920, 1080}, {rootWidth, rootHeight});
//     ...
//     count = x_ttml_get_items_on_screen(parser, items, room, time);
//     if (renderer.Show(items, std::min(count, room)))
//         renderer.Draw({pixels, 1920, 1080, stride});
//
// Items are read with the functions of x_ttml_items.h and nothing else. What they ask for:
//
//  - The root container is scaled into the target as large as its proportions allow; bars beside it stay
//    free.
//  - An item's area is that of its styling, as far as it lies inside the root. A width or height of 0, which
//    is what a document that says nothing has, reaches to the root's edge; a picture has its own then.
//  - Paragraphs with the same area and tts:displayAlign stand one below the other, in the order of the items.
//  - A region's background fills its box, that of a text the place of its lines. A text whose background is
//    written as its region's has taken it over from there and is painted without.
//  - A font size of 0 is a fifteenth of the root's height. Letters are at least 1 px and at most as high as
//    the root. A line height of 0 is the font's own.
//  - The direction of a paragraph is that of its first strong character (Unicode UAX #9, P2 and P3).
//  - What overflows an area is clipped.
//
// Memory and time are bounded: of the items of one moment no more than 500 are drawn, with no more than 16
// KiB of text and with pictures, backgrounds and letters of no more than 32 times the target's area; a
// picture of more than 36 MiB is left out. Whatever is left out has a remark.
//
// Memory that runs out ends in std::bad_alloc, or GLib, which Pango is built on, ends the process. A renderer
// belongs to one thread at a time; different ones may be in different threads.
#ifndef XTTML_RENDER_RENDERER_H
#define XTTML_RENDER_RENDERER_H

#include "render/geometry.h"
#include "render/white_space.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>
#include <x_ttml_items.h>

namespace xttml::render {

/// Pixels that belong to the caller: rows from top to bottom, each pixel a 32-bit number in the machine's
/// byte order with alpha in the highest byte, then red, green and blue, multiplied by alpha.
struct Frame {
    std::uint8_t* pixels = nullptr; ///< the first row; aligned as 32-bit numbers are
    std::int32_t width = 0;         ///< px
    std::int32_t height = 0;        ///< px
    std::int32_t stride = 0;        ///< bytes from row to row, a multiple of 4
};

/// What becomes of the pixels that a frame has.
enum class Ground {
    CLEARED, ///< all are transparent before the drawing
    KEPT     ///< they are drawn over
};

/// What a document does not say.
struct Options {
    std::string fontFamily = "sans-serif";         ///< a family or a list of them, separated by commas
    std::string language;                          ///< of the text (BCP 47), as x_ttml_get_language() has it
    WhiteSpace whiteSpace = WhiteSpace::COLLAPSED; ///< what becomes of it
};

/// Something that is not drawn.
struct Remark {
    std::size_t item = 0; ///< which of the items that were shown, counted from 0
    std::string reason;   ///< why, for people, in English
};

/// The longest side of a target, in px.
inline constexpr std::int32_t longestSide = 16384;

/// Draws what is on screen.
class Renderer {
public:
    /// @param target the size of the frames; throws std::invalid_argument for a side that is not between 1
    ///        and longestSide
    /// @param root the root extent (x_ttml_get_tt_extent()); a side of 0 or below makes it the target's size
    explicit Renderer(Size target, Size root = {}, const Options& options = {});
    ~Renderer();
    Renderer(Renderer&& other) noexcept;            ///< leaves one that may only be destroyed or assigned to
    Renderer& operator=(Renderer&& other) noexcept; ///< likewise

    /// Takes the items that are on screen from now on. They are read before the call returns, and later ones
    /// are compared with them by what is seen: no item needs to live on, and items that look the same are no
    /// change.
    /// @param items in the order in which they are drawn; null ones are passed over
    /// @param count how many; 0: nothing is on screen, as at the start
    /// @return whether the picture is another one than before
    bool Show(const DisplayItem* const* items, std::size_t count);

    /// What of the items shown last is not drawn.
    const std::vector<Remark>& Remarks() const;

    /// Draws the items shown last, as often as it is called.
    /// @return whether they were drawn; false for a frame that is null, of another size than the target or
    ///         with an impossible stride
    bool Draw(const Frame& frame, Ground ground = Ground::CLEARED);

    /// Where Draw() may change pixels, on whole pixels; empty when there is nothing to see.
    Box Bounds() const;

    /// Where the root container stands in the target.
    Box RootArea() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace xttml::render

#endif
