#include "tools/xttml/output/styling_json.h"

#include "tools/xttml/output/styling_words.h"
#include "tools/xttml/text/text_encoding.h"

#include <algorithm>
#include <iterator>
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

} // namespace

Json StylingToJson(const StylingAttrib& styling, bool isFull) {
    Json result = Json::object();
    for (const StylingField& field : stylingFields)
        result.emplace(field.name, field.toJson(styling));
    if (isFull) {
        result["set"] = SetFlagsToJson(styling);
        result["reserved"] = ReservedToJson(styling);
    }
    return result;
}

bool AreAlike(const StylingAttrib& left, const StylingAttrib& right) {
    return std::all_of(std::begin(stylingFields), std::end(stylingFields),
                       [&](const StylingField& field) { return field.isEqual(left, right); });
}

Json DifferenceToJson(const StylingAttrib& run, const StylingAttrib& item) {
    Json result = Json::object();
    for (const StylingField& field : stylingFields)
        if (!field.isEqual(run, item))
            result.emplace(field.name, field.toJson(run));
    return result;
}

} // namespace xttml
