#include "tests/parser/loaded_parser.h"
#include "tests/support/temporary_file.h"

#include <iomanip>
#include <locale>
#include <sstream>

namespace {

using Lifecycle = LoadedParser;

constexpr char loadingLines[] =
    "loadFromFile called!\nLoadFromFile called in ttaf1_dfxp\n"
    "XercesTreeOperations::LoadDocument called!\ndeclare parser OK\nparser Created OK\n"
    "defaultHandler Created OK\nsetErrorHandler OK\nsetDoNamespaces OK\nparse OK\n"
    "adoptDocument OK\nloadFromFile finished!\n";

std::string strCloseLines() {
    return "Close Document!\nDocument Closed!\n";
}

TEST_F(Lifecycle, LoadsFromAPath) {
    const struct {
        std::string text;
        bool fgLoaded;
        const char* line;
    } cases[] = {
        {strDocument("", ""), true, "load from file ok\n"},
        {"<o:tt xmlns:o='urn:other'/>", true, "load from file ok\n"},
        {"<div/>", false, "load from file failed\n"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.text);
        const TemporaryFile file(test.text);
        bool fgLoaded = !test.fgLoaded;
        EXPECT_EQ(CapturedOutput([&] { fgLoaded = parser.fgLoadDocument(file.path.c_str()); }),
                  std::string(loadingLines) + test.line);
        EXPECT_EQ(fgLoaded, test.fgLoaded);
        EXPECT_EQ(CapturedOutput([&] { parser.vCloseDocument(); }), strCloseLines());
        EXPECT_EQ(CapturedOutput([&] { parser.vCloseDocument(); }), strCloseLines());
        xercesc::XMLPlatformUtils::Terminate();
    }
}

TEST_F(Lifecycle, AFailedLoadKeepsWhatWasHeld) {
    ASSERT_TRUE(fgLoad(strDocument("xml:lang='fr'", "")));
    const TemporaryFile malformed("<tt>");
    for (const std::string& strPath : {malformed.path, malformed.path + ".missing", std::string()}) {
        EXPECT_THROW(CapturedOutput([&] { parser.fgLoadDocument(strPath.c_str()); }),
                     tessera::DataSourceUnavailableException)
            << strPath;
        xercesc::XMLPlatformUtils::Terminate();
    }
    EXPECT_THROW(CapturedOutput([&] { parser.fgLoadDocument(nullptr); }),
                 tessera::DataSourceUnavailableException);
    xercesc::XMLPlatformUtils::Terminate();
    EXPECT_EQ(parser.strGetDocLanguage(), "fr");
    EXPECT_FALSE(fgLoadBeside("<tt>"));
    EXPECT_EQ(strOutput.rfind("Xerces SAX error while loading: ", 0), 0U) << strOutput;
    EXPECT_EQ(strOutput.find('\n'), strOutput.size() - 1);
    EXPECT_EQ(parser.strGetDocLanguage(), "fr");
}

TEST_F(Lifecycle, LoadsFromMemory) {
    const std::string strText = strDocument("xml:lang='en'", "");
    const std::string strUtf16 = {'\xFF', '\xFE', '<', 0, 't', 0, 't', 0, '/', 0, '>', 0};
    const struct {
        std::string_view bytes;
        bool fgLoaded;
        const char* output;
    } cases[] = {
        {strText, true, "load from file ok\n"},
        {strUtf16, true, "load from file ok\n"},
        {"<div/>", false, "load from file failed\n"},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(fgLoad(test.bytes), test.fgLoaded);
        EXPECT_EQ(strOutput, test.output);
    }
    EXPECT_FALSE(fgLoad(""));
    CapturedOutput([&] { EXPECT_FALSE(parser.fgLoadDocument(nullptr, 100U)); });
}

TEST_F(Lifecycle, ReadsTheLanguage) {
    EXPECT_EQ(parser.strGetDocLanguage(), "INVALID");
    ASSERT_TRUE(fgLoad(strDocument("lang='de'", "")));
    EXPECT_EQ(parser.strGetDocLanguage(), "INVALID");
    ASSERT_TRUE(fgLoad(strDocument("xml:lang=''", "")));
    EXPECT_EQ(parser.strGetDocLanguage(), "");
}

TEST_F(Lifecycle, ItemsOutliveTheDocument) {
    vGenerateText("<p begin='1s' end='2s'>text</p>");
    CapturedOutput([&] { parser.vCloseDocument(); });
    EXPECT_EQ(Describe(*parser.rGetDisplayItemByTime(1500)), "[1000,2000] w=1024 h=768 |'text'");
}

TEST_F(Lifecycle, WritesTheSameLinesWhateverTheStateOfTheStream) {
    struct Grouped : std::numpunct<char> {
        std::string do_grouping() const override { return "\1"; }
    };
    const std::string strText =
        strDocument("", "<body><div><p begin='1s' end='20s' tts:fontSize='12px'/></div></body>");
    std::ostringstream redirected;
    std::ios before(nullptr);
    before.copyfmt(std::cout);
    std::streambuf* const pBefore = std::cout.rdbuf(redirected.rdbuf());
    std::cout.imbue(std::locale(std::locale::classic(), new Grouped));
    std::cout << std::hex << std::showbase << std::setfill('*') << std::setw(40);
    parser.fgLoadDocument(strText.data(), static_cast<unsigned>(strText.size()));
    parser.vGenerateTextDisplaySequence(0);
    std::cout.rdbuf(pBefore);
    std::cout.copyfmt(before);
    EXPECT_EQ(redirected.str(), "load from file ok\nvGenerateTextDisplaySequence called!\n12\n"
                                "document start time 1000\ndocument end time 20000\nINVALID\n");
}

/// Keeps what a stream writes, "^" where it flushes.
class FlushMarks : public std::stringbuf {
    int sync() override { return sputc('^') == traits_type::eof() ? -1 : 0; }
};

TEST_F(Lifecycle, FlushesEveryLineButTwo) {
    const TemporaryFile file(
        strDocument("", "<body><div><p begin='1s' end='2s' tts:fontSize='3px'/></div></body>"));
    FlushMarks marks;
    CapturedOutput([&] { // what goes another way
        std::streambuf* const pBefore = std::cout.rdbuf(&marks);
        parser.fgLoadDocument(file.path.c_str());
        TtmlParser::vXercesInit();
        TtmlParser::vXercesTerminate();
        TtmlParser::vXercesTerminate();
        parser.vGeneratePNGBufferInfo();
        parser.vGenerateTextDisplaySequence(0);
        auto& item = dynamic_cast<TextItem&>(*parser.vecGetDisplaySequence().front());
        item.vSetContent("content");
        item.pstrGetContent();
        static_cast<const TextItem&>(item).pstrGetContent();
        parser.vCloseDocument();
        parser.vGenerateTextDisplaySequence(0);
        parser.fgLoadDocument("<tt><body/></tt>", 16U);
        parser.vGenerateImageDisplaySequence(0);
        parser.vCloseDocument();
        parser.fgLoadDocument("<", 1U);
        std::make_unique<TtmlParser>().reset();
        std::cout.rdbuf(pBefore);
    });
    EXPECT_EQ(
        marks.str(),
        "loadFromFile called!\n^LoadFromFile called in ttaf1_dfxp\n^loadFromFile finished!\n^"
        "load from file ok\nInitialize Xerces\n^Terminate Xerces\n^Terminate Xerces\n^Invalid PNG Buffer\n^"
        "vGenerateTextDisplaySequence called!\n^3\n^document start time 1000\n^"
        "document end time 2000\n^INVALID\n^content\n^content\n^Close Document!\n^"
        "Document Closed!\n^<body> element not found!\n^load from file ok\n"
        "<div> element not found!\n^Close Document!\n^Document Closed!\n^"
        "Xerces SAX error while loading: element name expected\n^destruct Parser\n");
}

TEST(LifecycleWithoutXmlLibrary, ALoadFromMemoryFails) {
    TtmlParser parser;
    CapturedOutput([&] { EXPECT_FALSE(parser.fgLoadDocument("<tt/>", 5U)); });
}

} // namespace
