// What is on screen, asked the way a player asks.
#ifndef XTTML_TOOLS_XTTML_SCREEN_H
#define XTTML_TOOLS_XTTML_SCREEN_H

#include "api/x_ttml.h"

#include <array>
#include <cstdint>

namespace xttml {

/// The library's answer for one time; the items are the parser's.
struct Screen {
    /// What is on screen, null after the last.
    std::array<DisplayItem*, X_TTML_DISPLAY_ITEM_SLOTS> items{};
    /// When nothing is on screen: the item that the library announces, in sequence order; null: none comes.
    DisplayItem* next = nullptr;

    bool Empty() const { return items.front() == nullptr; }
};

/// What is on screen at a time of 0 ms or more.
Screen LookAt(x_ttml_handle parser, std::int32_t time);

} // namespace xttml

#endif
