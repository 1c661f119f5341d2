// What holds of every display item and of every answer to a query, whatever the document was.
#ifndef XTTML_FUZZ_ITEM_INVARIANTS_H
#define XTTML_FUZZ_ITEM_INVARIANTS_H

#include "parser/display_item.h"

#include <functional>
#include <string>
#include <vector>

void RequireSoundTextItem(const DisplayItem& item);
/// @param blockSize the bytes of the block that the item was made from
void RequireSoundImageItem(const DisplayItem& item, std::size_t blockSize);

/// The position of the first item on screen at a time, else of the first to begin later, else the size.
std::size_t FindByWalking(const std::vector<DisplayItem*>& items, std::uint32_t time);
/// Requires the four slots to hold the item at `first` and those after it with its times.
void RequireSlots(const std::vector<DisplayItem*>& items, std::size_t first, DisplayItem* const* slots);
/// Runs `combine` on the item at `current` and requires that it merges what stands after it with its times.
void RequireCombines(const std::vector<DisplayItem*>& items, std::size_t current,
                     const std::function<DisplayItem*()>& combine);

/// All that an item says, as one text, its times counted from `origin` ms.
std::string Text(const DisplayItem& item, std::int32_t origin = 0);

#endif
