// Records, runs and items as short texts that a test compares: only what differs from the defaults shows.
#ifndef XTTML_TESTS_SUPPORT_DESCRIBE_H
#define XTTML_TESTS_SUPPORT_DESCRIBE_H

#include "style/styling_attrib.h"

#include <sstream>
#include <string>

inline std::string Describe(const StylingAttrib& attrib) {
    const StylingAttrib defaults;
    std::ostringstream out;
    const auto show = [&](const char* name, const auto& value, const auto& byDefault) {
        if (value != byDefault)
            out << ' ' << name << '=' << value;
    };
    show("bg", attrib.strBackgroundColor, defaults.strBackgroundColor);
    show("color", attrib.strColor, defaults.strColor);
    show("display", static_cast<int>(attrib.eDisplayAlign), 0);
    show("w", attrib.uExtentWidth, 0U);
    show("h", attrib.uExtentHeight, 0U);
    show("x", attrib.uOriginX, 0U);
    show("y", attrib.uOriginY, 0U);
    show("size", attrib.uFontSize, 0U);
    show("italic", attrib.iFontStyle, 0);
    show("bold", attrib.iFontWeight, 0);
    show("line", attrib.uLineHeight, 0U);
    show("align", static_cast<int>(attrib.eTextAlign), 0);
    show("decoration", static_cast<int>(attrib.eTextDecoration), 0);
    show("hidden", attrib.iVisibility, 0);
    std::string strFlags;
    const auto mark = [&](bool flag, char letter) { strFlags += flag ? std::string(1, letter) : ""; };
    mark(attrib.fgColorSet, 'c');
    mark(attrib.fgFontSizeSet, 's');
    mark(attrib.fgFontWeightSet, 'w');
    mark(attrib.fgFontStyleSet, 'i');
    mark(attrib.fgLineHeightSet, 'l');
    mark(attrib.fgTextAlignSet, 'a');
    mark(attrib.fgTextDecorationSet, 'd');
    mark(attrib.fgVisibilitySet, 'v');
    mark(attrib.fgDisplayAlignSet, 'b');
    show("set", strFlags, std::string());
    const std::string strText = out.str();
    return strText.empty() ? strText : strText.substr(1);
}

#endif
