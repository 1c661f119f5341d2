#include "tools/xttml/output/json_output.h"

#include "tools/xttml/output/item_text.h"
#include "tools/xttml/output/styling_json.h"
#include "tools/xttml/text/text_encoding.h"

#include <algorithm>
#include <fmt/format.h>
#include <iterator>

namespace xttml {

namespace {

/// JSON with every control character in it as an escape of a string.
std::string EscapeControls(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t control = ControlAt(text, i);
        if (control == noControl) {
            result.push_back(text[i]);
            continue;
        }
        if (control == '\n')
            result += "\\n";
        else
            fmt::format_to(std::back_inserter(result), "\\u{:04x}", static_cast<std::uint32_t>(control));
        i += BytesOfControl(control) - 1;
    }
    return result;
}

Json ImageToJson(const ImageItem& item, const ImageBlock& images, Detail detail) {
    const std::optional<std::size_t> offset = images.OffsetOf(item);
    const std::optional<PixelSize> size = PixelSizeOf(DataOf(item));
    Json result = {{"bytes", item.iImageDataSize},
                   {"offset", offset ? Json(*offset) : Json()},
                   {"width", size ? Json(size->width) : Json()},
                   {"height", size ? Json(size->height) : Json()}};
    if (detail == Detail::FULL)
        result["uri"] = Utf8FromLatin1(item.GetImageURI());
    return result;
}

void AppendField(std::string& object, const char* name, std::string_view json) {
    object += object.back() == '{' ? "\"" : ",\"";
    object += name;
    object += "\":";
    object += json;
}

void AppendFlag(std::string& object, const char* name, bool value, Detail detail) {
    if (value || detail == Detail::FULL)
        AppendField(object, name, value ? "true" : "false");
}

/// What only a player that fills in and merges content has a use for.
void AppendContent(std::string& object, const TextItem& text) {
    AppendField(object, "combined", text.fgCombined ? "true" : "false");
    AppendField(object, "content", Quoted(Utf8FromUtf16({text.vecContent.data(), text.vecContent.size()})));
    AppendField(object, "plainContent", Quoted(Utf8FromLatin1(text.strContent)));
}

void AppendNames(std::string& object, const ItemOrigin& origin, Detail detail) {
    const auto append = [&](const char* name, const std::optional<std::string>& text) {
        if (text || detail == Detail::FULL)
            AppendField(object, name, text ? Quoted(*text) : "null");
    };
    append("id", origin.id);
    append("region", origin.region);
    append("style", origin.style);
}

template <class Things, class Text>
std::string ArrayOf(const Things& things, Text&& textOf) {
    std::string array = "[";
    for (const auto& thing : things) {
        array += array.size() == 1 ? "" : ",";
        array += textOf(thing);
    }
    return array + ']';
}

} // namespace

std::string JsonItems::StylingText(const StylingAttrib& styling) {
    const auto make = [this](const StylingAttrib& record) {
        return xttml::ToText(StylingToJson(record, detail_ == Detail::FULL));
    };
    // Records that are alike may differ in what else there is.
    return detail_ == Detail::FULL ? make(styling) : stylings_.Of(styling, make);
}

std::string JsonItems::DifferenceText(const StylingAttrib& run, const StylingAttrib& item) {
    const auto make = [&item](const StylingAttrib& record) {
        return xttml::ToText(DifferenceToJson(record, item));
    };
    const auto makeNone = [](const StylingAttrib&) { return KnownStylings<std::string>(); };
    return differences_.Of(item, makeNone).Of(run, make);
}

std::string JsonItems::RunText(const Sentence& run, const DisplayItem& item) {
    std::string object = "{";
    AppendField(object, "text", Quoted(Utf8FromUtf16({run.vecText.data(), run.vecText.size()})));
    AppendFlag(object, "lineBreak", run.fgLineBreak, detail_);
    if (detail_ == Detail::FULL)
        AppendField(object, "styling", run.pStylingAttrib ? StylingText(*run.pStylingAttrib) : "null");
    else if (run.pStylingAttrib && !AreAlike(*run.pStylingAttrib, item.styling))
        AppendField(object, "styling", DifferenceText(*run.pStylingAttrib, item.styling));
    return object + '}';
}

std::string JsonItems::RunsText(const DisplayItem& item) {
    return ArrayOf(Runs(item), [&](const Sentence* run) { return RunText(*run, item); });
}

std::string JsonItems::ToText(const DisplayItem& item) {
    const TimeSpan span = sequence_.SpanOf(item);
    std::string object = fmt::format("{{\"begin\":{},\"end\":{}", NumberOf(span.begin), NumberOf(span.end));
    AppendNames(object, origins_.Of(item), detail_);
    AppendFlag(object, "forcedDisplay", item.fgForcedDisplay, detail_);
    AppendField(object, "text", Quoted(Utf8FromUtf16(WholeText(item))));
    AppendField(object, "styling", StylingText(item.styling));
    if (detail_ == Detail::FULL) {
        AppendFlag(object, "hasRegion", item.pRegionAttrib != nullptr, detail_);
        AppendFlag(object, "hasStyle", item.pStyleAttrib != nullptr, detail_);
    }
    AppendField(object, "runs", RunsText(item));
    if (const auto* const text = dynamic_cast<const TextItem*>(&item); text && detail_ == Detail::FULL)
        AppendContent(object, *text);
    if (const auto* const image = dynamic_cast<const ImageItem*>(&item))
        AppendField(object, "image", xttml::ToText(ImageToJson(*image, sequence_.Images(), detail_)));
    return object + '}';
}

std::string JsonItems::ToText(const ItemList& items) {
    return ArrayOf(items, [this](const DisplayItem* item) { return ToText(*item); });
}

MediaTime NumberOf(const std::optional<MediaTime>& time) {
    return time.value_or(-1);
}

// They stand in strings only, where an escape means the same.
std::string ToText(const Json& json) {
    return EscapeControls(json.dump(-1, ' ', false, Json::error_handler_t::replace));
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\')
            quoted += '\\';
        quoted += character;
    }
    return EscapeControls(quoted + '"');
}

} // namespace xttml
