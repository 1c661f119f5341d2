#include "fuzz/player.h"

#include "fuzz/invariant.h"
#include "fuzz/item_invariants.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::size_t ITEMS_TO_ASK_FOR = 40; // the plain walk is as long as the sequence

/// The times around those at which items come and go.
std::vector<std::uint32_t> TimesToAskFor(const std::vector<DisplayItem*>& items) {
    std::vector<std::uint32_t> times = {0, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
    for (std::size_t i = 0; i < std::min(items.size(), ITEMS_TO_ASK_FOR); ++i) {
        for (const std::int32_t time : {items[i]->iGetBeginTime(), items[i]->iGetEndTime()}) {
            const auto middle = static_cast<std::uint32_t>(time);
            times.insert(times.end(), {middle - 1, middle, middle + 1});
        }
    }
    return times;
}

} // namespace

Player::Player() : parser_(nullptr) {
    x_ttml_handle handle = nullptr;
    Require(x_ttml_create_new_parser(&handle) == X_TTML_OK && handle, "a parser is made");
    parser_ = static_cast<TtmlParser*>(handle);
}

Player::~Player() {
    x_ttml_destory_doc(parser_);
    x_ttml_delete_parser(parser_);
}

bool Player::Load(const std::string& document) {
    x_ttml_destory_doc(parser_);
    const int status =
        x_ttml_load_subtitle_from_data(parser_, document.data(), static_cast<std::uint32_t>(document.size()));
    Require(status == X_TTML_OK || status == X_TTML_UNUSABLE, "a load has a status");
    return status == X_TTML_OK;
}

void Player::SetImageBlock(const std::string& block) {
    x_ttml_set_document_buffer_info(parser_, block.data(), static_cast<std::int32_t>(block.size()));
    blockSize_ = block.size();
}

Player::Generation Player::GenerateText(std::int32_t offset) {
    const std::size_t before = Items().size();
    Generation generation = Generation::DONE;
    try {
        x_ttml_generate_text_display_item_sequence(parser_, offset);
        RequireDocumentTimes(before);
    } catch (const tessera::ConversionException&) {
        generation = Generation::BAD_ATTRIBUTE;
    }
    for (std::size_t i = before; i < Items().size(); ++i)
        RequireSoundTextItem(*Items()[i]);
    return generation;
}

Player::Generation Player::GenerateImages(std::int32_t offset) {
    const std::size_t before = Items().size();
    Generation generation = Generation::DONE;
    try {
        x_ttml_generate_image_display_item_sequence(parser_, offset);
        if (Items().size() > before)
            RequireDocumentTimes(0);
    } catch (const tessera::ConversionException&) {
        generation = Generation::BAD_ATTRIBUTE;
    } catch (const tessera::InvalidOperationException&) { // a division without begin or end
        generation = Generation::BAD_ATTRIBUTE;
    }
    Require(Items().size() == before || blockSize_ > 0, "images come out of a block");
    for (std::size_t i = before; i < Items().size(); ++i)
        RequireSoundImageItem(*Items()[i], blockSize_);
    return generation;
}

void Player::RequireDocumentTimes(std::size_t firstItem) const {
    if (firstItem == Items().size())
        return;
    std::uint32_t earliest = std::numeric_limits<std::uint32_t>::max();
    std::uint32_t latest = 0;
    for (std::size_t i = firstItem; i < Items().size(); ++i) {
        earliest = std::min(earliest, static_cast<std::uint32_t>(Items()[i]->iGetBeginTime()));
        latest = std::max(latest, static_cast<std::uint32_t>(Items()[i]->iGetEndTime()));
    }
    std::int32_t start = 0;
    std::int32_t end = 0;
    x_ttml_get_document_time(parser_, &start, &end);
    Require(start == static_cast<std::int32_t>(earliest), "the document starts with its earliest item");
    Require(end == static_cast<std::int32_t>(latest), "the document ends with its latest item");
}

void Player::RequireQueriesAgree() {
    const std::vector<std::uint32_t> times = TimesToAskFor(Items());
    for (const std::uint32_t time : times) {
        const std::size_t expected = FindByWalking(Items(), time);
        const DisplayItem* const item = x_ttml_get_display_item_by_time(parser_, time);
        Require(item == (expected < Items().size() ? Items()[expected] : nullptr), "the item at a time");
        DisplayItem* slots[X_TTML_DISPLAY_ITEM_SLOTS] = {};
        x_ttml_get_display_item_array_by_time(parser_, slots, time);
        RequireSlots(Items(), expected, slots);
    }
    for (const std::uint32_t time : times) {
        const std::size_t current = FindByWalking(Items(), time);
        x_ttml_get_display_item_by_time(parser_, time);
        RequireCombines(Items(), current < Items().size() ? current : 0,
                        [this] { return x_ttml_combine_same_time_item(parser_); });
    }
}
