#include "runtime/exceptions.h"
#include "runtime/qname.h"
#include "tests/xmltree/sample_document.h"
#include "xmltree/namespace_names.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using tessera::QName;
using xercesc::DOMException;
using xercesc::DOMNode;

/// One edit at the element `here`, and the document it leaves. "!" and a number: the DOMException's code.
struct EditCase {
    const char* before;
    std::function<void(DOMNode* here)> edit;
    const char* after;
};

std::string Edited(const EditCase& c) {
    const SampleDocument sample(c.before);
    try {
        c.edit(sample.Element("here"));
    } catch (const DOMException& refusal) {
        return "!" + std::to_string(refusal.code);
    }
    return sample.Text();
}

template <std::size_t N>
void ExpectEdits(const EditCase (&cases)[N]) {
    for (const EditCase& c : cases) {
        EXPECT_EQ(Edited(c), c.after) << c.before;
    }
}

const tessera::MemberInfo P = Child("urn:tt", "p");
const tessera::MemberInfo PLAIN = Attribute("", "a");
const tessera::MemberInfo STYLED = Attribute("urn:s", "a");
const tessera::MemberInfo OTHER = Attribute("urn:o", "b");
const XMLCh* const NO_VALUE = nullptr;

TEST(NodeEdits, Elements) {
    const EditCase cases[] = {
        {"<here xmlns:t='urn:tt'/>", [](DOMNode* n) { Tree::AddElement(n, P); },
         "<here xmlns:t='urn:tt'><t:p/></here>"},
        {"<here xmlns='urn:tt'/>", [](DOMNode* n) { Tree::AddElement(n, P); },
         "<here xmlns='urn:tt'><p/></here>"},
        {"<here/>", [](DOMNode* n) { Tree::AddElement(n, Child("", "no name")); }, "!5"},
        {"<?xml version='1.1'?><r xmlns:a='u'><here xmlns:a=''/></r>",
         [](DOMNode* n) { Tree::AddElement(n, Child("", "p")); },
         "<r xmlns:a='u'><here xmlns:a=''><p/></here></r>"},
        {"<here><p/>t<o:p xmlns:o='u'/><q/><p/></here>", [](DOMNode* n) { Tree::RemoveElements(n, P); },
         "<here>t<q/></here>"},
        {"<here><p/><q/><p>1</p></here>",
         [](DOMNode* n) {
             Tree::RemoveElement(n, P, 1);
             Tree::RemoveElement(n, P, 1);
         },
         "<here><p/><q/></here>"},
        {"<here/>", [](DOMNode* n) { Tree::AddProcessingInstruction(n, "target", "data"); },
         "<here><?target data?></here>"},
    };
    ExpectEdits(cases);
}

TEST(NodeEdits, Text) {
    const EditCase cases[] = {
        {"<here><p>t</p>u<![CDATA[v]]></here>", [](DOMNode* n) { Tree::SetTextValue(n, "<new>"); },
         "<here>&lt;new&gt;</here>"},
        {"<!DOCTYPE r [<!ENTITY e '<p>x</p>'>]><r><here><q>&e;</q></here></r>",
         [](DOMNode* n) {
             Tree::SetTextValue(n, "t");
             n->getOwnerDocument()->removeChild(n->getOwnerDocument()->getDoctype());
         },
         "<r><here>t</here></r>"},
        {"<here>old</here>", [](DOMNode* n) { Tree::SetValue(n->getFirstChild(), "new"); },
         "<here>new</here>"},
        {"<here>t<p/><![CDATA[v]]></here>", [](DOMNode* n) { Tree::RemoveAttribute(n, TEXT); },
         "<here><p/></here>"},
        {"<here>old</here>", [](DOMNode* n) { Tree::SetValue(n, TEXT, NO_VALUE); }, "<here></here>"},
    };
    ExpectEdits(cases);
}

TEST(NodeEdits, AttributesOfMembers) {
    const EditCase cases[] = {
        {"<here s:a='1' xmlns:s='urn:s'/>", [](DOMNode* n) { Tree::SetValue(n, STYLED, "2"); },
         "<here xmlns:s='urn:s' s:a='2'/>"},
        {"<here/>",
         [](DOMNode* n) {
             Tree::SetValue(n, STYLED, "1");
             Tree::SetValue(n, OTHER, "2");
             Tree::SetValue(n, STYLED, "3");
         },
         "<here xmlns:n0='urn:s' n0:a='3' xmlns:n1='urn:o' n1:b='2'/>"},
        {"<here>text<p>s</p></here>", [](DOMNode* n) { Tree::SetValue(n, PLAIN, n); },
         "<here a='texts'>text<p>s</p></here>"},
        {"<here>t</here>", [](DOMNode* n) { Tree::SetValue(n->getFirstChild(), PLAIN, "1"); }, "!3"},
        {"<here a='1' b='2'/>", [](DOMNode* n) { Tree::RemoveAttribute(n, PLAIN); }, "<here b='2'/>"},
        {"<here/>", [](DOMNode* n) { Tree::RemoveAttribute(n, PLAIN); }, "<here/>"},
        {"<here b='2'/>", [](DOMNode* n) { Tree::RemoveAttribute(n, PLAIN); }, "!8"},
    };
    ExpectEdits(cases);
}

TEST(NodeEdits, AttributesByName) {
    const EditCase cases[] = {
        {"<r xmlns:y='urn:s'><here/></r>", [](DOMNode* n) { Tree::SetAttribute(n, "x:attr", "urn:s", "1"); },
         "<r xmlns:y='urn:s'><here y:attr='1'/></r>"},
        {"<here/>", [](DOMNode* n) { Tree::SetAttribute(n, "x:attr", "urn:s", "1"); },
         "<here xmlns:x='urn:s' x:attr='1'/>"},
        {"<here/>",
         [](DOMNode* n) {
             Tree::SetAttribute(n, "x:one", "urn:s", "1");
             Tree::SetAttribute(n, "y:two", "urn:s", "2");
         },
         "<here xmlns:x='urn:s' x:one='1' x:two='2'/>"},
        {"<here/>", [](DOMNode* n) { Tree::SetAttribute(n, "attr", "urn:s", "1"); },
         "<here xmlns:n0='urn:s' n0:attr='1'/>"},
        {"<here/>", [](DOMNode* n) { Tree::SetAttribute(n, "attr", "", "1"); }, "<here attr='1'/>"},
        {"<here/>", [](DOMNode* n) { Tree::SetAttribute(n, "x:attr", "", "1"); }, "!14"},
        {"<here/>", [](DOMNode* n) { Tree::SetAttribute(n, "xmlns", XMLNS_NAMESPACE, "urn:d"); },
         "<here xmlns='urn:d'/>"},
        {"<here>t</here>", [](DOMNode* n) { Tree::SetAttribute(n->getFirstChild(), "a", "", "1"); }, "!3"},
        // GetUnusedPrefix names a prefix that the element itself has bound
        {"<r xmlns:n0='u'><here xmlns:n1='urn:o'/></r>",
         [](DOMNode* n) { Tree::SetAttribute(n, "attr", "urn:s", "1"); },
         "<r xmlns:n0='u'><here xmlns:n2='urn:s' n2:attr='1' xmlns:n1='urn:o'/></r>"},
        // an element outside a document
        {"<r><here/></r>",
         [](DOMNode* n) {
             DOMNode* parent = n->getParentNode();
             parent->removeChild(n);
             Tree::SetAttribute(n, "one", "urn:1", "1");
             Tree::SetAttribute(n, "two", "urn:2", "2");
             parent->appendChild(n);
         },
         "<r><here xmlns:n0='urn:1' n0:one='1' xmlns:n1='urn:2' n1:two='2'/></r>"},
    };
    ExpectEdits(cases);
}

TEST(NodeEdits, QualifiedNameValues) {
    const EditCase cases[] = {
        {"<here xmlns:b='urn:tt'/>", [](DOMNode* n) { Tree::SetValue(n, PLAIN, QName("urn:tt", "t:p")); },
         "<here a='b:p' xmlns:b='urn:tt'/>"},
        {"<here/>", [](DOMNode* n) { Tree::SetValue(n, PLAIN, QName("urn:tt", "t:p")); },
         "<here a='t:p' xmlns:t='urn:tt'/>"},
        {"<here xmlns:t='urn:x'/>", [](DOMNode* n) { Tree::SetValue(n, TEXT, QName("urn:tt", "t:p")); },
         "<here xmlns:t='urn:x' xmlns:t1='urn:tt'>t1:p</here>"},
        {"<here/>", [](DOMNode* n) { Tree::SetValue(n, PLAIN, QName("", "t:p")); }, "<here a='p'/>"},
        {"<here/>", [](DOMNode* n) { Tree::SetAttribute(n, "xsi:type", "urn:xsi", "p", "urn:tt"); },
         "<here xmlns:n0='urn:tt' xmlns:xsi='urn:xsi' xsi:type='n0:p'/>"},
    };
    ExpectEdits(cases);
}

/// Every edit of a node, and what becomes of it at the document, its type, a text, a comment, an instruction,
/// an attribute and an entity reference: "+" an edit, "." nothing, "!" a DOMException, "?" one after a part.
const struct {
    const char* name;
    std::function<void(DOMNode*)> edit;
    const char* outcomes;
} EVERY_EDIT[] = {
    {"AddElement", [](DOMNode* n) { Tree::AddElement(n, P); }, "!!!!!!!"},
    {"RemoveElements", [](DOMNode* n) { Tree::RemoveElements(n, P); }, "......."},
    {"RemoveElement", [](DOMNode* n) { Tree::RemoveElement(n, P, 0); }, "......."},
    {"RemoveAttribute", [](DOMNode* n) { Tree::RemoveAttribute(n, PLAIN); }, "......."},
    {"RemoveAttribute text", [](DOMNode* n) { Tree::RemoveAttribute(n, TEXT); }, ".....+!"},
    {"CopyAll", [](DOMNode* n) { Tree::CopyAll(SampleDocument("<r a='1'>t<p/></r>").Root(), n); }, "!!!!!?!"},
    {"AddProcessingInstruction", [](DOMNode* n) { Tree::AddProcessingInstruction(n, "t", "d"); }, "+!!!!!!"},
    {"SetValue", [](DOMNode* n) { Tree::SetValue(n, "v"); }, "..++++."},
    {"SetTextValue", [](DOMNode* n) { Tree::SetTextValue(n, "v"); }, "!!!!!+!"},
    {"SetValue text", [](DOMNode* n) { Tree::SetValue(n, TEXT, "v"); }, "!!!!!+!"},
    {"SetValue attribute", [](DOMNode* n) { Tree::SetValue(n, PLAIN, "v"); }, "!!!!!!!"},
    {"SetValue units", [](DOMNode* n) { Tree::SetValue(n, STYLED, NO_VALUE); }, "!!!!!!!"},
    {"SetValue source", [](DOMNode* n) { Tree::SetValue(n, PLAIN, n); }, "!!!!!!!"},
    {"SetValue name", [](DOMNode* n) { Tree::SetValue(n, PLAIN, QName("u", "p:v")); }, "!!!!!!!"},
    {"SetAttribute", [](DOMNode* n) { Tree::SetAttribute(n, "a", "u", "v"); }, "!!!!!!!"},
    {"SetAttribute name", [](DOMNode* n) { Tree::SetAttribute(n, "a", "", "v", "u"); }, "!!!!!!!"},
};

TEST(NodeEdits, NeedANode) {
    const XercesSession session;
    for (const auto& c : EVERY_EDIT) {
        EXPECT_THROW(c.edit(nullptr), tessera::InvalidOperationException) << c.name;
    }
}

TEST(NodeEdits, NeedANodeThatTakesThem) {
    const auto outcome = [](const auto& edit, std::size_t place) {
        const SampleDocument sample("<!DOCTYPE r [<!ENTITY e 'f'>]><r a='1'>t<!--c--><?i d?>&e;</r>");
        std::vector<DOMNode*> nodes = {sample.Get(), sample.Get()->getDoctype()};
        for (auto child = Tree::GetElements(sample.Root()); child.CurrentNode(); ++child) {
            nodes.push_back(child.CurrentNode());
        }
        nodes.insert(nodes.end() - 1, sample.Root()->getAttributes()->item(0));
        const std::string before = sample.Text();
        try {
            edit(nodes.at(place));
        } catch (const DOMException&) {
            return sample.Text() == before ? '!' : '?';
        }
        return sample.Text() == before ? '.' : '+';
    };
    for (const auto& c : EVERY_EDIT) {
        std::string outcomes;
        for (std::size_t place = 0; place < 7; ++place) {
            outcomes += outcome(c.edit, place);
        }
        EXPECT_EQ(outcomes, c.outcomes) << c.name;
    }
}

TEST(NodeEdits, CopyAllCopiesChildrenAndAttributesBetweenDocuments) {
    const SampleDocument source("<a n='1' xmlns:s='urn:s' s:m='2'>text<b><c/></b><!--d--></a>");
    const SampleDocument target("<here k='3' n='0'><first/></here>");
    Tree::CopyAll(source.Root(), target.Root());
    EXPECT_EQ(target.Text(),
              "<here k='3' n='1' xmlns:s='urn:s' s:m='2'><first/>text<b><c/></b><!--d--></here>");
    Tree::CopyAll(nullptr, target.Root());
    Tree::CopyAll(source.Element("b"), source.Element("b"));
    EXPECT_EQ(source.Text(), "<a n='1' xmlns:s='urn:s' s:m='2'>text<b><c/><c/></b><!--d--></a>");
    EXPECT_THROW(Tree::CopyAll(source.Root(), source.Root()->getFirstChild()), DOMException);
}

TEST(NodeEdits, CopyAllCopiesWhatTheXmlLibraryImports) {
    const char* const sources[] = {
        "<a>t<b x='1' y='2'><c/><!--d--><?e f?><![CDATA[g]]><c>h</c></b><b/>i</a>",
        "<a><s:b xmlns='urn:a' xmlns:s='urn:s' s:x='&lt;'><c xmlns=''/></s:b></a>",
        "<!DOCTYPE a [<!ENTITY e 'f<g>h</g>'><!ATTLIST b x CDATA '1'>]><a>&e;<b>&e;<b/></b></a>",
        "<!DOCTYPE a [<!ENTITY e 'f'><!ATTLIST b i ID #IMPLIED>]><a><b i='k' y='&e;'/></a>",
    };
    for (const char* xml : sources) {
        const SampleDocument source(xml);
        for (const char* type : {"", "<!DOCTYPE r [<!ENTITY e 'other'><!ATTLIST b z CDATA '3'>]>"}) {
            const SampleDocument copied(type + std::string("<r/>"));
            const SampleDocument imported(type + std::string("<r/>"));
            Tree::CopyAll(source.Root(), copied.Root());
            for (auto child = Tree::GetElements(source.Root()); child.CurrentNode(); ++child) {
                imported.Root()->appendChild(imported.Get()->importNode(child.CurrentNode(), true));
            }
            EXPECT_TRUE(copied.Get()->isEqualNode(imported.Get())) << xml << type << copied.Text();
            EXPECT_EQ(copied.Text(), imported.Text());
            const XercesStringTemp id("k");
            EXPECT_EQ(!copied.Get()->getElementById(id), !imported.Get()->getElementById(id));
        }
    }
}

TEST(NodeEdits, ADocumentIsBuiltFromNothing) {
    const XercesSession session;
    DOMNode* document = Tree::CreateDocument();
    Tree::AddProcessingInstruction(document, "style", "sheet");
    xercesc::DOMElement* root = Tree::AddElement(document, Child("urn:tt", "tt"));
    EXPECT_EQ(Tree::GetParent(root), document);
    const std::string text = Tree::SaveXml(static_cast<xercesc::DOMDocument*>(document), false);
    EXPECT_EQ(text.substr(text.find("?>") + 2), "<?style sheet?><tt xmlns=\"urn:tt\"/>");
    Tree::FreeDocument(document);
    EXPECT_EQ(document, nullptr);
    Tree::FreeDocument(document);
}

} // namespace
