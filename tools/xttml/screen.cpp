#include "tools/xttml/screen.h"

namespace xttml {

Screen LookAt(x_ttml_handle parser, std::int32_t time) {
    Screen screen;
    x_ttml_get_display_item_array_by_time(parser, screen.items.data(), static_cast<std::uint32_t>(time));
    DisplayItem* const first = screen.items.front();
    if (first && !first->fgCheckTimeInfo(time)) {
        screen.items.fill(nullptr);
        screen.next = first;
    }
    return screen;
}

} // namespace xttml
