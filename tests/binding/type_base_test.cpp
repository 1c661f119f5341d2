#include "binding/type_base.h"

#include "binding/ttaf1_dfxp.h"
#include "tests/binding/owned_document.h"
#include "xmltree/transcode.h"

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMNodeList.hpp>

#include <gtest/gtest.h>

#include <string>

using namespace ttaf1_dfxp;
using xercesc::DOMElement;

namespace {

const tessera::MemberInfo& BODY_DIV = members[46];

std::string IdOf(const xercesc::DOMNode* node) {
    const auto* element = static_cast<const DOMElement*>(node);
    return element ? std::string(XercesUnstringTemp(element->getAttribute(XercesStringTemp("id")))) : "none";
}

std::string NamespaceBoundTo(const DOMElement* element, const std::string& prefix) {
    return XercesUnstringTemp(element->lookupNamespaceURI(XercesStringTemp(prefix)));
}

/// The name in xsi:type with its prefix resolved, as "{namespace}local name".
std::string XsiTypeOf(const DOMElement* element) {
    const std::string value = XercesUnstringTemp(element->getAttributeNS(
        XercesStringTemp("http://www.w3.org/2001/XMLSchema-instance"), XercesStringTemp("type")));
    const auto colon = value.find(':');
    return "{" + NamespaceBoundTo(element, value.substr(0, colon)) + "}" + value.substr(colon + 1);
}

/// What a class writes as xsi:type.
template <class Wrapper>
std::string WrittenType() {
    const OwnedDocument document("<e/>");
    DOMElement* element = document.Dom().getDocumentElement();
    Wrapper(element).SetXsiType();
    return XsiTypeOf(element);
}

/// Replaces and reads the text by a class that has text.
template <class Wrapper>
void ExpectText() {
    const OwnedDocument document("<e>one<b>two</b><!-- three --><![CDATA[four]]></e>");
    Wrapper wrapper(document.Dom().getDocumentElement());
    EXPECT_EQ(static_cast<std::string>(wrapper), "onetwofour");
    wrapper = std::string("a < b");
    EXPECT_EQ(static_cast<std::string>(wrapper), "a < b");
    EXPECT_EQ(document.Dom().getDocumentElement()->getChildNodes()->getLength(), 1U);
    EXPECT_THROW(Wrapper(nullptr) = std::string("x"), tessera::InvalidOperationException);
    EXPECT_EQ(static_cast<std::string>(Wrapper(nullptr)), "");
}

} // namespace

TEST(TypeBase, FindsTheChildElementsOfAMember) {
    const OwnedDocument document("<body xmlns:f='urn:f'><p id='x'/><div id='1'/>div<f:div id='2'/>"
                                 "<!-- div --><Div id='y'/><div id='3'/></body>");
    TypeBase body(document.Dom().getDocumentElement());
    EXPECT_EQ(body.CountElement(BODY_DIV), 3U);
    const char* const ids[] = {"1", "2", "3", "none", "none"};
    for (std::uint32_t i = 0; i < 5; ++i) {
        EXPECT_EQ(IdOf(body.GetElementNth(BODY_DIV, i)), ids[i]) << i;
    }
    EXPECT_EQ(IdOf(body.GetElementLast(BODY_DIV)), "3");
    body.RemoveElement(BODY_DIV);
    EXPECT_EQ(body.CountElement(BODY_DIV), 0U);
    EXPECT_EQ(std::string(XercesUnstringTemp(body.GetNode()->getTextContent())), "div");
    EXPECT_EQ(body.GetNode()->getChildNodes()->getLength(), 4U);
}

TEST(TypeBase, FindsNothingWhereNothingIs) {
    const OwnedDocument document("<body/>");
    for (TypeBase empty : {TypeBase(document.Dom().getDocumentElement()), TypeBase(nullptr)}) {
        EXPECT_EQ(empty.GetElementNth(BODY_DIV, 0), nullptr);
        EXPECT_EQ(empty.GetElementLast(BODY_DIV), nullptr);
        EXPECT_EQ(empty.CountElement(BODY_DIV), 0U);
    }
    TypeBase(document.Dom().getDocumentElement()).RemoveElement(BODY_DIV);
    EXPECT_THROW(TypeBase(nullptr).RemoveElement(BODY_DIV), tessera::InvalidOperationException);
}

TEST(TypeBase, EnumerationValuesAndIndices) {
    const auto first = static_cast<std::uint32_t>(types[90].facetIndex); // displayAlign
    EXPECT_EQ(TypeBase::GetEnumerationValue(0, first, 3), "before");
    EXPECT_EQ(TypeBase::GetEnumerationValue(2, first, 3), "after");
    const struct {
        std::int32_t index;
        std::uint32_t first, count;
    } outside[] = {
        {3, first, 3},
        {-1, first, 3},
        {0, first, 0},
        {3, first, 4}, // the end of the list
        {0, FACET_COUNT, 1},
        {0, 0xFFFFFFFF, 0xFFFFFFFF},
        {2147483647, 1, 0xFFFFFFFF},
    };
    for (const auto& c : outside) {
        EXPECT_THROW(TypeBase::GetEnumerationValue(c.index, c.first, c.count), tessera::ConversionException)
            << c.index;
    }
    const struct {
        const char* value;
        std::uint32_t first, count;
        std::int32_t index;
    } cases[] = {
        {"after", first, 3, 2},
        {"after", first, 2, -1},
        {"Before", first, 3, -1},
        {"", first, 4, -1},
        {"before", 0, FACET_COUNT, static_cast<std::int32_t>(first)},
        {"before", 0xFFFFFFFF, 0xFFFFFFFF, -1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(TypeBase::GetEnumerationIndex(c.value, c.first, c.count), c.index) << c.value;
    }
}

TEST(TypeBase, SetXsiTypeWritesTheNearestNamedType) {
    EXPECT_EQ(WrittenType<ttm::Cactor_eltype>(), "{http://www.w3.org/ns/ttml#metadata}actor.eltype");
    EXPECT_EQ(WrittenType<tt::CdataType>(), "{http://www.w3.org/2001/XMLSchema}string");
    EXPECT_EQ(WrittenType<ttd::CextensionDesignatorType>(),
              "{http://www.w3.org/ns/ttml#datatype}extensionDesignator");
}

TEST(TypeBase, SetXsiTypeKeepsThePrefixesInUse) {
    const OwnedDocument document("<xsi:p xmlns:xsi='urn:o' xmlns:n0='urn:n' xsi:a='n0:v'/>");
    tt::Cp_eltype(document.Dom().getDocumentElement()).SetXsiType();
    const OwnedDocument again(document.root.SaveToString(false));
    const DOMElement* element = again.Dom().getDocumentElement();
    EXPECT_EQ(XsiTypeOf(element), "{http://www.w3.org/ns/ttml}p.eltype");
    EXPECT_EQ(std::string(XercesUnstringTemp(element->getNamespaceURI())), "urn:o");
    EXPECT_TRUE(element->hasAttributeNS(XercesStringTemp("urn:o"), XercesStringTemp("a")));
    EXPECT_EQ(NamespaceBoundTo(element, "n0"), "urn:n");
}

TEST(TypeBase, SetXsiTypeNeedsAnElement) {
    OwnedDocument document;
    EXPECT_THROW(document.root.SetXsiType(), xercesc::DOMException);
    EXPECT_THROW(tt::Cp_eltype(nullptr).SetXsiType(), tessera::InvalidOperationException);
}

TEST(TextContent, IsReadAndReplaced) {
    ExpectText<tt::Cp_eltype>();
    ExpectText<xs::CstringType>();
    ExpectText<ttd::CfeatureDesignatorType>();
}
