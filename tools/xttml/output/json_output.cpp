#include "tools/xttml/output/json_output.h"

#include "tools/xttml/output/item_text.h"
#include "tools/xttml/output/styling_words.h"
#include "tools/xttml/text/text_encoding.h"

#include <algorithm>
#include <fmt/format.h>
#include <iterator>
#include <xttml/style/color.h>

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

Json ColorToJson(const std::string& color) {
    std::string text = color;
    const RgbaColor rgba = rMapColor(text);
    return {{"text", Utf8FromLatin1(color)}, {"rgba", {rgba.uRed, rgba.uGreen, rgba.uBlue, rgba.uAlpha}}};
}

/// A value of the styling record: how it is told, and whether two records have the same.
struct StylingField {
    const char* name;
    Json (*toJson)(const StylingAttrib&);
    bool (*isEqual)(const StylingAttrib&, const StylingAttrib&);
};

template <auto field>
bool IsEqual(const StylingAttrib& left, const StylingAttrib& right) {
    return left.*field == right.*field;
}

template <auto field>
Json Value(const StylingAttrib& styling) {
    return styling.*field;
}

template <auto word>
Json Word(const StylingAttrib& styling) {
    return word(styling);
}

template <auto field>
Json Color(const StylingAttrib& styling) {
    return ColorToJson(styling.*field);
}

template <auto field>
constexpr StylingField Length(const char* name) {
    return {name, Value<field>, IsEqual<field>};
}

template <auto field, auto word>
constexpr StylingField Keyword(const char* name) {
    return {name, Word<word>, IsEqual<field>};
}

using S = StylingAttrib;
constexpr StylingField stylingFields[] = {
    {"backgroundColor", Color<&S::strBackgroundColor>, IsEqual<&S::strBackgroundColor>},
    {"color", Color<&S::strColor>, IsEqual<&S::strColor>},
    Keyword<&S::eDisplayAlign, DisplayAlignWord>("displayAlign"),
    Length<&S::uExtentWidth>("extentWidth"),
    Length<&S::uExtentHeight>("extentHeight"),
    Length<&S::uFontSize>("fontSize"),
    Keyword<&S::iFontStyle, FontStyleWord>("fontStyle"),
    Keyword<&S::iFontWeight, FontWeightWord>("fontWeight"),
    Length<&S::uLineHeight>("lineHeight"),
    Length<&S::uOriginX>("originX"),
    Length<&S::uOriginY>("originY"),
    Keyword<&S::eTextAlign, TextAlignWord>("textAlign"),
    Keyword<&S::eTextDecoration, TextDecorationWord>("textDecoration"),
    Keyword<&S::iVisibility, VisibilityWord>("visibility"),
};

Json SetFlagsToJson(const StylingAttrib& styling) {
    return {{"color", styling.fgColorSet},
            {"fontSize", styling.fgFontSizeSet},
            {"fontWeight", styling.fgFontWeightSet},
            {"fontStyle", styling.fgFontStyleSet},
            {"lineHeight", styling.fgLineHeightSet},
            {"textAlign", styling.fgTextAlignSet},
            {"textDecoration", styling.fgTextDecorationSet},
            {"visibility", styling.fgVisibilitySet},
            {"displayAlign", styling.fgDisplayAlignSet}};
}

Json ReservedToJson(const StylingAttrib& styling) {
    Json pairs = Json::array();
    for (const ReservedPair& pair : styling.aReservedPairs)
        pairs.push_back({pair.uFirst, pair.uSecond});
    return {{"iReserved1", styling.iReserved1},
            {"iReserved2", styling.iReserved2},
            {"iReserved3", styling.iReserved3},
            {"strReserved1", Utf8FromLatin1(styling.strReserved1)},
            {"uReserved4", styling.uReserved4},
            {"aReservedPairs", std::move(pairs)},
            {"iReserved5", styling.iReserved5},
            {"strReserved2", Utf8FromLatin1(styling.strReserved2)},
            {"uReserved6", styling.uReserved6},
            {"strReserved3", Utf8FromLatin1(styling.strReserved3)},
            {"strReserved4", Utf8FromLatin1(styling.strReserved4)},
            {"strReserved5", Utf8FromLatin1(styling.strReserved5)},
            {"fgReserved1", styling.fgReserved1},
            {"fgReserved2", styling.fgReserved2}};
}

Json StylingToJson(const StylingAttrib& styling, Detail detail) {
    Json result = Json::object();
    for (const StylingField& field : stylingFields)
        result.emplace(field.name, field.toJson(styling));
    if (detail == Detail::FULL) {
        result["set"] = SetFlagsToJson(styling);
        result["reserved"] = ReservedToJson(styling);
    }
    return result;
}

/// Whether two records have the same in all that is told of them.
bool AreAlike(const StylingAttrib& left, const StylingAttrib& right) {
    return std::all_of(std::begin(stylingFields), std::end(stylingFields),
                       [&](const StylingField& field) { return field.isEqual(left, right); });
}

/// What a run has otherwise than its item.
Json DifferenceToJson(const StylingAttrib& run, const StylingAttrib& item) {
    Json result = Json::object();
    for (const StylingField& field : stylingFields)
        if (!field.isEqual(run, item))
            result.emplace(field.name, field.toJson(run));
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

template <class MakeJson>
std::string JsonItems::KnownText(const StylingAttrib& styling, const StylingAttrib* base,
                                 MakeJson&& makeJson) {
    constexpr std::size_t mostKnown = 16;
    const auto isAlike = [&](const KnownStyling& known) {
        return known.base.has_value() == (base != nullptr) && AreAlike(known.styling, styling) &&
               (!base || AreAlike(*known.base, *base));
    };
    const auto found = std::find_if(known_.begin(), known_.end(), isAlike);
    if (found != known_.end())
        return found->text;
    if (known_.size() == mostKnown)
        known_.clear();
    known_.push_back({styling, base ? std::optional(*base) : std::nullopt, xttml::ToText(makeJson())});
    return known_.back().text;
}

std::string JsonItems::StylingText(const StylingAttrib& styling) {
    const auto makeJson = [&] { return StylingToJson(styling, detail_); };
    // Records that are alike may differ in what else there is.
    return detail_ == Detail::FULL ? xttml::ToText(makeJson()) : KnownText(styling, nullptr, makeJson);
}

std::string JsonItems::DifferenceText(const StylingAttrib& run, const StylingAttrib& item) {
    return KnownText(run, &item, [&] { return DifferenceToJson(run, item); });
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
