#include "tools/xttml/json_output.h"

#include "style/color.h"
#include "tools/xttml/item_text.h"
#include "tools/xttml/styling_words.h"
#include "tools/xttml/text_encoding.h"

namespace xttml {

namespace {

Json ColorToJson(const std::string& color) {
    std::string text = color;
    const RgbaColor rgba = rMapColor(text);
    return {{"text", Utf8FromLatin1(color)}, {"rgba", {rgba.uRed, rgba.uGreen, rgba.uBlue, rgba.uAlpha}}};
}

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

Json StylingToJson(const StylingAttrib& styling) {
    return {{"backgroundColor", ColorToJson(styling.strBackgroundColor)},
            {"color", ColorToJson(styling.strColor)},
            {"displayAlign", DisplayAlignWord(styling)},
            {"extentWidth", styling.uExtentWidth},
            {"extentHeight", styling.uExtentHeight},
            {"fontSize", styling.uFontSize},
            {"fontStyle", FontStyleWord(styling)},
            {"fontWeight", FontWeightWord(styling)},
            {"lineHeight", styling.uLineHeight},
            {"originX", styling.uOriginX},
            {"originY", styling.uOriginY},
            {"textAlign", TextAlignWord(styling)},
            {"textDecoration", TextDecorationWord(styling)},
            {"visibility", VisibilityWord(styling)},
            {"set", SetFlagsToJson(styling)},
            {"reserved", ReservedToJson(styling)}};
}

Json RunToJson(const Sentence& run) {
    const std::u16string_view text(run.vecText.data(), run.vecText.size());
    return {{"text", Utf8FromUtf16(text)},
            {"lineBreak", run.fgLineBreak},
            {"styling", run.pStylingAttrib ? StylingToJson(*run.pStylingAttrib) : Json()}};
}

Json ImageToJson(const ImageItem& item, const ImageBlock& images) {
    const std::optional<std::size_t> offset = images.OffsetOf(item);
    const std::optional<PixelSize> size = PixelSizeOf(item);
    return {{"bytes", item.iImageDataSize},
            {"offset", offset ? Json(*offset) : Json()},
            {"width", size ? Json(size->width) : Json()},
            {"height", size ? Json(size->height) : Json()},
            {"uri", Utf8FromLatin1(item.GetImageURI())}};
}

} // namespace

Json ItemToJson(const DisplayItem& item, const ImageBlock& images) {
    Json runs = Json::array();
    for (const Sentence* const run : Runs(item))
        runs.push_back(RunToJson(*run));
    Json result = {{"begin", item.iGetBeginTime()},
                   {"end", item.iGetEndTime()},
                   {"forcedDisplay", item.fgForcedDisplay},
                   {"text", Utf8FromUtf16(WholeText(item))},
                   {"styling", StylingToJson(item.styling)},
                   {"hasRegion", item.pRegionAttrib != nullptr},
                   {"hasStyle", item.pStyleAttrib != nullptr},
                   {"runs", std::move(runs)}};
    if (const auto* const text = dynamic_cast<const TextItem*>(&item)) {
        result["combined"] = text->fgCombined;
        result["content"] = Utf8FromUtf16({text->vecContent.data(), text->vecContent.size()});
        result["plainContent"] = Utf8FromLatin1(text->strContent);
    }
    if (const auto* const image = dynamic_cast<const ImageItem*>(&item))
        result["image"] = ImageToJson(*image, images);
    return result;
}

Json ItemToJson(const DisplayItem* item, const ImageBlock& images) {
    return item ? ItemToJson(*item, images) : Json();
}

} // namespace xttml
