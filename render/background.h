// The colour behind text.
#ifndef XTTML_RENDER_BACKGROUND_H
#define XTTML_RENDER_BACKGROUND_H

#include <x_ttml_items.h>

namespace xttml::render {

/// The background of a styling, all zero where there is none. What is no colour is none: the library's opaque
/// white, which is right for letters, would hide the picture behind them.
x_ttml_color BackgroundOf(const x_ttml_styling& styling);

} // namespace xttml::render

#endif
