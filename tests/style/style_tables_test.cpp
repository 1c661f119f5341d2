#include "style/style_tables.h"

#include "tests/support/captured_output.h"
#include "tests/support/describe.h"
#include "tests/support/xerces_session.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using ttaf1_dfxp::tt::Cttaf1_dfxp;

namespace {

class StyleTables : public testing::Test {
protected:
    ~StyleTables() override { document.DestroyDocument(); }

    void vLoad(const std::string& strHead) {
        document.DestroyDocument();
        document = Cttaf1_dfxp::LoadFromString(
            "<tt xmlns='http://www.w3.org/ns/ttml' xmlns:tts='http://www.w3.org/ns/ttml#styling'>" + strHead +
            "</tt>");
    }
    /// What a fresh table makes of one style or region with these attributes.
    std::string strStyle(const std::string& strAttributes) {
        vLoad("<head><styling><style xml:id='a' " + strAttributes + "/></styling></head>");
        StyleTable table;
        CapturedOutput([&] { table.vGenerate(document.tt.first()); });
        return Describe(*table.prGetByID("a"));
    }
    std::string strRegion(const std::string& strAttributes) {
        vLoad("<head><layout><region xml:id='a' " + strAttributes + "/></layout></head>");
        RegionTable table;
        CapturedOutput([&] { table.vGenerate(document.tt.first(), {1024, 768}); });
        return Describe(*table.prGetByID("a"));
    }

    XercesSession session;
    Cttaf1_dfxp document{nullptr};
};

struct Row {
    const char* attributes;
    const char* style;
    const char* region;
};

TEST_F(StyleTables, ReadAttributes) {
    const Row rows[] = {
        {"", "", "w=1024 h=768"},
        {"tts:backgroundColor='' tts:color='red'", "bg= color=red set=c", "bg= color=red w=1024 h=768"},
        {"color='red' xmlns:o='urn:other' o:color='red'", "", "w=1024 h=768"},
        {"tts:displayAlign='after'", "display=2 set=b", "display=2 w=1024 h=768"},
        {"tts:fontSize='20.9px' tts:lineHeight='150%'", "size=20 line=30 set=sl",
         "w=1024 h=768 size=20 line=30"},
        {"tts:lineHeight='150%' tts:fontSize='20px'", "size=20 line=30 set=sl",
         "w=1024 h=768 size=20 line=30"},
        {"tts:fontSize='200px' tts:lineHeight='1.5em'", "size=200 line=3 set=sl", "w=1024 h=768 size=200"},
        {"tts:fontSize='200px' tts:lineHeight='12px'", "size=200 line=12 set=sl",
         "w=1024 h=768 size=200 line=12"},
        {"tts:fontSize='2em' tts:lineHeight='normal'", "set=sl", "w=1024 h=768"},
        {"tts:fontSize='50%'", "set=s", "w=1024 h=768"},
        {"tts:fontSize='99999999999px'", "size=4294967295 set=s", "w=1024 h=768 size=4294967295"},
        {"tts:fontStyle='italic' tts:fontWeight='bold'", "italic=1 bold=1 set=wi",
         "w=1024 h=768 italic=1 bold=1"},
        {"tts:textAlign='nowhere' tts:textDecoration='overline' tts:visibility='hidden'",
         "align=3 decoration=5 hidden=1 set=adv", "w=1024 h=768 align=3 decoration=5 hidden=1"},
        {"tts:extent='640px 480px' tts:origin='5px 7.9px'", "", "w=640 h=480 x=5 y=7"},
        {"tts:extent='50% 50%' tts:origin='10% 90%'", "", "w=512 h=384 x=102 y=691"},
        {"tts:extent='1.5em 2em' tts:origin='auto'", "", ""},
        {"tts:extent='640px  480px'", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.attributes);
        EXPECT_EQ(strStyle(row.attributes), row.style);
        EXPECT_EQ(strRegion(row.attributes), row.region);
    }
}

TEST_F(StyleTables, FindTheFirstEntryWithAnIdentifier) {
    vLoad("<head><styling><style xml:id='a' tts:color='1'/><style tts:color='2'/><style xml:id='a' "
          "tts:color='3'/></styling><styling><style xml:id='late'/></styling></head>");
    StyleTable table;
    table.vGenerate(document.tt.first());
    EXPECT_EQ(table.uGetCount(), 3U);
    EXPECT_EQ(table.rGetByID("a").attrib.strColor, "1");
    EXPECT_EQ(table.rGetByID("").attrib.strColor, "2");
    EXPECT_EQ(table.prGetByID("A"), nullptr);
    EXPECT_EQ(table.prGetByID("late"), nullptr);
    const StylingAttribGroup unknown = table.rGetByID("late");
    EXPECT_EQ(unknown.strId, "");
    EXPECT_EQ(Describe(unknown.attrib), "");
}

TEST_F(StyleTables, NeverMoveAnEntry) {
    vLoad("<head><layout><region xml:id='a' tts:color='first'/></layout></head>");
    RegionTable table;
    table.vGenerate(document.tt.first(), {1, 1});
    const StylingAttrib* const pFirst = table.prGetByID("a");
    for (int i = 0; i < 1000; ++i)
        table.vGenerate(document.tt.first(), {2, 2});
    EXPECT_EQ(table.uGetCount(), 1001U);
    EXPECT_EQ(table.prGetByID("a"), pFirst);
    EXPECT_EQ(pFirst->uExtentWidth, 1U);
}

TEST_F(StyleTables, StayEmptyWhereALevelIsMissing) {
    for (const char* head : {"", "<head/>", "<head><layout/><styling/></head>",
                             "<head/><head><styling><style/></styling></head>",
                             "<head><metadata><style/><region/></metadata></head>"}) {
        SCOPED_TRACE(head);
        vLoad(head);
        StyleTable styles;
        RegionTable regions;
        styles.vGenerate(document.tt.first());
        regions.vGenerate(document.tt.first(), {1, 1});
        EXPECT_EQ(styles.uGetCount() + regions.uGetCount(), 0U);
    }
    document.DestroyDocument();
    StyleTable styles;
    styles.vGenerate(document.tt.first());
    EXPECT_EQ(styles.uGetCount(), 0U);
}

} // namespace
