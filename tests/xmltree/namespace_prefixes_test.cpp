#include "runtime/qname.h"
#include "tests/xmltree/sample_document.h"
#include "xmltree/namespace_prefixes.h"

#include <gtest/gtest.h>

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

} // namespace
