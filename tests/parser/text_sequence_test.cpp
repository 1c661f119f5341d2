#include "tests/parser/loaded_parser.h"
#include "tests/support/outcomes.h"
#include "tests/support/repeated.h"

#include <memory>

namespace {

using TextSequence = LoadedParser;

constexpr char head[] =
    "<head><styling>"
    "<style xml:id='big' tts:fontSize='40px'/>"
    "<style xml:id='bold' tts:fontWeight='bold' tts:color='blue'/>"
    "<style xml:id='plain' tts:fontWeight='normal' tts:fontStyle='normal'/>"
    "<style xml:id='full' tts:backgroundColor='black' tts:color='aqua' tts:displayAlign='center' "
    "tts:fontSize='9px' tts:fontStyle='italic' tts:lineHeight='200%' tts:textAlign='end' "
    "tts:textDecoration='underline' tts:visibility='visible'/>"
    "</styling><layout>"
    "<region xml:id='r' tts:extent='1000px 500px' tts:origin='30px 40px' tts:color='red' "
    "tts:backgroundColor='gray' tts:fontSize='20px' tts:fontWeight='bold' tts:fontStyle='italic' "
    "tts:displayAlign='after' tts:lineHeight='24px' tts:textAlign='center' tts:textDecoration='underline' "
    "tts:visibility='hidden'/>"
    "</layout></head>";

constexpr char regionStyling[] = "color=red display=2 w=1000 h=500 x=30 y=40 size=20 italic=1 bold=1";

struct ParagraphCase {
    const char* attributes;
    std::string expected;
};

TEST_F(TextSequence, ResolvesRegionThenStyleThenAttributes) {
    const std::string strRegion =
        std::string("bg=gray ") + regionStyling + " line=24 align=1 decoration=1 hidden=1";
    const ParagraphCase cases[] = {
        {"", "w=1024 h=768"},
        {"region='r'", strRegion},
        {"region='unknown'", ""},
        {"style='big'", "w=1024 h=768 size=40 set=s"},
        {"style='big bold'", "w=1024 h=768"},
        {"region='r' style='unknown'", std::string(regionStyling) + " line=24 align=1 decoration=1 hidden=1"},
        {"region='r' style='big'", "color=red display=2 w=1000 h=500 x=30 y=40 size=40 italic=1 bold=1 "
                                   "line=24 align=1 decoration=1 hidden=1 set=s"},
        {"region='r' style='bold'", "color=blue display=2 w=1000 h=500 x=30 y=40 size=20 italic=1 bold=1 "
                                    "line=24 align=1 decoration=1 hidden=1 set=cw"},
        {"region='r' style='plain'", "color=red display=2 w=1000 h=500 x=30 y=40 size=20 bold=1 line=24 "
                                     "align=1 decoration=1 hidden=1 set=wi"},
        {"region='r' style='full'",
         "bg=black color=aqua display=1 w=1000 h=500 x=30 y=40 size=9 italic=1 bold=1 line=18 align=4 "
         "decoration=1 set=csiladvb"},
        // geometry: percentages are of the area before the paragraph's own extent
        {"region='r' tts:extent='50% 50%' tts:origin='10% 10%'",
         "bg=gray color=red display=2 w=500 h=250 x=100 y=50 size=20 italic=1 bold=1 line=24 align=1 "
         "decoration=1 hidden=1"},
        {"tts:extent='33.3% 1px'", "w=1024 h=768"},
        {"tts:extent='33.3% 10%' tts:origin='1px 2.5px'", "w=340 h=76 x=1 y=2"},
        {"tts:extent='1em 1em' tts:origin='auto'", "w=1024 h=768"},
        // lengths
        {"region='r' tts:fontSize='150%' tts:lineHeight='50%'",
         "bg=gray color=red display=2 w=1000 h=500 x=30 y=40 size=30 italic=1 bold=1 line=15 align=1 "
         "decoration=1 hidden=1"},
        {"style='big' tts:fontSize='2em'", "w=1024 h=768 set=s"},
        {"style='big' tts:fontSize='huge'", "w=1024 h=768 set=s"},
        {"style='full' tts:lineHeight='normal'",
         "bg=black color=aqua display=1 w=1024 h=768 size=9 italic=1 align=4 decoration=1 set=csiladvb"},
        // keywords overwrite, unknown ones with their fallback
        {"region='r' tts:color='' tts:backgroundColor='white' tts:displayAlign='x' tts:fontStyle='x' "
         "tts:fontWeight='x' tts:textAlign='x' tts:textDecoration='x' tts:visibility='x'",
         "bg=white color= w=1000 h=500 x=30 y=40 size=20 line=24 align=3"},
        {"cff:forcedDisplayMode=' true '", "forced w=1024 h=768"},
        {"cff:forcedDisplayMode='0'", "w=1024 h=768"},
        {"color='red' xmlns:f='urn:foreign' f:color='red' f:region='r'", "w=1024 h=768"},
    };
    for (const ParagraphCase& test : cases) {
        SCOPED_TRACE(test.attributes);
        vGenerateText(std::string("<p ") + test.attributes + "/>", head);
        EXPECT_EQ(Describe(rLastItem()), "[-1,-1] " + test.expected);
        // Regions and styles are read again by every generation; the first entries answer.
        parser.vClearDisplaySequence();
    }
}

TEST_F(TextSequence, SpansRefineWhatTheirParagraphHas) {
    vGenerateText("<p region='r' style='big' tts:color='lime'><span tts:fontSize='50%'>x</span></p>", head);
    const std::string strShared = "color=lime display=2 w=1000 h=500 x=30 y=40 size=";
    const std::string strRest = "italic=1 bold=1 line=24 align=1 decoration=1 hidden=1";
    EXPECT_EQ(Describe(rLastItem()), "[-1,-1] " + strShared + "40 " + strRest + " set=s |'x'{" + strShared +
                                         "20 " + strRest + " set=s}");
}

TEST_F(TextSequence, PointsIntoTheTables) {
    vGenerateText("<p region='r' style='big'/><p region='x' style='y'/><p/>", head);
    EXPECT_EQ(rItem(0).pRegionAttrib, parser.prGetRegionByID("r"));
    EXPECT_EQ(rItem(0).pStyleAttrib, parser.prGetStyleByID("big"));
    EXPECT_NE(rItem(0).pStyleAttrib, nullptr);
    EXPECT_EQ(parser.rGetRegionByID("r").strId + parser.rGetStyleByID("big").strId, "rbig");
    for (std::size_t i : {1U, 2U}) {
        EXPECT_EQ(rItem(i).pRegionAttrib, nullptr);
        EXPECT_EQ(rItem(i).pStyleAttrib, nullptr);
    }
}

TEST_F(TextSequence, MakesSentences) {
    const struct {
        const char* content;
        const char* runs;
        const char* breaks;
    } cases[] = {
        {"One<br/>Two", " |'One' |br |'Two'", "\n"},
        {"", "", ""},
        {" \n ", " |' \n '", ""},
        {"a<!-- c --><?p i?>b", " |'a' |'b'", ""},
        {"a<![CDATA[skipped]]>b", " |'a' |'b'", ""},
        {"a<metadata>skipped<span>x</span></metadata>b", " |'a' |'b'", ""},
        {"<f:BR xmlns:f='urn:f'/><Br/><Span>x</Span>", " |br |br |'x'{w=1024 h=768}", "\n\n"},
        {"<span tts:color='red'>A<span tts:fontStyle='italic'>B</span>C</span>D",
         " |'A'{color=red w=1024 h=768} |'B'{color=red w=1024 h=768 italic=1} |'C'{color=red w=1024 h=768} "
         "|'D'",
         ""},
        {"<span>A<br/>B</span>", " |'A'{w=1024 h=768} |br |'B'{w=1024 h=768}", ""},
        {"<span/><span><span/></span>", "", ""},
        {"<br>never read</br>x", " |br |'x'", "\n"},
        {"<span tts:fontSize='10px'><span tts:fontSize='150%'>x</span><span "
         "tts:fontSize='2em'>y</span></span>",
         " |'x'{w=1024 h=768 size=15} |'y'{w=1024 h=768 size=10}", ""},
        {"<span tts:backgroundColor='b' tts:fontWeight='bold' tts:textDecoration='overline' "
         "tts:visibility='hidden' tts:textAlign='end' tts:displayAlign='after' tts:lineHeight='5px' "
         "tts:extent='1px 1px' style='big' region='r'>x</span>",
         " |'x'{bg=b w=1024 h=768 bold=1 decoration=5 hidden=1}", ""},
        {"&#x20AC;&#x1F600;", " |'?\?\?'", ""},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.content);
        vGenerateText(std::string("<p>") + test.content + "</p>");
        EXPECT_EQ(Describe(rLastItem()), std::string("[-1,-1] w=1024 h=768") + test.runs);
        EXPECT_EQ(strNarrow(dynamic_cast<const TextItem&>(rLastItem()).vecContent), test.breaks);
    }
}

// Whoever gives one back that is not on the heap, or keeps one that is, fails under the sanitizers.
TEST_F(TextSequence, OwnsItsSentencesAndThoseOfThePlayer) {
    const struct {
        const char* content;
        const char* runs;
    } cases[] = {{"", " |''{size=7}"},
                 {"1", " |'1' |''{size=7}"},
                 {"1<br/>2", " |'1' |br |'2' |''{size=7}"},
                 {"1<br/>2<br/>3<br/>", " |'1' |br |'2' |br |'3' |br |''{size=7}"}};
    for (const auto& test : cases) {
        vGenerateText(std::string("<p>") + test.content + "</p>");
        auto& item = dynamic_cast<TextItem&>(*parser.vecGetDisplaySequence().back());
        auto styling = std::make_unique<StylingAttrib>();
        styling->uFontSize = 7;
        auto sentence = std::make_unique<Sentence>();
        sentence->pStylingAttrib = styling.release();
        item.pGetSentenceSeq()->push_back(sentence.get());
        sentence.release();
        EXPECT_EQ(Describe(item), std::string("[-1,-1] w=1024 h=768") + test.runs);
    }
    CapturedOutput([&] { parser.vClearDisplaySequence(); });
    vGenerateText("<p>1</p>");
    EXPECT_EQ(Describe(rItem(0)), "[-1,-1] w=1024 h=768 |'1'");
}

TEST_F(TextSequence, FlattensSpans) {
    const std::string strText =
        strDocument("", "<span>a<span>b<br/></span><metadata>x</metadata>c<!-- --></span>");
    auto document = ttaf1_dfxp::tt::Cttaf1_dfxp::LoadFromString(strText);
    auto* const pSpan = document.tt.first().GetNode()->getFirstChild();
    std::vector<char16_t> vecText = {u'>'};
    TtmlParser::vGetSpanContent(ttaf1_dfxp::tt::Cspan_eltype(pSpan), &vecText);
    EXPECT_EQ(strNarrow(vecText), ">ab\nc");
    std::string strEightBit = ">";
    TtmlParser::vGetSpanContent(ttaf1_dfxp::tt::Cspan_eltype(pSpan), strEightBit);
    EXPECT_EQ(strEightBit, ">ab\nc");
    document.DestroyDocument();
}

TEST_F(TextSequence, TimesItems) {
    const struct {
        const char* root;
        const char* times;
        int iOffset;
        const char* expected;
    } cases[] = {
        {"", "begin='1s' end='2s'", 500, "[1500,2500]"},
        {"", "begin='1s'", 0, "[1000,-1]"},
        {"", "end='2s'", 10, "[9,2010]"},
        {"", "begin='never' end='1:2'", 0, "[-1,0]"},
        {"", "begin='0s' end='2147483000ms'", 1000, "[1000,-2147483288]"},
        {"", "begin='00:00:00:15' end='30f'", 0, "[500,1000]"},
        {"ttp:frameRate='25'", "begin='00:00:00:15' end='50f'", 0, "[600,2000]"},
        {"ttp:frameRate='25.9'", "begin='00:00:00:15' end='50f'", 0, "[600,2000]"},
        {"ttp:frameRate='4294967296'", "begin='00:00:00:00' end='1f'", 0, "[-1,-1]"},
        {"ttp:tickRate='10000000'", "begin='18637368750t' end='18637370000t'", 0, "[1863736,1863737]"},
        {"ttp:tickRate=' 1000 '", "begin='5t' end='6t'", 0, "[5,6]"},
        {"", "begin='5t' end='6t'", 0, "[5000,6000]"},
        {"ttp:frameRate='25'", "begin='50t' end='75t'", 0, "[2000,3000]"},
        {"ttp:frameRate='25' ttp:subFrameRate='2'", "begin='50t' end='75t'", 0, "[1000,1500]"},
        {"ttp:subFrameRate='2'", "begin='5t' end='6t'", 0, "[5000,6000]"},
        {"ttp:tickRate='0'", "begin='5t' end='1s'", 0, "[-1,1000]"},
        {"ttp:tickRate='-5'", "begin='5t' end='1s'", 0, "[-1,1000]"},
        {"ttp:tickRate='2.5'", "begin='5t' end='1s'", 0, "[-1,1000]"},
        {"ttp:tickRate='fast'", "begin='5t' end='1s'", 0, "[-1,1000]"},
        {"ttp:tickRate=''", "begin='5t' end='1s'", 0, "[-1,1000]"},
        {"ttp:frameRate='25' ttp:subFrameRate='x'", "begin='5t' end='1s'", 0, "[-1,1000]"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(std::string(test.root) + " " + test.times);
        vGenerateText(std::string("<p ") + test.times + "/>", "", test.root, test.iOffset);
        EXPECT_EQ(Describe(rLastItem()), std::string(test.expected) + " w=1024 h=768");
    }
}

TEST_F(TextSequence, WritesItsProgressAndReportsTheDocument) {
    vGenerateText("<p begin='3s' end='4s' tts:fontSize='10px' tts:lineHeight='5%'/>"
                  "<p begin='1s' end='2s'><span tts:fontSize='7px'/></p>",
                  "", "xml:lang='en' tts:extent='1920px 1080px'", 500);
    EXPECT_EQ(strOutput, "vGenerateTextDisplaySequence called!\n10\n5\n7\n"
                         "document start time 1500\ndocument end time 4500\nen\n");
    EXPECT_EQ(parser.iGetDocumentStartTime(), 1500);
    EXPECT_EQ(parser.iGetDocumentEndTime(), 4500);
    EXPECT_EQ(parser.iGetExtentWidth(), 1920);
    EXPECT_EQ(parser.iGetExtentHeight(), 1080);
    vGenerateText("<p begin='3s'/>", "", "tts:extent='50% 50%'");
    EXPECT_EQ(strOutput, "vGenerateTextDisplaySequence called!\ndocument start time 3000\n"
                         "document end time 4294967295\nINVALID\n");
    EXPECT_EQ(parser.iGetExtentWidth(), 1024);
    EXPECT_EQ(parser.iGetExtentHeight(), 768);
    EXPECT_EQ(parser.vecGetDisplaySequence().size(), 3U) << "generating appends";
    vGenerateText("", "", "tts:extent='3000000000px 5000000000px'");
    EXPECT_EQ(parser.iGetExtentWidth(), -1294967296) << "wraps in 32 bits";
    EXPECT_EQ(parser.iGetExtentHeight(), -1) << "the largest";
    vGenerateText("");
    EXPECT_EQ(strOutput, "vGenerateTextDisplaySequence called!\ndocument start time 4294967295\n"
                         "document end time 0\nINVALID\n");
}

TEST_F(TextSequence, ReadsTheFirstDivisionOnly) {
    ASSERT_TRUE(
        fgLoad(strDocument("", "<body><div><p begin='1s'/><div><p/></div><f:p xmlns:f='urn:f' "
                               "begin='2s'/></div><div><p/></div></body><body><div><p/></div></body>")));
    CapturedOutput([&] { parser.vGenerateTextDisplaySequence(0); });
    ASSERT_EQ(parser.vecGetDisplaySequence().size(), 2U);
    EXPECT_EQ(rItem(1).iGetBeginTime(), 2000);
}

TEST_F(TextSequence, ChangesNothingWithoutADivision) {
    vGenerateText("<p begin='1s' end='2s'/>");
    const struct {
        const char* content;
        const char* output;
    } cases[] = {
        {"", "<body> element not found!\n"},
        {"<head/>", "<body> element not found!\n"},
        {"<body><p/></body>", "<div> element not found!\n"},
    };
    for (const auto& test : cases) {
        ASSERT_TRUE(fgLoad(strDocument("tts:extent='5px 5px'", test.content)));
        EXPECT_EQ(CapturedOutput([&] { parser.vGenerateTextDisplaySequence(0); }), test.output);
    }
    EXPECT_FALSE(fgLoad("<body><div><p/></div></body>"));
    EXPECT_EQ(CapturedOutput([&] { parser.vGenerateTextDisplaySequence(0); }), "<body> element not found!\n");
    CapturedOutput([&] { parser.vCloseDocument(); });
    EXPECT_EQ(CapturedOutput([&] { parser.vGenerateTextDisplaySequence(0); }), "<body> element not found!\n");
    EXPECT_EQ(parser.vecGetDisplaySequence().size(), 1U);
    EXPECT_EQ(parser.iGetDocumentEndTime(), 2000);
    EXPECT_EQ(parser.iGetExtentWidth(), 1024);
}

TEST_F(TextSequence, LetsConversionErrorsPassAndKeepsEarlierItems) {
    EXPECT_EQ(ThrownMessage<tessera::StringParseException>(
                  [&] { vGenerateText("<p/>", "", "ttp:frameRate='30fps'"); }),
              "'30fps' could not be parsed as int");
    EXPECT_TRUE(parser.vecGetDisplaySequence().empty());
    EXPECT_NO_THROW(vGenerateText("", "", "ttp:frameRate='30fps'")) << "read with the first paragraph";
    const char* const bad = "<p begin='1s' end='2s'>x</p><p cff:forcedDisplayMode='yes'>x</p>";
    EXPECT_EQ(ThrownMessage<tessera::StringParseException>([&] { vGenerateText(bad); }),
              "'yes' could not be parsed as bool");
    EXPECT_EQ(parser.vecGetDisplaySequence().size(), 1U);
}

TEST_F(TextSequence, WalksSpansOfAnyDepth) {
    constexpr std::size_t uDepth = 100000;
    // a namespace that is declared near is found by the XML library at once
    vGenerateText("<p>" + Repeated("<span xmlns='urn:near'>", uDepth) + "deep" + Repeated("</span>", uDepth) +
                  "after</p>");
    EXPECT_EQ(Describe(rLastItem()), "[-1,-1] w=1024 h=768 |'deep'{w=1024 h=768} |'after'");
}

} // namespace
