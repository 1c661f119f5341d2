// Every item of a document on a few pictures.
#ifndef XTTML_TOOLS_XTTML_PICTURES_CONTACT_SHEET_H
#define XTTML_TOOLS_XTTML_PICTURES_CONTACT_SHEET_H

#include "render/geometry.h"
#include "render/text_painter.h"
#include "tools/xttml/output/progress.h"
#include "tools/xttml/pictures/bitmap.h"
#include "tools/xttml/pictures/screen_painter.h"

#include <cstddef>
#include <cstdint>

namespace xttml {

/// How screens stand in rows on sheets, each with a line of text below. All sheets but the last are full.
class SheetLayout {
public:
    /// Where a screen stands on its sheet.
    struct Place {
        std::int32_t left; ///< px
        std::int32_t top;  ///< px
    };

    /// @param screens how many there are
    /// @param columns above 0
    /// @param screen the size of one
    SheetLayout(std::size_t screens, std::size_t columns, render::Size screen);

    /// 0 without screens, and when not even one row fits into a picture.
    std::size_t Sheets() const;
    /// The number of the first screen of a sheet; of the one behind the last: how many screens there are.
    std::size_t First(std::size_t sheet) const;
    /// The size of a sheet.
    render::Size SizeOf(std::size_t sheet) const;
    Place PlaceOf(std::size_t screen) const;
    render::Size Screen() const { return screen_; }

private:
    std::int64_t Width() const;
    std::int64_t Height(std::size_t rows) const;

    std::size_t screens_;
    std::size_t columns_;
    render::Size screen_;
    std::size_t rows_ = 0; // of a full sheet
};

/// The size of a screen on a sheet when none is asked for: small, in the proportions of its natural size.
render::Size ThumbnailSize(render::Size natural);

/// Paints sheets.
class SheetPainter {
public:
    /// All outlive the painter.
    /// @param screens of the layout's size
    SheetPainter(const SheetLayout& layout, const DisplaySequence& sequence, ScreenPainter& screens)
        : layout_(layout), sequence_(sequence), screens_(screens), fonts_("sans-serif", "") {}

    /// Paints each item of a sheet as if it alone were on screen, with its number, its times and its marks.
    /// @param sheet counted from 0
    Bitmap Paint(std::size_t sheet, Progress& items);

private:
    void PaintItem(std::size_t number, Bitmap& sheet);

    const SheetLayout& layout_;
    const DisplaySequence& sequence_;
    ScreenPainter& screens_;
    render::TextPainter fonts_;
};

} // namespace xttml

#endif
