// A player in C++: reads items, colours and lengths, and catches what the library lets pass.
#include "expect.h"

#include <x_ttml.h>
#include <x_ttml_items.h>

#include <string>

// What programs were built with.
static void numbers() {
    const int statuses[] = {
        X_TTML_OK,        X_TTML_NO_ROOT_ELEMENT, X_TTML_UNREADABLE,    X_TTML_MALFORMED, X_TTML_REFUSED,
        X_TTML_BAD_VALUE, X_TTML_NO_IMAGE_DATA,   X_TTML_OUT_OF_MEMORY, X_TTML_FAILED};
    const int given[] = {X_TTML_GIVEN_COLOR,           X_TTML_GIVEN_FONT_SIZE,   X_TTML_GIVEN_FONT_WEIGHT,
                         X_TTML_GIVEN_FONT_STYLE,      X_TTML_GIVEN_LINE_HEIGHT, X_TTML_GIVEN_TEXT_ALIGN,
                         X_TTML_GIVEN_TEXT_DECORATION, X_TTML_GIVEN_VISIBILITY,  X_TTML_GIVEN_DISPLAY_ALIGN};
    for (int i = 0; i < 9; ++i)
        EXPECT(statuses[i] == i && given[i] == 1 << i);
    EXPECT(X_TTML_NO_ITEM == 0 && X_TTML_TEXT_ITEM == 1 && X_TTML_IMAGE_ITEM == 2);
}

static const std::string head = "<tt xmlns:tts='http://www.w3.org/ns/ttml#styling' "
                                "xmlns:c='http://www.decellc.org/schema/2012/01/cff-tt-meta'><body><div>";
static const std::string tail = "</div></body></tt>";

static void load(x_ttml_handle parser, const std::string& paragraph) {
    const std::string text = head + paragraph + tail;
    EXPECT(x_ttml_load_subtitle_from_data(parser, text.data(), static_cast<uint32_t>(text.size())) ==
           X_TTML_OK);
}

static void items(x_ttml_handle parser) {
    load(parser, "<p begin='1s' end='2s' tts:color='#ff800040' tts:textAlign='center'>a"
                 "<span tts:fontStyle='italic'>b</span></p>");
    x_ttml_generate_text_display_item_sequence(parser, 0);
    auto* const item = dynamic_cast<TextItem*>(x_ttml_get_display_item_by_time(parser, 1000));
    EXPECT(item && !dynamic_cast<ImageItem*>(static_cast<DisplayItem*>(item)));
    EXPECT(item->styling.eTextAlign == TEXT_ALIGN_CENTER);
    EXPECT(rMapColor(item->styling.strColor).uGreen == 128);
    EXPECT(item->pGetSentenceSeq()->size() == 2);
    EXPECT(item->pGetSentenceSeq()->at(1)->pStylingAttrib->iFontStyle == 1);
    EXPECT(!item->pRegionAttrib && !item->pStyleAttrib);
    item->vSetContent("plain");
    item->pstrGetContent()->append("er");
    EXPECT(*static_cast<const TextItem*>(item)->pstrGetContent() == "plainer");
    EXPECT(item->uGetContentLength() == 7);
    ImageItem image;
    image.SetImageURI("one");
    image.GetImageURI() += ".png";
    EXPECT(static_cast<const ImageItem&>(image).GetImageURI() == "one.png");
}

static void values() {
    float fFirst = 0;
    float fSecond = 0;
    length_unit_e eUnit = LENGTH_UNIT_NONE;
    int iNumber = 0;
    std::string strColor = "#102030";
    EXPECT(fgGetDoubleLength("10% 20.5%", fFirst, fSecond, eUnit) && eUnit == LENGTH_UNIT_PERCENT);
    EXPECT(fgGetLength("24px", fFirst, eUnit) && eUnit == LENGTH_UNIT_PX);
    EXPECT(fgConvertStrToInt("x128", 1, 3, iNumber) && iNumber == 128);
    EXPECT(fStr2Float("2px") > 1.9F && strFormatColor(strColor) == "#102030FF");
}

static void exceptions(x_ttml_handle parser) {
    bool caught = false;
    try {
        x_ttml_load_subtitle_from_file(parser, "/nonexistent/file.ttml");
    } catch (const tessera::DataSourceUnavailableException& exception) {
        caught = exception.message().rfind("/nonexistent/file.ttml: Xerces ", 0) == 0 &&
                 exception.what() == std::string("tessera::Exception");
    }
    EXPECT(caught);
    x_ttml_uninit_xerces(); // that of the load from a file
    load(parser, "<p c:forcedDisplayMode='yes'/>");
    try {
        x_ttml_generate_text_display_item_sequence(parser, 0);
        caught = false;
    } catch (const tessera::ConversionException&) {
    }
    EXPECT(caught);
}

int main() {
    x_ttml_handle parser = nullptr;
    numbers();
    x_ttml_init_xerces();
    x_ttml_create_new_parser(&parser);
    items(parser);
    x_ttml_destory_doc(parser);
    values();
    exceptions(parser);
    x_ttml_destory_doc(parser);
    x_ttml_delete_parser(parser);
    x_ttml_uninit_xerces();
    return failures == 0 ? 0 : 1;
}
