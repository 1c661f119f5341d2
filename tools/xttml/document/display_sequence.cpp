#include "tools/xttml/document/display_sequence.h"

#include "tools/xttml/document/unusable_file.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace xttml {

namespace {

constexpr std::int32_t unknownTime = -1;

/// The library's reason without the place that it begins with where there is one.
std::string WithoutPlace(std::string_view reason, bool hasPlace) {
    return std::string(hasPlace ? reason.substr(reason.find(": ") + 2) : reason);
}

} // namespace

DisplaySequence::DisplaySequence(const Source& source, const ImageBlock& images, MediaTime offset)
    : images_(images), offset_(offset), parser_(render::MakeParser()) {
    const x_ttml_handle parser = parser_.get();
    x_ttml_set_untrusted(parser, !source.IsTrusted());
    if (!images.Empty())
        Require(x_ttml_try_set_image_data(parser, images.Bytes().data(),
                                          static_cast<std::int32_t>(images.Bytes().size())),
                source);
    Load(source);
    const auto generate = images.Empty() ? x_ttml_try_generate_text : x_ttml_try_generate_images;
    Require(generate(parser, 0), source);
    for (std::uint32_t i = 0; i < x_ttml_get_item_count(parser); ++i)
        items_.push_back(x_ttml_get_item(parser, i));
    language_ = render::ReadLanguage(parser);
}

DocumentModel DisplaySequence::Model() const {
    return DocumentModel(static_cast<xercesc::DOMNode*>(x_ttml_get_document(parser_.get())));
}

void DisplaySequence::Require(int status, const Source& source) const {
    if (status == X_TTML_OK)
        return;
    std::uint32_t line = 0;
    std::uint32_t column = 0;
    const bool hasPlace = x_ttml_get_reason_position(parser_.get(), &line, &column) != 0;
    const std::string reason = WithoutPlace(x_ttml_get_reason(parser_.get()), hasPlace);
    throw UnusableFile(source.Name(), line, column, reason + (status == X_TTML_REFUSED ? refusalRemedy : ""));
}

void DisplaySequence::Load(const Source& source) {
    const x_ttml_handle parser = parser_.get();
    if (source.Path().empty()) {
        Require(x_ttml_try_load_from_data(parser, source.Bytes().data(),
                                          static_cast<std::uint32_t>(source.Bytes().size())),
                source);
        return;
    }
    const int status = x_ttml_try_load_from_file(parser, source.Path().c_str());
    x_ttml_uninit_xerces(); // a load from a file initialises the XML library once more
    Require(status, source);
}

std::optional<std::int32_t> DisplaySequence::DocumentTime(MediaTime time) const {
    const MediaTime documentTime = time - offset_;
    if (documentTime < 0 || documentTime > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<std::int32_t>(documentTime);
}

std::optional<MediaTime> DisplaySequence::UserTime(std::int32_t time) const {
    return time == unknownTime ? std::nullopt : std::optional(time + offset_);
}

TimeSpan DisplaySequence::SpanOf(const DisplayItem& item) const {
    return {UserTime(x_ttml_item_get_begin(&item)), UserTime(x_ttml_item_get_end(&item))};
}

TimeSpan DisplaySequence::WholeSpan() const {
    if (items_.empty())
        return {};
    std::int32_t start = 0;
    std::int32_t end = 0;
    x_ttml_get_document_time(parser_.get(), &start, &end);
    return {UserTime(start), UserTime(end)};
}

PixelSize DisplaySequence::RootContainer() const {
    std::int32_t width = 0;
    std::int32_t height = 0;
    x_ttml_get_tt_extent(parser_.get(), &width, &height);
    return {static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height)};
}

ItemList DisplaySequence::OnScreen(MediaTime time) const {
    const std::optional<std::int32_t> asked = DocumentTime(time);
    if (!asked)
        return {};
    ItemList found(X_TTML_DISPLAY_ITEM_SLOTS);
    const auto ask = [&] {
        return x_ttml_get_items_on_screen(parser_.get(), found.data(),
                                          static_cast<std::uint32_t>(found.size()), *asked);
    };
    const std::uint32_t count = ask();
    const bool allFit = count <= found.size();
    found.resize(count);
    if (!allFit)
        ask();
    return found;
}

bool DisplaySequence::IsOnScreen(const DisplayItem& item, MediaTime time) const {
    const std::optional<std::int32_t> asked = DocumentTime(time);
    return asked && item.fgCheckTimeInfo(*asked);
}

std::optional<Appearance> DisplaySequence::AppearanceOf(const DisplayItem& item) const {
    const std::int32_t first = std::max(x_ttml_item_get_begin(&item), 0);
    const std::int32_t last = x_ttml_item_get_end(&item);
    if (last < first)
        return std::nullopt;
    const bool stays = last == std::numeric_limits<std::int32_t>::max();
    return Appearance{first + offset_, stays ? std::nullopt : std::optional(last + 1 + offset_)};
}

ItemList DisplaySequence::PlainAnswer(MediaTime time) const {
    const std::optional<std::int32_t> asked = DocumentTime(std::max(time, offset_));
    if (!asked)
        return {};
    ItemList found(X_TTML_DISPLAY_ITEM_SLOTS);
    x_ttml_get_display_item_array_by_time(parser_.get(), found.data(), static_cast<std::uint32_t>(*asked));
    found.erase(std::find(found.begin(), found.end(), nullptr), found.end());
    return found;
}

std::optional<MediaTime> DisplaySequence::NextChange(MediaTime time) const {
    if (time < offset_ && !OnScreen(offset_).empty())
        return offset_;
    const std::optional<std::int32_t> asked = DocumentTime(std::max(time, offset_));
    const std::int64_t next = asked ? x_ttml_get_next_change(parser_.get(), *asked) : X_TTML_NEVER;
    return next == X_TTML_NEVER ? std::nullopt : std::optional(next + offset_);
}

TextItem* DisplaySequence::Combine(MediaTime time) const {
    const std::optional<std::int32_t> asked = DocumentTime(time);
    if (!asked)
        return nullptr;
    const DisplayItem* const first =
        x_ttml_get_display_item_by_time(parser_.get(), static_cast<std::uint32_t>(*asked));
    if (!first || !IsOnScreen(*first, time))
        return nullptr;
    return dynamic_cast<TextItem*>(x_ttml_combine_same_time_item(parser_.get()));
}

} // namespace xttml
