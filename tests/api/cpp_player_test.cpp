// A player in C++: reads items, colours and geometry, and catches what the library lets pass.
#include <x_ttml.h>

#include <gtest/gtest.h>

#include <string>

namespace {

class CppPlayer : public testing::Test {
protected:
    CppPlayer() {
        x_ttml_init_xerces();
        x_ttml_create_new_parser(&handle);
    }
    ~CppPlayer() override {
        x_ttml_destory_doc(handle);
        x_ttml_delete_parser(handle);
        x_ttml_uninit_xerces();
    }
    int iLoad(const std::string& strText) {
        return x_ttml_load_subtitle_from_data(handle, strText.data(), static_cast<uint32_t>(strText.size()));
    }

    x_ttml_handle handle = nullptr;
};

TEST_F(CppPlayer, ReadsAnItem) {
    ASSERT_EQ(iLoad("<tt xmlns:tts='http://www.w3.org/ns/ttml#styling'><body><div><p begin='1s' end='2s' "
                    "tts:color='#ff8000' tts:textAlign='center' tts:extent='50% 10px'>a<span "
                    "tts:fontStyle='italic'>b</span></p></div></body></tt>"),
              X_TTML_OK);
    x_ttml_generate_text_display_item_sequence(handle, 0);
    auto* pItem = dynamic_cast<TextItem*>(x_ttml_get_display_item_by_time(handle, 1000));
    ASSERT_NE(pItem, nullptr);
    EXPECT_EQ(dynamic_cast<ImageItem*>(static_cast<DisplayItem*>(pItem)), nullptr);
    EXPECT_EQ(pItem->styling.eTextAlign, TEXT_ALIGN_CENTER);
    EXPECT_EQ(rMapColor(pItem->styling.strColor).uGreen, 128);
    EXPECT_EQ(pItem->pGetSentenceSeq()->size(), 2U);
    EXPECT_EQ(pItem->pGetSentenceSeq()->at(1)->pStylingAttrib->iFontStyle, 1);
    pItem->vSetContent("plain");
    std::string* const pstrContent = pItem->pstrGetContent();
    EXPECT_EQ(*pstrContent, "plain");
    EXPECT_EQ(*static_cast<const TextItem*>(pItem)->pstrGetContent(), "plain");
    pstrContent->append("er");
    EXPECT_EQ(pItem->uGetContentLength(), 7U);
    for (StylingAttrib* const pBorrowed : {pItem->pRegionAttrib, pItem->pStyleAttrib})
        EXPECT_EQ(pBorrowed, nullptr);
    ImageItem image;
    image.SetImageURI("one");
    std::string& strURI = image.GetImageURI();
    strURI += ".png";
    EXPECT_EQ(static_cast<const ImageItem&>(image).GetImageURI(), "one.png");
}

TEST_F(CppPlayer, CatchesByType) {
    try {
        x_ttml_load_subtitle_from_file(handle, "/nonexistent/file.ttml");
        ADD_FAILURE() << "nothing thrown";
    } catch (const tessera::DataSourceUnavailableException& exception) {
        EXPECT_EQ(exception.message().rfind("/nonexistent/file.ttml: Xerces ", 0), 0U) << exception.message();
        EXPECT_STREQ(exception.what(), "tessera::Exception");
    }
    x_ttml_uninit_xerces();
    ASSERT_EQ(iLoad("<tt xmlns:c='http://www.decellc.org/schema/2012/01/cff-tt-meta'><body><div><p "
                    "c:forcedDisplayMode='yes'/></div></body></tt>"),
              X_TTML_OK);
    EXPECT_THROW(x_ttml_generate_text_display_item_sequence(handle, 0), tessera::ConversionException);
}

} // namespace
