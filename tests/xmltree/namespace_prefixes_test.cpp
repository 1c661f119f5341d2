#include "runtime/exceptions.h"
#include "runtime/qname.h"
#include "tests/xmltree/sample_document.h"
#include "xmltree/namespace_names.h"
#include "xmltree/namespace_prefixes.h"

#include <gtest/gtest.h>

#include <clocale>
#include <functional>

namespace {

/// `here` is the element that every case asks at.
struct PrefixCase {
    const char* xml;
    const char* sought;
    const char* prefix;
};

TEST(NamespacePrefixes, TheOutermostDeclarationNotReboundIsFound) {
    const PrefixCase cases[] = {
        {"<here/>", "http://www.w3.org/XML/1998/namespace", "xml"},
        {"<here/>", "http://www.w3.org/2000/xmlns/", "xmlns"},
        {"<here xmlns='urn:x'/>", "urn:x", ""},
        {"<here xmlns:a='urn:x'/>", "urn:x", "a"},
        {"<r xmlns:a='urn:x'><m xmlns:b='urn:x'><here/></m></r>", "urn:x", "a"},
        {"<r xmlns:a='urn:x'><here xmlns:a='urn:y'/></r>", "urn:x", ""},
        {"<r xmlns:a='urn:x'><here xmlns:a='urn:y'/></r>", "urn:y", "a"},
        {"<r xmlns:a='urn:x'><m xmlns:a='urn:y' xmlns:b='urn:x'><here/></m></r>", "urn:x", "b"},
        {"<r xmlns:a='urn:x'><m xmlns:a='urn:y'><here xmlns:a='urn:x'/></m></r>", "urn:x", "a"},
        {"<r><m xmlns:a='urn:x'/><here/></r>", "urn:x", ""},
    };
    for (const PrefixCase& c : cases) {
        const SampleDocument sample(c.xml);
        EXPECT_EQ(FindPrefixForNamespace(sample.Element("here"), c.sought), c.prefix) << c.xml;
    }
}

TEST(NamespacePrefixes, UnusedPrefixIsTheCandidateThatReachesTheDocument) {
    const PrefixCase cases[] = {
        {"<here/>", "", "n0"},
        {"<here/>", "tt", "tt"},
        {"<here xmlns:n0='u' xmlns:n1='u'/>", "", "n2"},
        {"<r xmlns:n0='u'><here xmlns:n2='u'/></r>", "", "n1"},
        {"<r xmlns:n1='u'><here xmlns:n0='u'/></r>", "", "n2"},
        {"<r xmlns:tt='u'><here/></r>", "tt", "tt1"},
        // an element passed already is not asked again
        {"<r xmlns:n0='u'><here xmlns:n1='u'/></r>", "", "n1"},
    };
    for (const PrefixCase& c : cases) {
        const SampleDocument sample(c.xml);
        EXPECT_EQ(GetUnusedPrefix(sample.Element("here"), c.sought), c.prefix) << c.xml;
        xercesc::DOMNode* root = sample.Get()->removeChild(sample.Root());
        EXPECT_EQ(GetUnusedPrefix(root, c.sought), "") << "in no document";
    }
}

TEST(NamespacePrefixes, QualifiedNamesAreResolvedInScope) {
    const struct {
        const char* xml;
        tessera::QName name;
    } cases[] = {
        {"<r xmlns:tt='urn:tt'><here v='tt:p'/></r>", {"urn:tt", "tt", "p"}},
        {"<r xmlns:tt='urn:tt'><here xmlns:tt='urn:in' v='tt:p'/></r>", {"urn:in", "tt", "p"}},
        {"<here xmlns='urn:d' v='tt:p'/>", {"", "tt", "p"}},
        {"<here xmlns='urn:d' v=':p'/>", {"", "", "p"}},
        {"<here xmlns:a='urn:a' v='a:b:c'/>", {"urn:a", "a", "b:c"}},
        {"<r xmlns='urn:d'><here v='p'/></r>", {"urn:d", "", "p"}},
        {"<r xmlns='urn:d'><m xmlns=''><here v='p'/></m></r>", {"", "", "p"}},
        {"<r xmlns='urn:d' xmlns:o='urn:o'><o:here v='p'/></r>", {"urn:d", "", "p"}},
        {"<here v='p'/>", {"", "", "p"}},
    };
    for (const auto& c : cases) {
        const SampleDocument sample(c.xml);
        xercesc::DOMElement* here = sample.Element("here");
        const xercesc::DOMNode* attribute = Tree::FindAttribute(here, "", "v");
        Tree::SetTextValue(here, Tree::GetTextValue(attribute));
        for (const xercesc::DOMNode* node : {attribute, static_cast<const xercesc::DOMNode*>(here)}) {
            const tessera::QName name = Tree::CastToQName(node, TEXT);
            EXPECT_EQ(name.uri, c.name.uri) << c.xml;
            EXPECT_EQ(name.prefix, c.name.prefix) << c.xml;
            EXPECT_EQ(name.localName, c.name.localName) << c.xml;
        }
    }
}

const tessera::MemberInfo A = Attribute("", "a");
const tessera::MemberInfo S_A = Attribute("urn:s", "a");
const tessera::MemberInfo O_B = Attribute("urn:o", "b");
const std::string LATIN_1 = "<?xml version='1.0' encoding='ISO-8859-1'?>"; // what narrowed units are

/// The elements inside a node and their attributes, named by namespace, as "{urn}name(attributes)[children]";
/// in a value with a prefix the prefix is resolved.
std::string Resolved(const xercesc::DOMNode* node) {
    const auto name = [](const xercesc::DOMNode* named) {
        const XercesUnstringTemp uri(named->getNamespaceURI());
        return (uri.empty() ? "" : "{" + uri + "}") + XercesUnstringTemp(named->getLocalName());
    };
    std::vector<std::string> attributes;
    for (XMLSize_t i = 0; i < node->getAttributes()->getLength(); ++i) {
        const xercesc::DOMNode* attribute = node->getAttributes()->item(i);
        const tessera::QName value = Tree::CastToQName(attribute, A);
        const std::string uri = value.prefix.empty() ? "" : "{" + value.uri + "}";
        if (XercesUnstringTemp(attribute->getNamespaceURI()) != XMLNS_NAMESPACE) {
            attributes.push_back(" " + name(attribute) + "=" + uri + value.localName);
        }
    }
    std::sort(attributes.begin(), attributes.end());
    std::string text = name(node);
    for (const std::string& attribute : attributes) {
        text += attribute;
    }
    for (auto child = Tree::GetElements(node); child.CurrentNode(); ++child) {
        text += "[" + Resolved(child.CurrentNode()) + "]";
    }
    return text;
}

TEST(NamespacePrefixes, WhatIsSavedLoadsAgainInTheSameNamespaces) {
    const auto typed = [](xercesc::DOMNode* n) {
        Tree::SetAttribute(n, "xsi:type", "urn:xsi", "p", "urn:tt");
    };
    const auto named = [](const char* name) {
        return [name](xercesc::DOMNode* n) { Tree::SetAttribute(n, name, "urn:s", "1"); };
    };
    const auto valued = [](const char* name) {
        return [name](xercesc::DOMNode* n) { Tree::SetValue(n, A, tessera::QName("urn:s", name)); };
    };
    const struct {
        const char* before;
        std::function<void(xercesc::DOMNode* here)> edit;
        const char* after;
    } cases[] = {
        {"<here xmlns:xsi='urn:o' xsi:b='1'/>", typed, "here {urn:o}b=1 {urn:xsi}type={urn:tt}p"},
        {"<xsi:here xmlns:xsi='urn:o' b='xsi:v'/>", typed, "{urn:o}here b={urn:o}v {urn:xsi}type={urn:tt}p"},
        {"<r xmlns:x='urn:o'><here b='x:v'><x:c/></here></r>", named("x:a"),
         "r[here b={urn:o}v {urn:s}a=1[{urn:o}c]]"},
        {"<here/>", named("xml:a"), "here {urn:s}a=1"},
        {"<here/>", named("xmlns:a"), "here {urn:s}a=1"},
        {"<here/>", valued("xml:v"), "here a={urn:s}v"},
        {"<here/>", valued("xmlns:v"), "here a={urn:s}v"},
        {"<here xmlns:\xC3\xA9='urn:s'/>", named("a"), "here {urn:s}a=1"},
        {"<here xmlns:\xC3\xA9='urn:s'/>", valued("v"), "here a={urn:s}v"},
        // a name under a prefix that is declared only above, for another namespace, and later than the name
        {"<r><m><here/></m></r>",
         [](xercesc::DOMNode* n) {
             for (xercesc::DOMNode* node : {n, Tree::GetParent(n)}) {
                 Tree::SetValue(node, S_A, "1");
             }
             Tree::SetAttribute(n->getOwnerDocument()->getDocumentElement(), "b", "urn:o", "2");
             Tree::SetValue(n, O_B, "3");
             Tree::SetValue(n, A, tessera::QName("urn:o", "v"));
             Tree::SetValue(Tree::AddElement(n, Child("urn:o", "c")), A, tessera::QName("urn:o", "w"));
         },
         "r {urn:o}b=2[m {urn:s}a=1[here a={urn:o}v {urn:o}b=3 {urn:s}a=1[{urn:o}c a={urn:o}w]]]"},
    };
    for (const auto& c : cases) {
        const SampleDocument sample(c.before);
        c.edit(sample.Element("here"));
        EXPECT_EQ(Resolved(sample.Root()), c.after) << c.before;
        const std::vector<unsigned char> bytes = Tree::SaveToBinary(sample.Get(), false);
        for (const std::string& saved : {std::string(bytes.begin(), bytes.end()), LATIN_1 + sample.Text()}) {
            try {
                EXPECT_EQ(Resolved(SampleDocument(saved).Root()), c.after) << saved;
            } catch (const tessera::DataSourceUnavailableException& failure) {
                ADD_FAILURE() << failure.message() << "\n" << saved;
            }
        }
    }
}

/// Names that are not ASCII are converted from the code page of the process, which is UTF-8 here; those from
/// a document come narrowed.
TEST(NamespacePrefixes, NamesAreConverted) {
    const std::string before = std::setlocale(LC_CTYPE, nullptr);
    std::setlocale(LC_CTYPE, "C.UTF-8");
    {
        // the units of the last name have the values of the bytes of U+0137
        const SampleDocument sample("<here xmlns:a='urn:\xC3\xA9' a:\xC3\xA9t\xC3\xA9='1' a:et\xC3\xA9='2' "
                                    "xmlns:\xC3\xA9='urn:e' v='\xC3\xA9:p' a:\xC3\x84\xC2\xB7='3'/>");
        const xercesc::DOMElement* here = sample.Element("here");
        const auto value = [here](const char* namespaceURI, const char* name) {
            const tessera::MemberInfo member = Attribute(namespaceURI, name);
            Tree::SoughtAttribute sought[] = {{&member}};
            Tree::FindAttributes(here, sought, 1);
            EXPECT_EQ(sought[0].found, Tree::FindAttribute(here, member));
            return Tree::GetTextValue(sought[0].found);
        };
        EXPECT_EQ(value("urn:\xC3\xA9", "\xC3\xA9t\xC3\xA9"), "1");
        EXPECT_EQ(value("urn:\xC3\xA9", "et\xC3\xA9"), "2");
        EXPECT_EQ(value("urn:\xC3\xA9", "\xC3\x84\xC2\xB7"), "3");
        EXPECT_EQ(value("urn:\xC3\xA9", "\xC4\xB7"), "");
        EXPECT_TRUE(Tree::HasAttributeInNamespace(here, Attribute("urn:\xC3\xA9", "")));
        EXPECT_FALSE(Tree::HasAttributeInNamespace(here, Attribute("urn:\xC4\xB7", "")));
        EXPECT_EQ(FindPrefixForNamespace(here, "urn:\xC3\xA9"), "a");
        EXPECT_EQ(FindPrefixForNamespace(here, "urn:e"), "\xE9");
        EXPECT_EQ(GetUnusedPrefix(here, "\xC3\xA9"), std::string("\xC3\xA9") + "1");
        EXPECT_EQ(Tree::CastToQName(Tree::FindAttribute(here, "", "v"), TEXT).uri, "urn:e");
    }
    std::setlocale(LC_CTYPE, before.c_str());
}

} // namespace
