// The reading of colours behind style/color.h, for callers that can neither change the text nor allocate.
#ifndef XTTML_STYLE_COLOR_READING_H
#define XTTML_STYLE_COLOR_READING_H

#include "style/color.h"

#include <string_view>

/// What rMapColor() makes of a text; opaque white for what is no colour.
RgbaColor rReadColor(std::string_view strText) noexcept;

#endif
