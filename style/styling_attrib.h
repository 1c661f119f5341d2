// The styling record: all that the library has worked out about how a piece of timed content is to be
// shown. Display items, text runs and the entries of the style and region tables carry one; a player reads
// its fields directly. Values only: a copy shares nothing with its source.
#ifndef XTTML_STYLE_STYLING_ATTRIB_H
#define XTTML_STYLE_STYLING_ATTRIB_H

#include "runtime/export.h"

#include <cstdint>
#include <string>

/// Where the lines of a block stand in their area (TTML 1.0, 8.2.6 tts:displayAlign).
enum display_align_e : std::int32_t {
    DISPLAY_ALIGN_BEFORE = 0, ///< "before"; also every unknown keyword
    DISPLAY_ALIGN_CENTER = 1, ///< "center"
    DISPLAY_ALIGN_AFTER = 2   ///< "after"
};

/// How lines are aligned (TTML 1.0, 8.2.18 tts:textAlign).
enum text_align_e : std::int32_t {
    TEXT_ALIGN_LEFT = 0,   ///< "left"; also where a document says nothing
    TEXT_ALIGN_CENTER = 1, ///< "center"
    TEXT_ALIGN_RIGHT = 2,  ///< "right"
    TEXT_ALIGN_START = 3,  ///< "start"; also every unknown keyword
    TEXT_ALIGN_END = 4     ///< "end"
};

/// One decoration keyword (TTML 1.0, 8.2.19 tts:textDecoration). A list of keywords counts as unknown.
enum text_decoration_e : std::int32_t {
    TEXT_DECORATION_NONE = 0,            ///< "none"; also every unknown text
    TEXT_DECORATION_UNDERLINE = 1,       ///< "underline"
    TEXT_DECORATION_NO_UNDERLINE = 2,    ///< "noUnderline"
    TEXT_DECORATION_LINE_THROUGH = 3,    ///< "lineThrough"
    TEXT_DECORATION_NO_LINE_THROUGH = 4, ///< "noLineThrough"
    TEXT_DECORATION_OVERLINE = 5,        ///< "overline"
    TEXT_DECORATION_NO_OVERLINE = 6      ///< "noOverline"
};

/// A pair of words that the library carries but never reads.
struct ReservedPair {
    std::uint32_t uFirst = 0;  ///< not used by the library
    std::uint32_t uSecond = 0; ///< not used by the library
};

/// The resolved styling of a piece of content. Lengths are whole pixels, truncated. The order and widths of
/// the fields are part of the interface; the reserved fields hold their places and travel with every copy.
class StylingAttrib {
public:
    /// Every field as written beside it below.
    StylingAttrib() = default;
    /// @{
    /// Copies every field, reserved fields and flags included. There is no move: a source keeps what it
    /// holds.
    StylingAttrib(const StylingAttrib&) = default;
    StylingAttrib& operator=(const StylingAttrib&) = default;
    /// @}
    ~StylingAttrib() = default;

    /// tts:backgroundColor exactly as the document wrote it; rMapColor() turns it into numbers.
    std::string strBackgroundColor = "transparent";
    /// tts:color exactly as the document wrote it; rMapColor() turns it into numbers.
    std::string strColor = "#FFFFFFFF";
    std::int32_t iReserved1 = 0;                          ///< not used by the library
    std::int32_t iReserved2 = 0;                          ///< not used by the library
    display_align_e eDisplayAlign = DISPLAY_ALIGN_BEFORE; ///< tts:displayAlign
    std::uint32_t uExtentWidth = 0;                       ///< width of the area, px
    std::uint32_t uExtentHeight = 0;                      ///< height of the area, px
    std::int32_t iReserved3 = 0;                          ///< not used by the library
    std::uint32_t uFontSize = 0;                          ///< font size, px; 0: not known
    std::int32_t iFontStyle = 0;                          ///< 1: italic, else 0
    std::int32_t iFontWeight = 0;                         ///< 1: bold, else 0
    std::uint32_t uLineHeight = 0;                        ///< line height, px; 0: not known
    std::string strReserved1 = "1.0";                     ///< not used by the library
    std::uint32_t uOriginX = 0;                ///< distance of the area's left edge from the root's, px
    std::uint32_t uOriginY = 0;                ///< distance of the area's top edge from the root's, px
    std::uint32_t uReserved4 = 0;              ///< not used by the library
    ReservedPair aReservedPairs[4];            ///< not used by the library
    std::int32_t iReserved5 = 0;               ///< not used by the library
    text_align_e eTextAlign = TEXT_ALIGN_LEFT; ///< tts:textAlign
    text_decoration_e eTextDecoration = TEXT_DECORATION_NONE; ///< tts:textDecoration
    std::string strReserved2;                                 ///< not used by the library
    std::uint32_t uReserved6 = 0;                             ///< not used by the library
    std::int32_t iVisibility = 0;                             ///< 1: hidden, else 0
    std::string strReserved3;                                 ///< not used by the library
    std::string strReserved4;                                 ///< not used by the library
    std::string strReserved5;                                 ///< not used by the library
    bool fgColorSet = false;                                  ///< a style element gave tts:color
    bool fgFontSizeSet = false;                               ///< a style element gave tts:fontSize
    bool fgFontWeightSet = false;                             ///< a style element gave tts:fontWeight
    bool fgFontStyleSet = false;                              ///< a style element gave tts:fontStyle
    bool fgLineHeightSet = false;                             ///< a style element gave tts:lineHeight
    bool fgReserved1 = false;                                 ///< not used by the library
    bool fgTextAlignSet = false;                              ///< a style element gave tts:textAlign
    bool fgReserved2 = false;                                 ///< not used by the library
    bool fgTextDecorationSet = false;                         ///< a style element gave tts:textDecoration
    bool fgVisibilitySet = false;                             ///< a style element gave tts:visibility
    bool fgDisplayAlignSet = false;                           ///< a style element gave tts:displayAlign
};

/// An entry of the style or region table.
class StylingAttribGroup {
public:
    /// No identifier and a default record.
    StylingAttribGroup() = default;
    /// @{
    /// Copies both fields; there is no move.
    StylingAttribGroup(const StylingAttribGroup&) = default;
    StylingAttribGroup& operator=(const StylingAttribGroup&) = default;
    /// @}
    ~StylingAttribGroup() = default;

    std::string strId;    ///< the element's xml:id; empty when it has none
    StylingAttrib attrib; ///< the values read from the element
};

#endif
