// A player in C++ that knows the installed headers only: prints what it would draw, and catches what the
// library throws.
#include <x_ttml.h>

#include <cstdio>
#include <cstring>

static const char document[] = R"(<tt xmlns="http://www.w3.org/ns/ttml"
    xmlns:tts="http://www.w3.org/ns/ttml#styling" tts:extent="1280px 720px">
  <head><layout><region xml:id="r" tts:origin="10% 80%" tts:extent="1024px 100px"/></layout></head>
  <body><div><p region="r" begin="1s" end="2s" tts:color="#ff800040">ab<span tts:fontStyle="italic">c</span></p>
  </div></body></tt>)";

static void draw(TextItem& item) {
    const StylingAttrib& styling = item.styling;
    RgbaColor color = rMapColor(item.styling.strColor);
    std::printf("%d-%d at %u,%u %ux%u", item.iGetBeginTime(), item.iGetEndTime(), styling.uOriginX,
                styling.uOriginY, styling.uExtentWidth, styling.uExtentHeight);
    std::printf(" in %d,%d,%d,%d:", color.uRed, color.uGreen, color.uBlue, color.uAlpha);
    for (const Sentence* sentence : *item.pGetSentenceSeq()) {
        const bool fgItalic = sentence->pStylingAttrib && sentence->pStylingAttrib->iFontStyle == 1;
        std::printf(" %zu%s", sentence->vecText.size(), fgItalic ? " italic" : "");
    }
    std::puts("");
}

static void read_values() {
    float fFirst = 0;
    float fSecond = 0;
    length_unit_e eUnit = LENGTH_UNIT_NONE;
    int iNumber = 0;
    std::string strColor = "#102030";
    bool fgRead = fgGetDoubleLength("10% 20.5%", fFirst, fSecond, eUnit);
    std::printf("%d %g %g %d; ", fgRead, fFirst, fSecond, eUnit);
    std::fflush(stdout);
    fgRead = fgGetLength("24px", fFirst, eUnit);
    std::printf("%d %g %d; ", fgRead, fFirst, eUnit);
    fgRead = fgConvertStrToInt("x128", 1, 3, iNumber);
    std::printf("%d %d; %g; %s\n", fgRead, iNumber, fStr2Float("2.5px"), strFormatColor(strColor).c_str());
}

int main() {
    x_ttml_handle parser = nullptr;
    x_ttml_init_xerces();
    x_ttml_create_new_parser(&parser);
    x_ttml_load_subtitle_from_data(parser, document, sizeof document - 1);
    x_ttml_generate_text_display_item_sequence(parser, 0);
    if (auto* item = dynamic_cast<TextItem*>(x_ttml_get_display_item_by_time(parser, 1000)))
        draw(*item);
    read_values();
    try {
        x_ttml_load_subtitle_from_file(parser, "/nonexistent.ttml");
    } catch (const tessera::DataSourceUnavailableException& error) {
        std::printf("caught %d\n", std::strcmp(error.what(), "tessera::Exception"));
    }
    x_ttml_destory_doc(parser);
    x_ttml_delete_parser(parser);
    x_ttml_uninit_xerces();
    x_ttml_uninit_xerces();
}
