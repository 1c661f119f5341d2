#include "binding/member_accessors.h"

#include "binding/ttaf1_dfxp.h"
#include "tests/binding/owned_document.h"
#include "tests/support/outcomes.h"

#include <gtest/gtest.h>

#include <string>

using namespace ttaf1_dfxp;

namespace {

template <class T, std::uint32_t member, std::uint32_t enumFirst, std::uint32_t enumCount>
T Read(const MemberAttribute<T, member, enumFirst, enumCount>& attribute) {
    return attribute;
}

/// The first p of the body's first div of a document whose p is `p`.
const std::string HEAD =
    "<tt xmlns='http://www.w3.org/ns/ttml' xmlns:tts='http://www.w3.org/ns/ttml#styling' "
    "xmlns:cff='http://www.decellc.org/schema/2012/01/cff-tt-meta'><body><div>";
const std::string TAIL = "</div></body></tt>";

tt::Cp_eltype FirstP(const OwnedDocument& document) {
    return document.root.tt.first().body.first().div.first().p.first();
}

} // namespace

TEST(MemberAttribute, IsReadAsItsType) {
    const OwnedDocument document(
        "<tt xmlns:ttp='http://www.w3.org/ns/ttml#parameter' ttp:frameRate='5000000000' "
        "threshold='2.25'/>");
    EXPECT_EQ(Read(document.root.tt.first().frameRate), 5000000000U);
    EXPECT_EQ(Read(tt::CinformationType(document.Dom().getDocumentElement()).threshold), 2.25);
}

TEST(MemberElement, GivesWayToAnAttributeOfItsName) {
    const OwnedDocument document(
        "<body xmlns:ttm='http://www.w3.org/ns/ttml#metadata' ttm:agent='a'><ttm:agent/></body>");
    const tt::Cbody_eltype body(document.Dom().getDocumentElement());
    EXPECT_EQ(Read(body.agent), "a");
    EXPECT_EQ(body.agent2.first().GetNode(), document.Dom().getDocumentElement()->getFirstChild());
}

TEST(MemberAttribute, IsFoundByNamespaceAndLocalName) {
    const struct {
        const char* attributes;
        bool exists;
        const char* value;
    } cases[] = {
        {"tts:color='red'", true, "red"},
        {"xmlns:s='http://www.w3.org/ns/ttml#styling' s:color='red'", true, "red"},
        {"tts:color=''", true, ""},
        {"tts:color=' #ff0000 '", true, " #ff0000 "},
        {"color='red'", false, ""},
        {"xmlns:tts='urn:other' tts:color='red'", false, ""},
        {"tts:backgroundColor='red'", false, ""},
        {"", false, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.attributes);
        const OwnedDocument document(HEAD + "<p " + c.attributes + "/>" + TAIL);
        const auto p = FirstP(document);
        EXPECT_EQ(p.color.exists(), c.exists);
        EXPECT_EQ(p.color.value(), c.exists ? std::optional<std::string>(c.value) : std::nullopt);
    }
}

TEST(MemberAttribute, ReadingAnAbsentOneThrows) {
    const OwnedDocument document(HEAD + "<p/>" + TAIL);
    const auto p = FirstP(document);
    EXPECT_EQ(ThrownMessage<tessera::InvalidOperationException>([&] { Read(p.begin); }),
              "Cannot read value of non-existent attribute.");
}

TEST(MemberAttribute, BooleansAreReadByTheirLexicalRules) {
    const struct {
        const char* text;
        bool value;
    } cases[] = {{"1", true}, {" true ", true}, {"true", true}, {"0", false}, {"false", false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        const OwnedDocument document(HEAD + "<p cff:forcedDisplayMode='" + c.text + "'/>" + TAIL);
        EXPECT_EQ(Read(FirstP(document).forcedDisplayMode), c.value);
    }
    for (const char* word : {"yes", "", "True"}) {
        SCOPED_TRACE(word);
        const OwnedDocument document(HEAD + "<p cff:forcedDisplayMode='" + word + "'/>" + TAIL);
        const auto p = FirstP(document);
        EXPECT_TRUE(p.forcedDisplayMode.exists());
        EXPECT_THROW(Read(p.forcedDisplayMode), tessera::StringParseException);
        EXPECT_THROW(p.forcedDisplayMode.value(), tessera::StringParseException);
    }
}

TEST(MemberElement, IsFoundInAnyNamespace) {
    const OwnedDocument document("<x:tt xmlns:x='urn:x'><y:body xmlns:y='urn:y'><div/></y:body></x:tt>");
    EXPECT_TRUE(document.root.tt.first().body.first().div.exists());
    EXPECT_FALSE(document.root.tt.first().head.exists());
    EXPECT_EQ(document.root.tt.first().head.first().GetNode(), nullptr);
    auto none = document.root.tt.first().head.all();
    EXPECT_EQ(none.CurrentNode(), nullptr);
    EXPECT_FALSE(++none);
}

TEST(Iterator, WalksOnlyItsKindAndStaysOnTheLast) {
    const OwnedDocument document(HEAD + "<p begin='1s'/> text <div/><!-- --><p begin='2s'/><set/>" + TAIL);
    auto p = document.root.tt.first().body.first().div.first().p.all();
    EXPECT_EQ(p.begin.value(), "1s");
    const auto first = p;
    EXPECT_TRUE(++p);
    EXPECT_EQ(p.begin.value(), "2s");
    EXPECT_EQ(first.begin.value(), "1s");
    EXPECT_FALSE(++p);
    EXPECT_EQ(p.CurrentNode(), nullptr);
    EXPECT_EQ(p.begin.value(), "2s");
    EXPECT_FALSE(++p);
    EXPECT_EQ(p.begin.value(), "2s");
}

TEST(Wrappers, CopiesBindTheirOwnAccessors) {
    const OwnedDocument document(HEAD + "<p begin='1s'/><p begin='2s'/>" + TAIL);
    auto iterator = document.root.tt.first().body.first().div.first().p.all();
    tt::Cp_eltype assigned(nullptr);
    {
        const tt::Cp_eltype copy(iterator);
        assigned = copy;
        ++iterator;
        EXPECT_EQ(copy.begin.value(), "1s");
    }
    EXPECT_EQ(assigned.begin.value(), "1s");
    assigned = iterator;
    EXPECT_EQ(assigned.begin.value(), "2s");
}
