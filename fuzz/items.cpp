// Any bytes as a document, read through the C interface with rooms, indices and times that a careless player
// might pass.
#include "api/x_ttml_items.h"
#include "fuzz/choices.h"
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "runtime/utf8.h"
#include "style/color.h"

#include <cstring>
#include <memory>
#include <vector>

namespace {

using Writer = std::size_t (*)(const DisplayItem*, std::uint32_t, char*, std::size_t);

/// Requires of a function that writes a text: the whole text when there is room, whole characters otherwise,
/// and not a byte beyond the room.
void RequireText(Writer write, const DisplayItem* item, std::uint32_t run, std::size_t room) {
    const std::size_t length = write(item, run, nullptr, 5);
    std::vector<char> whole(length + 1, 'x');
    Require(write(item, run, whole.data(), whole.size()) == length && whole[length] == '\0',
            "a text has the length that was told");
    std::unique_ptr<char[]> part(new char[room]);
    Require(write(item, run, part.get(), room) == length, "the length does not depend on the room");
    if (room > 0) {
        const auto* const end = static_cast<const char*>(std::memchr(part.get(), '\0', room));
        Require(end != nullptr, "a text is terminated");
        const auto size = static_cast<std::size_t>(end - part.get());
        Require(size <= length && std::memcmp(part.get(), whole.data(), size) == 0,
                "a part is the beginning");
        Require((whole[size] & 0xC0) != 0x80, "no character is cut");
    }
}

std::size_t WriteItem(const DisplayItem* item, std::uint32_t, char* buffer, std::size_t room) {
    return x_ttml_item_get_text(item, buffer, room);
}

/// Requires of a record of any size that it is filled in as far as it goes and no further.
template <class Read>
void RequireRecord(Read&& read, const StylingAttrib* attrib, std::uint32_t size) {
    x_ttml_styling whole = {};
    whole.size = sizeof whole;
    Require(read(&whole) == (attrib != nullptr), "there is a record where there is styling");
    std::vector<unsigned char> record(std::max<std::size_t>(size, sizeof size));
    std::memcpy(record.data(), &size, sizeof size);
    const bool isFilled = read(reinterpret_cast<x_ttml_styling*>(record.data())) != 0;
    Require(isFilled == (attrib && size >= sizeof size), "a record of its own size alone is refused");
    if (!isFilled)
        return;
    whole.size = size;
    Require(std::memcmp(record.data(), &whole, std::min<std::size_t>(size, sizeof whole)) == 0,
            "a smaller record is the beginning of the whole one");
    std::string color = attrib->strColor;
    Require(whole.color.red == rMapColor(color).uRed && whole.is_hidden == attrib->iVisibility &&
                whole.extent_height == attrib->uExtentHeight,
            "a record says what the item says");
}

void RequireItem(const DisplayItem* item, Choices& choices) {
    const std::uint32_t runs = x_ttml_item_get_run_count(item);
    const std::uint32_t run = choices.Once(8) ? choices.Number() : choices.OneOf(1 + std::min(runs, 200U));
    const std::size_t room = choices.Byte();
    const std::uint32_t size = choices.OneOf(sizeof(x_ttml_styling) + 16);
    RequireText(WriteItem, item, 0, room);
    RequireText(x_ttml_run_get_text, item, run, room);
    std::size_t units = 1;
    Require((x_ttml_run_get_utf16(item, run, &units) != nullptr) == (units > 0), "there are units or none");
    Require(!x_ttml_run_is_line_break(item, run) || units == 1, "a line break is one unit");
    std::uint32_t bytes = 1;
    Require((x_ttml_item_get_image(item, &bytes) != nullptr) == (bytes > 0), "there is a picture or none");
    RequireRecord([item](auto* styling) { return x_ttml_item_get_styling(item, styling); },
                  item ? &item->styling : nullptr, size);
    RequireRecord([item](auto* styling) { return x_ttml_item_get_region_styling(item, styling); },
                  item ? item->pRegionAttrib : nullptr, size);
    RequireRecord([item](auto* styling) { return x_ttml_item_get_style_styling(item, styling); },
                  item ? item->pStyleAttrib : nullptr, size);
    x_ttml_styling styling = {};
    styling.size = sizeof styling;
    Require(x_ttml_run_get_styling(item, run, &styling) == (run < runs), "every run has a styling");
    Require(run < runs || !x_ttml_run_has_own_styling(item, run), "no run, no styling");
}

std::vector<const DisplayItem*> OnScreenByWalking(x_ttml_handle parser, std::int32_t time) {
    std::vector<const DisplayItem*> found;
    for (std::uint32_t i = 0; const DisplayItem* item = x_ttml_get_item(parser, i); ++i) {
        if (x_ttml_item_get_begin(item) <= time && time <= x_ttml_item_get_end(item))
            found.push_back(item);
    }
    return found;
}

void RequireScreen(x_ttml_handle parser, std::int32_t time, std::uint32_t room) {
    const auto expected = OnScreenByWalking(parser, time);
    std::vector<DisplayItem*> items(room);
    Require(x_ttml_get_items_on_screen(parser, items.data(), room, time) == expected.size(),
            "all that is on screen is counted");
    for (std::size_t i = 0; i < std::min<std::size_t>(room, expected.size()); ++i)
        Require(items[i] == expected[i], "it is given in the order of generation");
    const std::int64_t next = x_ttml_get_next_change(parser, time);
    Require(next > time, "the next change comes later");
    const auto last = next == X_TTML_NEVER ? INT32_MAX : static_cast<std::int32_t>(next - 1);
    Require(OnScreenByWalking(parser, last) == expected, "nothing changes before the next change");
    Require(next == X_TTML_NEVER || OnScreenByWalking(parser, static_cast<std::int32_t>(next)) != expected,
            "the next change is one");
}

void RequireReason(x_ttml_handle parser, int status) {
    Require((*x_ttml_get_reason(parser) == '\0') == (status == X_TTML_OK), "a failure has a reason");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Choices choices(bytes, std::min<std::size_t>(size, 64));
    const std::string document(bytes + std::min<std::size_t>(size, 64), bytes + size);
    x_ttml_handle parser = nullptr;
    Require(x_ttml_try_create_parser(&parser) == X_TTML_OK, "a parser is made");
    x_ttml_set_untrusted(parser, choices.Once(2));
    RequireReason(parser, x_ttml_try_load_from_data(parser, document.data(),
                                                    static_cast<std::uint32_t>(document.size())));
    RequireReason(parser, x_ttml_try_generate_text(parser, choices.Once(2) ? 0 : choices.SignedNumber()));
    RequireReason(parser, x_ttml_try_set_image_data(parser, "\x89PNG the only one",
                                                    static_cast<std::int32_t>(choices.OneOf(18))));
    RequireReason(parser, x_ttml_try_generate_images(parser, choices.SignedNumber()));
    const std::uint32_t count = x_ttml_get_item_count(parser);
    for (std::uint32_t i = 0; i <= std::min(count, 20U); ++i)
        RequireItem(x_ttml_get_item(parser, i), choices);
    for (int i = 0; i < 4; ++i) {
        const std::int32_t time = choices.Once(2) ? choices.SignedNumber() : choices.Byte() * 100;
        RequireScreen(parser, time, choices.OneOf(8));
    }
    x_ttml_destory_doc(parser);
    x_ttml_delete_parser(parser);
    return 0;
}
