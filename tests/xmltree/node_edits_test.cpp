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

TEST(NodeEdits, CopyAllCopiesChildrenAndAttributesBetweenDocuments) {
    const SampleDocument source("<a n='1' xmlns:s='urn:s' s:m='2'>text<b><c/></b><!--d--></a>");
    const SampleDocument target("<here k='3' n='0'><first/></here>");
    Tree::CopyAll(source.Root(), target.Root());
    EXPECT_EQ(target.Text(),
              "<here k='3' n='1' xmlns:s='urn:s' s:m='2'><first/>text<b><c/></b><!--d--></here>");
    Tree::CopyAll(source.Element("b"), source.Element("b"));
    EXPECT_EQ(source.Text(), "<a n='1' xmlns:s='urn:s' s:m='2'>text<b><c/><c/></b><!--d--></a>");
    EXPECT_THROW(Tree::CopyAll(source.Root(), source.Root()->getFirstChild()), DOMException);
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
