// How TTML styling attributes become fields of the styling record: written once and used for style, region,
// paragraph, span and division. Where these differ, the difference is a row of ReadingRules.
#ifndef XTTML_STYLE_ATTRIBUTE_READING_H
#define XTTML_STYLE_ATTRIBUTE_READING_H

#include "style/keywords.h"
#include "style/styling_attrib.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

/// A width and a height in px.
struct Extent {
    std::uint32_t uWidth = 0;
    std::uint32_t uHeight = 0;
};

/// What a length that is not in pixels makes of its field.
enum class LengthOutcome {
    ZERO,
    UNCHANGED,
    PERCENTAGE ///< the number counts as a percentage of the font size
};

struct LengthRule {
    LengthOutcome ePercent; ///< for a length in %
    LengthOutcome eOther;   ///< for any other unit, and for no length at all
};

/// What a pair of lengths that is neither in px nor in % makes of its fields.
enum class PairOutcome { ZERO, UNCHANGED };

/// How the attributes of one kind of element are read.
struct ReadingRules {
    LengthRule fontSize;   ///< percentages are of the font size so far
    LengthRule lineHeight; ///< percentages are of the font size just read
    bool fgBlock;          ///< reads displayAlign, lineHeight and textAlign, too
    bool fgMarkSet;        ///< sets the flags of the attributes that are present
};

inline constexpr LengthRule pixelsOnly = {LengthOutcome::ZERO, LengthOutcome::ZERO};
inline constexpr LengthRule pixelsOrPercent = {LengthOutcome::PERCENTAGE, LengthOutcome::ZERO};
inline constexpr LengthRule anyAsPercent = {LengthOutcome::PERCENTAGE, LengthOutcome::PERCENTAGE};
inline constexpr LengthRule elseUnchanged = {LengthOutcome::PERCENTAGE, LengthOutcome::UNCHANGED};

//                                              font size        line height     block  flags
inline constexpr ReadingRules styleRules = {pixelsOnly, anyAsPercent, true, true};
inline constexpr ReadingRules regionRules = {pixelsOnly, pixelsOrPercent, true, false};
inline constexpr ReadingRules paragraphRules = {pixelsOrPercent, pixelsOrPercent, true, false};
inline constexpr ReadingRules spanRules = {elseUnchanged, elseUnchanged, false, false};

/// A length in whole pixels; writes what fgGetLength() writes.
/// @param uCurrent the field as it is
/// @param uFontSize what a percentage is of, in px
std::uint32_t uReadLength(const std::string& strText, const LengthRule& rule, std::uint32_t uCurrent,
                          std::uint32_t uFontSize);

/// A pair of lengths in whole pixels.
/// @param base what percentages are of
void vReadPair(const std::string& strText, PairOutcome eOther, const Extent& base, std::uint32_t& uFirst,
               std::uint32_t& uSecond);

/// Stores the value of an attribute, when the element carries it, and tells whether it does.
inline bool fgReadText(std::optional<std::string>&& strText, std::string& strField) {
    if (strText)
        strField = std::move(*strText);
    return strText.has_value();
}

template <class Field>
bool fgReadKeyword(const std::optional<std::string>& strText, Field (*convert)(const std::string&),
                   Field& field) {
    if (strText)
        field = convert(*strText);
    return strText.has_value();
}

inline bool fgReadLength(const std::optional<std::string>& strText, const LengthRule& rule,
                         const std::uint32_t& uFontSize, std::uint32_t& uField) {
    if (strText)
        uField = uReadLength(*strText, rule, uField, uFontSize);
    return strText.has_value();
}

/// Reads tts:extent and tts:origin of a region, paragraph or division over the values of the record.
/// @param base what percentages are of
template <class Element>
void vReadGeometry(const Element& element, PairOutcome eOther, const Extent& base, StylingAttrib& attrib) {
    const auto [strExtent, strOrigin] = values(element.extent, element.origin);
    if (strExtent)
        vReadPair(*strExtent, eOther, base, attrib.uExtentWidth, attrib.uExtentHeight);
    if (strOrigin)
        vReadPair(*strOrigin, eOther, base, attrib.uOriginX, attrib.uOriginY);
}

/// Reads the other tts: attributes of a style, region, paragraph or span over the values of the record. The
/// font size comes before the line height, whatever order the document has.
template <class Element>
void vReadStyling(const Element& element, const ReadingRules& rules, StylingAttrib& attrib) {
    auto [strBackground, strColor, strDisplayAlign, strFontSize, strFontStyle, strFontWeight, strLineHeight,
          strTextAlign, strDecoration, strVisibility] =
        values(element.backgroundColor, element.color, element.displayAlign, element.fontSize,
               element.fontStyle, element.fontWeight, element.lineHeight, element.textAlign,
               element.textDecoration, element.visibility);
    StylingAttrib& a = attrib;
    const auto vMark = [&rules](bool fgPresent, bool& fgFlag) {
        if (rules.fgMarkSet)
            fgFlag = fgPresent;
    };
    fgReadText(std::move(strBackground), a.strBackgroundColor);
    vMark(fgReadText(std::move(strColor), a.strColor), a.fgColorSet);
    if (rules.fgBlock)
        vMark(fgReadKeyword(strDisplayAlign, eDisplayAlignFromKeyword, a.eDisplayAlign), a.fgDisplayAlignSet);
    vMark(fgReadLength(strFontSize, rules.fontSize, a.uFontSize, a.uFontSize), a.fgFontSizeSet);
    vMark(fgReadKeyword(strFontStyle, iFontStyleFromKeyword, a.iFontStyle), a.fgFontStyleSet);
    vMark(fgReadKeyword(strFontWeight, iFontWeightFromKeyword, a.iFontWeight), a.fgFontWeightSet);
    if (rules.fgBlock) {
        vMark(fgReadLength(strLineHeight, rules.lineHeight, a.uFontSize, a.uLineHeight), a.fgLineHeightSet);
        vMark(fgReadKeyword(strTextAlign, eTextAlignFromKeyword, a.eTextAlign), a.fgTextAlignSet);
    }
    vMark(fgReadKeyword(strDecoration, eTextDecorationFromKeyword, a.eTextDecoration), a.fgTextDecorationSet);
    vMark(fgReadKeyword(strVisibility, iVisibilityFromKeyword, a.iVisibility), a.fgVisibilitySet);
}

#endif
