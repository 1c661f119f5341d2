// A small document and the members to ask it by; stands in for the bound model.
#ifndef XTTML_TESTS_XMLTREE_SAMPLE_DOCUMENT_H
#define XTTML_TESTS_XMLTREE_SAMPLE_DOCUMENT_H

#include "tests/support/xerces_session.h"
#include "xmltree/transcode.h"
#include "xmltree/tree_operations.h"

#include <xercesc/dom/DOM.hpp>

#include <algorithm>
#include <string>

using Tree = XercesTreeOperations;

/// The XML library and one document, both gone with the object.
class SampleDocument {
public:
    explicit SampleDocument(const std::string& xml) : document(Tree::LoadXml(xml)) {}
    ~SampleDocument() { Tree::FreeDocument(document); }
    SampleDocument(const SampleDocument&) = delete;
    SampleDocument& operator=(const SampleDocument&) = delete;

    xercesc::DOMDocument* Get() const { return document; }
    xercesc::DOMElement* Root() const { return document->getDocumentElement(); }
    /// The first element with a local name, in any namespace.
    xercesc::DOMElement* Element(const char* localName) const {
        return static_cast<xercesc::DOMElement*>(
            document->getElementsByTagNameNS(XercesStringTemp("*"), XercesStringTemp(localName))->item(0));
    }
    /// The document as text without the XML declaration, attributes in single quotes and sorted by name.
    std::string Text() const {
        std::string text = Tree::SaveXml(document, false);
        std::replace(text.begin(), text.end(), '"', '\'');
        return text.substr(text.find("?>") + 2);
    }

private:
    XercesSession session;
    xercesc::DOMDocument* document;
};

inline tessera::MemberInfo Attribute(const char* namespaceURI, const char* localName) {
    return {nullptr, namespaceURI, localName, 0, 0, tessera::MEMBER_ATTRIBUTE, 0, 1};
}

inline tessera::MemberInfo Child(const char* namespaceURI, const char* localName) {
    return {nullptr, namespaceURI, localName, 0, 0, tessera::MEMBER_ELEMENT, 0, -1};
}

inline const tessera::MemberInfo TEXT = Attribute("", "");

#endif
