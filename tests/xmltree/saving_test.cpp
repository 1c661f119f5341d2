#include "runtime/exceptions.h"
#include "tests/support/captured_output.h"
#include "tests/support/outcomes.h"
#include "tests/support/repeated.h"
#include "tests/support/temporary_file.h"
#include "tests/xmltree/sample_document.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>

namespace {

using Bytes = std::vector<unsigned char>;

constexpr char XML[] = "<tt a='\xC3\xA9'><p>t</p></tt>";

std::string RootText(const Bytes& bytes) {
    xercesc::DOMDocument* document = Tree::LoadFromBinary(bytes);
    const std::string text =
        Tree::GetTextValue(Tree::FindAttribute(document->getDocumentElement(), "", "a")) +
        Tree::GetTextValue(document);
    Tree::FreeDocument(document);
    return text;
}

TEST(Saving, ToBytesInTheEncodingAskedFor) {
    const SampleDocument sample(XML);
    const struct {
        const char* encoding;
        bool bigEndian;
        bool withBOM;
        Bytes beginning;
    } cases[] = {
        {"UTF-8", false, true, {0xEF, 0xBB, 0xBF, '<', '?'}},
        {"UTF-16", true, true, {0xFE, 0xFF, 0, '<'}},
        {"ISO-8859-1", true, true, {'<', '?', 'x'}},
    };
    for (const auto& c : cases) {
        Bytes data(3, 'x');
        Tree::SaveToBinary(data, sample.Get(), false, c.encoding, c.bigEndian, c.withBOM, true);
        ASSERT_GT(data.size(), c.beginning.size());
        EXPECT_TRUE(std::equal(c.beginning.begin(), c.beginning.end(), data.begin())) << c.encoding;
        EXPECT_EQ(RootText(data), "\xE9t") << c.encoding;
    }
}

TEST(Saving, WithoutEncodingTheBytesAreTheXmlLibrarysOwn) {
    const SampleDocument sample(XML);
    Bytes data;
    Tree::SaveToBinary(data, sample.Get(), false, "UTF-16", true, true, false);
    EXPECT_EQ(data, Tree::SaveToBinary(sample.Get(), false));
    EXPECT_EQ(RootText(data), "\xE9t");
    EXPECT_GT(Tree::SaveToBinary(sample.Get(), true).size(), data.size());
}

TEST(Saving, ToAStringOfNarrowedUnits) {
    const SampleDocument sample("<tt>\xC3\xA9\xE2\x82\xAC</tt>");
    EXPECT_EQ(sample.Text(), "<tt>\xE9\xAC</tt>");
    EXPECT_NE(Tree::SaveXml(sample.Get(), true), Tree::SaveXml(sample.Get(), false));
}

TEST(Saving, ToAFile) {
    const SampleDocument sample(XML);
    const TemporaryFile file;
    const std::string output = CapturedOutput([&] {
        Tree::SaveDocument(sample.Get(), file.path, false);
        EXPECT_EQ(file.Bytes(), Tree::SaveToBinary(sample.Get(), false));
        Tree::SaveDocument(sample.Get(), file.path, false, "UTF-16", true, true);
    });
    EXPECT_EQ(output, "");
    EXPECT_EQ(file.Bytes()[0], 0xFE);
    EXPECT_EQ(RootText(file.Bytes()), "\xE9t");
}

std::string Nested(std::size_t depth) {
    return Repeated("<a>", depth) + Repeated("</a>", depth);
}

TEST(Saving, DepthsThatNeedLittleStack) {
    const SampleDocument sample(Nested(1000));
    const Bytes data = Tree::SaveToBinary(sample.Get(), false);
    EXPECT_GT(data.size(), Nested(999).size());
    EXPECT_GT(Tree::SaveXml(sample.Get(), false).size(), Nested(999).size());
}

TEST(Saving, FailuresLeaveNoFileButTheBytesProduced) {
    const SampleDocument deep(Nested(10000));
    const std::string tooDeep = "Xerces XML error while saving: The document is nested too deep.";
    const SampleDocument sample("<tt><!--\xE2\x82\xAC--></tt>"); // Latin-1 cannot write the comment
    const TemporaryFile file;
    const std::string& path = file.path;
    std::remove(path.c_str());
    const std::string nowhere = testing::TempDir() + "xttml_no_such_directory/file.xml";
    Bytes data;
    const struct {
        std::function<void()> save;
        std::string message;
    } cases[] = {
        {[&] { Tree::SaveDocument(sample.Get(), nowhere, false); },
         "Could not open file " + nowhere + " for writing."},
        {[&] { Tree::SaveDocument(sample.Get(), path, false, "no-such-encoding", false, false); },
         "Xerces XML error while saving."},
        {[&] { Tree::SaveToBinary(data, sample.Get(), false, "ISO-8859-1", false, false, true); },
         "Xerces XML error while saving."},
        {[&] { Tree::SaveDocument(deep.Get(), path, true); }, tooDeep},
        {[&] { Tree::SaveXml(deep.Get(), false); }, tooDeep},
        {[] { Tree::SaveToBinary(nullptr, false); }, "Xerces XML error while saving."},
        {[] { Tree::SaveXml(nullptr, false); }, "Xerces XML error while saving."},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ThrownMessage<tessera::DataTargetUnavailableException>(c.save), c.message);
    }
    EXPECT_FALSE(std::ifstream(path).is_open());
    EXPECT_EQ(std::string(data.begin(), data.end()).substr(0, 5), "<?xml");
}

} // namespace
