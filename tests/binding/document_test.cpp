#include "binding/ttaf1_dfxp.h"

#include "tests/binding/owned_document.h"
#include "tests/support/outcomes.h"
#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace ttaf1_dfxp;
using tt::Cttaf1_dfxp;

namespace {

using Bytes = std::vector<unsigned char>;

const std::string TTML = "<tt xmlns=\"http://www.w3.org/ns/ttml\" xml:lang=\"en\"><body/></tt>";

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

class Document : public testing::Test {
    XercesSession session;
};

} // namespace

TEST_F(Document, IsDestroyedOnce) {
    auto document = Cttaf1_dfxp::CreateDocument();
    EXPECT_NE(document.GetNode(), nullptr);
    document.DestroyDocument();
    EXPECT_EQ(document.GetNode(), nullptr);
    document.DestroyDocument();
    EXPECT_FALSE(document.tt.exists());
}

TEST_F(Document, SavesInTheEncodingAskedFor) {
    const OwnedDocument document(TTML);
    const struct {
        const char* encoding;
        Bytes start;
    } cases[] = {
        {"UTF-8", {'<', '?'}},
        {"utf-16", {0xFF, 0xFE, '<', 0}},
        {"UTF-16LE", {'<', 0, '?', 0}},
        {"utf-16be", {0, '<', 0, '?'}},
    };
    const TemporaryFile file;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.encoding);
        const Bytes bytes = document.root.SaveToBinary(false, c.encoding);
        ASSERT_GE(bytes.size(), c.start.size());
        EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(c.start.size())), c.start);
        auto again = Cttaf1_dfxp::LoadFromBinary(bytes);
        EXPECT_EQ(std::string(again.tt.first().lang), "en");
        again.DestroyDocument();
        document.root.SaveToFile(file.path, false, c.encoding);
        EXPECT_EQ(file.Bytes(), bytes);
    }
    document.root.SaveToFile(file.path, true, "UTF-16", true, true);
    EXPECT_EQ(file.Bytes(), document.root.SaveToBinary(true, "UTF-16", true, true));
    document.root.SaveToFile(file.path, false);
    EXPECT_EQ(file.Bytes(), document.root.SaveToBinary(false, "UTF-8"));
    EXPECT_TRUE(Contains(document.root.SaveToString(false), TTML));
}

TEST_F(Document, WhatCannotBeSavedThrows) {
    const OwnedDocument document(TTML);
    const std::string path = testing::TempDir() + "no_such_folder/binding.xml";
    EXPECT_THROW(document.root.SaveToFile(path, false), tessera::DataTargetUnavailableException);
    const Cttaf1_dfxp none(nullptr);
    const Cttaf1_dfxp element(document.Dom().getDocumentElement());
    for (const auto& wrapper : {none, element}) {
        EXPECT_THROW(wrapper.SaveToString(false), tessera::InvalidOperationException);
        EXPECT_THROW(wrapper.SaveToBinary(false), tessera::InvalidOperationException);
        EXPECT_THROW(wrapper.SaveToFile(path, false), tessera::InvalidOperationException);
    }
}

TEST_F(Document, SchemaLocation) {
    OwnedDocument inNamespace(TTML);
    inNamespace.root.SetSchemaLocation("ttml.xsd");
    EXPECT_TRUE(Contains(inNamespace.root.SaveToString(false),
                         "xsi:schemaLocation=\"http://www.w3.org/ns/ttml ttml.xsd\""));
    OwnedDocument inNone("<tt/>");
    inNone.root.SetSchemaLocation("ttml.xsd");
    EXPECT_TRUE(Contains(inNone.root.SaveToString(false), "xsi:noNamespaceSchemaLocation=\"ttml.xsd\""));
}

TEST_F(Document, DTDLocation) {
    OwnedDocument document("<!DOCTYPE tt [<!ELEMENT tt ANY>]><!-- first --><tt/>");
    document.root.SetDTDLocation("new.dtd");
    EXPECT_TRUE(
        Contains(document.root.SaveToString(false), "<!-- first --><!DOCTYPE tt SYSTEM \"new.dtd\"><tt"));
    document.root.SetDTDLocation("newer.dtd");
    const std::string text = document.root.SaveToString(false);
    EXPECT_TRUE(Contains(text, "<!DOCTYPE tt SYSTEM \"newer.dtd\">"));
    EXPECT_FALSE(Contains(text, "new.dtd"));
}

TEST_F(Document, LocationsNeedARootElement) {
    using tessera::InvalidOperationException;
    OwnedDocument empty;
    for (Cttaf1_dfxp document : {empty.root, Cttaf1_dfxp(nullptr)}) {
        EXPECT_EQ(ThrownMessage<InvalidOperationException>([&] { document.SetSchemaLocation("x"); }),
                  "You have to add a root element before setting schema location.");
        EXPECT_EQ(ThrownMessage<InvalidOperationException>([&] { document.SetDTDLocation("x"); }),
                  "You have to add a root element before setting DTD location.");
    }
}
