#include "tools/xttml/output/json_output.h"

#include "tools/xttml/output/item_text.h"
#include "tools/xttml/output/styling_words.h"
#include "tools/xttml/text/text_encoding.h"

#include <fmt/format.h>
#include <xttml/style/color.h>

namespace xttml {

namespace {

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

/// What a run has otherwise than its item.
Json DifferenceToJson(const StylingAttrib& run, const StylingAttrib& item) {
    Json result = Json::object();
    for (const StylingField& field : stylingFields)
        if (!field.isEqual(run, item))
            result.emplace(field.name, field.toJson(run));
    return result;
}

Json RunToJson(const Sentence& run, const DisplayItem& item, Detail detail) {
    Json result = {{"text", Utf8FromUtf16({run.vecText.data(), run.vecText.size()})},
                   {"lineBreak", run.fgLineBreak}};
    if (detail == Detail::FULL)
        result["styling"] = run.pStylingAttrib ? StylingToJson(*run.pStylingAttrib, detail) : Json();
    else if (Json difference = DifferenceToJson(StylingOf(run, item), item.styling); !difference.empty())
        result["styling"] = std::move(difference);
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

void AddNames(Json& result, const ItemOrigin& origin, Detail detail) {
    const auto add = [&](const char* name, const std::optional<std::string>& text) {
        if (text || detail == Detail::FULL)
            result[name] = TextToJson(text);
    };
    add("id", origin.id);
    add("region", origin.region);
    add("style", origin.style);
}

/// What only a player that fills in and merges content has a use for.
void AddContent(Json& result, const TextItem& text) {
    result["combined"] = text.fgCombined;
    result["content"] = Utf8FromUtf16({text.vecContent.data(), text.vecContent.size()});
    result["plainContent"] = Utf8FromLatin1(text.strContent);
}

} // namespace

Json JsonItems::RunsToJson(const DisplayItem& item) const {
    Json runs = Json::array();
    for (const Sentence* const run : Runs(item))
        runs.push_back(RunToJson(*run, item, detail_));
    return runs;
}

Json JsonItems::ToJson(const DisplayItem& item) const {
    const TimeSpan span = sequence_.SpanOf(item);
    Json result = {{"begin", TimeToJson(span.begin)}, {"end", TimeToJson(span.end)}};
    AddNames(result, origins_.Of(item), detail_);
    result["forcedDisplay"] = item.fgForcedDisplay;
    result["text"] = Utf8FromUtf16(WholeText(item));
    result["styling"] = StylingToJson(item.styling, detail_);
    if (detail_ == Detail::FULL) {
        result["hasRegion"] = item.pRegionAttrib != nullptr;
        result["hasStyle"] = item.pStyleAttrib != nullptr;
    }
    result["runs"] = RunsToJson(item);
    if (const auto* const text = dynamic_cast<const TextItem*>(&item); text && detail_ == Detail::FULL)
        AddContent(result, *text);
    if (const auto* const image = dynamic_cast<const ImageItem*>(&item))
        result["image"] = ImageToJson(*image, sequence_.Images(), detail_);
    return result;
}

Json TimeToJson(const std::optional<MediaTime>& time) {
    return time.value_or(-1);
}

Json TextToJson(const std::optional<std::string>& text) {
    return text ? Json(*text) : Json();
}

// They stand in strings only, where an escape means the same.
std::string ToText(const Json& json) {
    const std::string text = json.dump(-1, ' ', false, Json::error_handler_t::replace);
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t control = ControlAt(text, i);
        if (control == noControl) {
            result.push_back(text[i]);
            continue;
        }
        result += fmt::format("\\u{:04x}", static_cast<std::uint32_t>(control));
        i += BytesOfControl(control) - 1;
    }
    return result;
}

} // namespace xttml
