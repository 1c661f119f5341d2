#include "tests/support/repeated.h"
#include "tests/xmltree/sample_document.h"
#include "xmltree/namespace_prefixes.h"

#include <gtest/gtest.h>

namespace {

using tessera::MemberInfo;
using xercesc::DOMElement;
using xercesc::DOMNode;

TEST(NodeQueries, IsEqualStringComparesUnitByByte) {
    const XMLCh tt[] = {'t', 't', 0};
    const XMLCh accented[] = {0xE9, 0};
    const XMLCh wide[] = {0x0174, 0}; // its low byte is a 't'
    const XMLCh empty[] = {0};
    const struct {
        const XMLCh* utf16;
        const char* chars;
        bool equal;
    } cases[] = {{tt, "tt", true},    {tt, "t", false},         {tt, "ttp", false},
                 {tt, "tp", false},   {tt, nullptr, false},     {accented, "\xE9", true},
                 {wide, "t", false},  {empty, "", true},        {empty, nullptr, true},
                 {nullptr, "", true}, {nullptr, nullptr, true}, {nullptr, "t", false}};
    for (const auto& c : cases) {
        EXPECT_EQ(Tree::IsEqualString(c.utf16, c.chars), c.equal) << (c.chars ? c.chars : "null");
    }
}

TEST(NodeQueries, FindAttributeFindsWhatTheXmlLibraryFinds) {
    const SampleDocument sample("<p xmlns='urn:d' xmlns:a='urn:a' xmlns:b='urn:b' begin='0' a:begin='1'"
                                " b:begin='2' a:colour='' xml:id='i'/>");
    sample.Root()->setAttribute(XercesStringTemp("level1"), XercesStringTemp("3"));
    int found = 0;
    for (const char* namespaceURI : {"", "urn:a", "urn:b", "urn:d", "http://www.w3.org/XML/1998/namespace",
                                     "http://www.w3.org/2000/xmlns/"}) {
        const int foundBefore = found;
        for (const char* name : {"begin", "colour", "id", "level1", "a", "xmlns", "beg", "beginning", ""}) {
            const DOMNode* expected = sample.Root()->getAttributes()->getNamedItemNS(
                XercesStringTemp(namespaceURI), XercesStringTemp(name));
            const tessera::MemberInfo member = Attribute(namespaceURI, name);
            const tessera::MemberInfo other = Attribute("urn:a", "colour");
            EXPECT_EQ(Tree::FindAttribute(sample.Root(), member), expected) << namespaceURI << " " << name;
            Tree::SoughtAttribute sought[] = {{&other}, {&member}};
            Tree::FindAttributes(sample.Root(), sought, 2);
            EXPECT_EQ(sought[1].found, expected) << namespaceURI << " " << name;
            EXPECT_EQ(Tree::GetTextValue(sought[0].found), "");
            EXPECT_NE(sought[0].found, nullptr);
            found += expected ? 1 : 0;
        }
        EXPECT_EQ(Tree::HasAttributeInNamespace(sample.Root(), Attribute(namespaceURI, "")),
                  found > foundBefore);
    }
    EXPECT_EQ(found, 9);
    EXPECT_EQ(Tree::FindAttribute(sample.Get(), Attribute("", "begin")), nullptr);
    EXPECT_EQ(Tree::FindAttribute(nullptr, Attribute("", "begin")), nullptr);
}

/// The texts of the children that match a member.
std::string Texts(const DOMNode* node, const MemberInfo& member) {
    std::string texts;
    for (auto match = Tree::GetElements(node, member); match.CurrentNode(); ++match) {
        texts += Tree::GetTextValue(match.CurrentNode());
    }
    return texts;
}

TEST(NodeQueries, IteratorsWalkTheChildrenOfAMember) {
    const SampleDocument sample("<div xmlns:o='urn:o'><!--c-->one<p>1</p><o:p>2</o:p><br/><p>3</p>"
                                "<![CDATA[two]]></div>");
    const MemberInfo p = Child("urn:tt", "p");
    const MemberInfo span = Child("urn:tt", "span");
    EXPECT_EQ(Texts(sample.Root(), p), "123") << "namespaces of elements are not compared";
    EXPECT_EQ(Texts(sample.Root(), TEXT), "onetwo");
    EXPECT_EQ(Texts(nullptr, TEXT), "");
    EXPECT_FALSE(++Tree::GetElements(sample.Root(), span));

    auto all = Tree::GetElements(sample.Root());
    int moves = 0;
    while (++all) {
        ++moves;
    }
    EXPECT_EQ(moves, 6);
    EXPECT_FALSE(++all);

    DOMElement* withoutLocalName = sample.Get()->createElement(XercesStringTemp("p"));
    EXPECT_TRUE(Tree::IsMember(withoutLocalName, p));
    EXPECT_FALSE(Tree::IsMember(withoutLocalName, span));
}

TEST(NodeQueries, TextOfANodeByItsKind) {
    const SampleDocument sample("<!DOCTYPE p [<!ENTITY e 'by <i>name</i>'>]>"
                                "<p a='v&#xE9;&lt;'>Hello <span>big</span><!--not me--><?nor me?> world"
                                "<![CDATA[<&>]]>&e;<only><!--c--></only></p>");
    const DOMNode* span = sample.Element("span");
    sample.Element("only")->setAttribute(XercesStringTemp("b"), XercesStringTemp("one"));
    DOMNode* twoTexts = Tree::FindAttribute(sample.Element("only"), "", "b");
    twoTexts->appendChild(sample.Get()->createTextNode(XercesStringTemp("two")));
    const struct {
        const DOMNode* node;
        const char* text;
    } cases[] = {{sample.Root(), "Hello big world<&>by name"},
                 {sample.Get(), "Hello big world<&>by name"},
                 {sample.Root()->getFirstChild(), "Hello "},
                 {span->getNextSibling(), "not me"},
                 {span->getNextSibling()->getNextSibling(), "me"},
                 {sample.Element("only"), ""},
                 {Tree::FindAttribute(sample.Root(), "", "a"), "v\xE9<"},
                 {twoTexts, "onetwo"},
                 {sample.Get()->getDoctype(), ""},
                 {nullptr, ""}};
    for (const auto& c : cases) {
        EXPECT_EQ(Tree::GetTextValue(c.node), c.text);
    }
}

TEST(NodeQueries, DeepDocumentsAreWalkedWithoutRecursion) {
    constexpr std::size_t DEPTH = 100000;
    const SampleDocument sample(Repeated("<e xmlns='u'>x", DEPTH) + "<end/>" + Repeated("y</e>", DEPTH));
    EXPECT_EQ(Tree::GetTextValue(sample.Root()).size(), 2 * DEPTH);
    const MemberInfo member = Attribute("urn:n", "a");
    DOMElement* end = sample.Element("end");
    Tree::SetValue(end, member, "v");
    EXPECT_EQ(Tree::GetTextValue(Tree::FindAttribute(end, member)), "v");
    EXPECT_EQ(GetUnusedPrefix(end, ""), "n0");
    const SampleDocument copy("<e/>");
    Tree::CopyAll(sample.Root(), copy.Root());
    EXPECT_EQ(Tree::GetTextValue(copy.Root()), Tree::GetTextValue(sample.Root()));
    EXPECT_EQ(Tree::GetTextValue(Tree::FindAttribute(copy.Element("end"), member)), "v");
    Tree::SetTextValue(sample.Root(), "flat");
    EXPECT_EQ(sample.Text(), "<e xmlns='u'>flat</e>");
}

} // namespace
