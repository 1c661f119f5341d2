#include "tests/parser/loaded_parser.h"

namespace {

/// A file of `size` bytes that begins with the signature of PNG.
std::string strPng(std::size_t uSize) {
    return "\x89PNG" + std::string(uSize - 4, 'x');
}

/// A division with an image: its index, its times, its other attributes and what is inside it.
std::string strDivision(const std::string& strIndex, const std::string& strTimes,
                        const std::string& strAttributes = "", const std::string& strContent = "") {
    return "<div smpte:backgroundImage='urn:dece:container:subtitleimageindex:" + strIndex + "' " + strTimes +
           " " + strAttributes + ">" + strContent + "</div>";
}

class ImageSequence : public LoadedParser {
protected:
    void vHandOver(const std::string& strBlock) {
        parser.vSetDocumentBuffer(strBlock.data(), static_cast<int>(strBlock.size()));
    }
    /// "offset+size" of each file of the block; "size" alone for an entry without data.
    std::string strCut(const std::string& strBlock) {
        vHandOver(strBlock);
        parser.vGeneratePNGBufferInfo();
        return strTable();
    }
    std::string strTable() const {
        std::string strEntries;
        for (const ImageTableEntry& entry : parser.aGetImageTable()) {
            if (entry.pData)
                strEntries += std::to_string(entry.pData - parser.aGetImageTable()[0].pData) + "+" +
                              std::to_string(entry.iSize) + " ";
        }
        return strEntries;
    }
    void vGenerate(const std::string& strDivisions, const std::string& strHead = "",
                   const std::string& strRoot = "", int iOffset = 0) {
        ASSERT_TRUE(fgLoad(strDocument(strRoot, strHead + "<body>" + strDivisions + "</body>")));
        strOutput = CapturedOutput([&] { parser.vGenerateImageDisplaySequence(iOffset); });
    }
    std::string strItems() const {
        std::string strAll;
        for (const DisplayItem* pItem : parser.vecGetDisplaySequence()) {
            strAll += Describe(*pItem);
            if (const auto* pImage = dynamic_cast<const ImageItem*>(pItem))
                strAll += " #" +
                          (pImage->pImageData ? std::to_string(pImage->pImageData - pBlock()) : "null") +
                          "+" + std::to_string(pImage->iImageDataSize);
            strAll += "\n";
        }
        return strAll;
    }
    const std::uint8_t* pBlock() const { return parser.aGetImageTable()[0].pData; }
};

TEST_F(ImageSequence, CutsABlock) {
    EXPECT_EQ(strCut(strPng(1000) + strPng(2000) + strPng(500)), "0+1000 1000+2000 3000+500 ");
    EXPECT_EQ(strCut("no image" + strPng(10)), "0+8 8+10 ");
    EXPECT_EQ(strCut("\x89PN"), "0+3 ");
    EXPECT_EQ(strCut("\x89PNG\x89PNG"), "0+4 4+4 ");
    EXPECT_EQ(strCut(strPng(10) + "\x89PN"), "0+13 ") << "a signature across the end";
    EXPECT_EQ(strCut(strPng(10) + "\x89\x89PNG"), "0+11 11+4 ");
    EXPECT_EQ(strCut("x\x89PNG" + std::string(5, 'x')), "0+10 ")
        << "none is looked for in the first four bytes";
    std::string strMany;
    std::string strExpected;
    for (int i = 0; i < 31; ++i) {
        strMany += strPng(10);
        strExpected += i < 30 ? std::to_string(i * 10) + "+10 " : "";
    }
    EXPECT_EQ(strCut(strMany), strExpected);
    vHandOver(strPng(10));
    EXPECT_EQ(strTable(), "") << "of a block that is not cut yet";
}

TEST_F(ImageSequence, CutsNothingFromNoBlock) {
    EXPECT_EQ(CapturedOutput([&] { parser.vGeneratePNGBufferInfo(); }), "Invalid PNG Buffer\n");
    vHandOver(strPng(100) + strPng(100));
    const struct {
        const char* buffer;
        int iSize;
        const char* table;
    } cases[] = {
        {"ignored", 0, "0+0 "}, {"ignored", -5, "0+-5 "},        {nullptr, -5, "0+-5 "},
        {nullptr, 50, "0+50 "}, {nullptr, 150, "0+100 100+50 "}, {nullptr, 1000, "0+100 100+100 "},
        {nullptr, 0, "0+0 "},
    };
    for (const auto& test : cases) {
        parser.vSetDocumentBuffer(test.buffer, test.iSize);
        EXPECT_EQ(CapturedOutput([&] { parser.vGeneratePNGBufferInfo(); }), "");
        EXPECT_EQ(strTable(), test.table) << "the block is kept, its size is not";
    }
}

TEST_F(ImageSequence, ReadsTheIndexOfAReference) {
    const std::string strPrefix(38, 'x');
    const struct {
        std::string reference;
        std::uint32_t uIndex;
    } cases[] = {
        {"urn:dece:container:subtitleimageindex:7.png", 7},
        {strPrefix + "30.png", 30},
        {strPrefix + "31.png", 31},
        {strPrefix + "0.png", 0},
        {strPrefix + "-3.png", 4294967293U},
        {strPrefix + " +4.png", 4},
        {strPrefix + "abc.png", 0},
        {strPrefix + "2147483648.png", 2147483648U},
        {strPrefix + "4294967297.png", 1},
        {strPrefix + "-4294967295.png", 1},
        {strPrefix + "-" + std::string(1000, '9') + ".png", 0},
    };
    for (const auto& test : cases)
        EXPECT_EQ(TtmlParser::uGetImageIndex(test.reference), test.uIndex) << test.reference;
    for (const std::string& strNone :
         {strPrefix + "7", strPrefix + ".png", strPrefix, "x." + strPrefix, strPrefix.substr(1) + ".7",
          std::string(), strPrefix + std::string(1000, '9') + ".png"})
        EXPECT_EQ(TtmlParser::uGetImageIndex(strNone), UINT32_MAX) << strNone;
}

TEST_F(ImageSequence, MakesAnItemForADivisionOrItsChildren) {
    vHandOver(strPng(10) + strPng(20));
    const std::string strTimes = "begin='1s' end='2s'";
    const std::string strForced = "cff:forcedDisplayMode='true'";
    const std::string strSecond = strDivision("2.png", strTimes);
    vGenerate(strDivision("1.png", strTimes, strForced, strSecond) + "<div region='r' " + strForced + ">" +
                  strDivision("2.png", strTimes, strForced) + "<div " + strTimes + "/>" +
                  strDivision("3.png", strTimes) + "<div>" + strDivision("1.png", strTimes) + "</div></div>" +
                  strDivision("31.png", strTimes) + strDivision("x.png", strTimes),
              "", "", 500);
    EXPECT_EQ(strItems(), "[1500,2500] w=1024 h=768 #0+10\n"
                          "[1500,2500] forced w=1024 h=768 #10+20\n"
                          "[1500,2500] w=1024 h=768 #null+0\n");
    EXPECT_EQ(strOutput, "document start time 1500\ndocument end time 2500\n");
}

TEST_F(ImageSequence, PlacesItems) {
    const std::string strHead =
        "<head><layout><region xml:id='r' tts:extent='1000px 500px' tts:origin='7px 8px' "
        "tts:color='red'/></layout></head>";
    const struct {
        const char* attributes;
        const char* expected;
    } cases[] = {
        {"", "w=640 h=480"},
        {"region='r'", "color=red w=1000 h=500 x=7 y=8"},
        {"region='x'", ""},
        {"region='r' tts:extent='50% 50%' tts:origin='10% 10%'", "color=red w=500 h=250 x=100 y=50"},
        {"tts:extent='20px 10px' tts:origin='3px 4px'", "w=20 h=10 x=3 y=4"},
        {"region='r' tts:extent='auto' tts:origin='1em 1em' tts:color='blue'",
         "color=red w=1000 h=500 x=7 y=8"},
    };
    vHandOver(strPng(10));
    for (const auto& test : cases) {
        SCOPED_TRACE(test.attributes);
        vGenerate(strDivision("1.png", "begin='0s' end='1s'", test.attributes), strHead,
                  "tts:extent='640px 480px'");
        EXPECT_EQ(Describe(rLastItem()), std::string("[0,1000] ") + test.expected);
        EXPECT_EQ(rLastItem().pRegionAttrib, nullptr);
    }
}

TEST_F(ImageSequence, NeedsABodyADivisionAndABlock) {
    vGenerate("", "", "tts:extent='5px 5px'");
    EXPECT_EQ(strOutput, "<div> element not found!\n");
    vGenerate(strDivision("1.png", "begin='0s' end='1s'"), "", "tts:extent='5px 5px'");
    EXPECT_EQ(strOutput, "");
    EXPECT_EQ(parser.iGetExtentWidth(), 0);
    EXPECT_EQ(parser.iGetExtentHeight(), 0);
    EXPECT_EQ(parser.iGetDocumentEndTime(), -1);
    EXPECT_TRUE(parser.vecGetDisplaySequence().empty());
    vHandOver(strPng(10));
    vGenerate("<div/>");
    EXPECT_EQ(strOutput, "document start time 4294967295\ndocument end time 0\n") << "no item";
}

TEST_F(ImageSequence, RaisesWhereATimeIsMissing) {
    vHandOver(strPng(10));
    const std::string strGood = strDivision("1.png", "begin='0s' end='1s'");
    for (const char* times : {"begin='1s'", "end='1s'", ""}) {
        parser.vClearDisplaySequence();
        EXPECT_THROW(vGenerate(strGood + strDivision("1.png", times) + strGood),
                     tessera::InvalidOperationException);
        EXPECT_EQ(parser.vecGetDisplaySequence().size(), 1U) << times;
    }
    EXPECT_THROW(vGenerate("<div/>", "", "ttp:frameRate='-1'"), tessera::OutOfRangeException);
}

// Nothing has put them into the index yet.
TEST_F(ImageSequence, FindsImagesThatWereAppendedOneByOne) {
    ASSERT_NO_FATAL_FAILURE(vGenerate(strDivision("1.png", "begin='1s' end='3s'")));
    vHandOver(strPng(10));
    parser.vGeneratePNGBufferInfo();
    for (const int iOffset : {1000, INT32_MAX - 3000, -5000})
        parser.vGetImageItem(parser.rGetDocumentRoot().tt.first().body.first().div.first(), iOffset);
    parser.vGetImageItem(parser.rGetDocumentRoot().tt.first().body.first().div.first(), INT32_MAX - 1500);
    EXPECT_EQ(parser.rGetDisplayItemByTime(2000), &rItem(0));
    DisplayItem* pItem = nullptr;
    EXPECT_EQ(parser.uGetDisplayItemsOnScreen(&pItem, 1, INT32_MAX), 1U);
    EXPECT_EQ(pItem, &rItem(1));
    std::vector<std::int32_t> vecChanges;
    for (auto iChange = parser.rGetNextChange(INT32_MIN); iChange; iChange = parser.rGetNextChange(*iChange))
        vecChanges.push_back(*iChange);
    EXPECT_EQ(vecChanges, (std::vector<std::int32_t>{-4000, -1999, 2000, 4001, INT32_MAX - 2000}))
        << "the last is on screen to the end of time, and one whose end wraps is never";
}

TEST_F(ImageSequence, AnAppendedImageThatBeginsRightNowIsNotToCome) {
    ASSERT_NO_FATAL_FAILURE(vGenerate(strDivision("1.png", "begin='3s' end='1s'")));
    vHandOver(strPng(10));
    parser.vGeneratePNGBufferInfo();
    for (const int iOffset : {0, 1000})
        parser.vGetImageItem(parser.rGetDocumentRoot().tt.first().body.first().div.first(), iOffset);
    EXPECT_EQ(parser.rGetDisplayItemByTime(3000), &rItem(1));
}

TEST_F(ImageSequence, KeepsABlockWhileItemsPointIntoIt) {
    vHandOver(strPng(50) + strPng(1000));
    vGenerate(strDivision("2.png", "begin='0s' end='1s'")); // and none of the first image
    const auto& first = dynamic_cast<const ImageItem&>(rItem(0));
    for (int i = 0; i < 10; ++i)
        vHandOver(strPng(2000));
    vGenerate(strDivision("1.png", "begin='0s' end='1s'"));
    for (int i = 0; i < 10; ++i)
        vHandOver(strPng(3000));
    EXPECT_EQ(std::string(first.pImageData, first.pImageData + first.iImageDataSize), strPng(1000));
    const auto& second = dynamic_cast<const ImageItem&>(rItem(1));
    EXPECT_EQ(std::string(second.pImageData, second.pImageData + second.iImageDataSize), strPng(2000));
}

TEST_F(ImageSequence, CountsTheItemsOfEarlierGenerations) {
    vGenerateText("<p begin='0s' end='9s'/>");
    vHandOver(strPng(10));
    vGenerate(strDivision("1.png", "begin='1s' end='2s'"));
    EXPECT_EQ(strOutput, "document start time 0\ndocument end time 9000\n");
}

TEST_F(ImageSequence, IsPassedOverWhereTextsAreCombined) {
    vHandOver(strPng(10));
    vGenerateText("<p begin='1s' end='2s'><br/></p>");
    vGenerate(strDivision("1.png", "begin='1s' end='2s'", "", "<p begin='1s' end='2s'><br/></p>"));
    CapturedOutput([&] { parser.vGenerateTextDisplaySequence(0); });
    EXPECT_EQ(parser.rGetDisplayItemByTime(1500), &rItem(0));
    EXPECT_EQ(parser.rCombineSameTimeItem(), &rItem(0));
    EXPECT_EQ(strNarrow(dynamic_cast<const TextItem&>(rItem(0)).vecContent), "\n\n\n");
}

} // namespace
