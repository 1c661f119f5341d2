// A document that a test loads or creates, with the XML library that it needs.
#ifndef XTTML_TESTS_BINDING_OWNED_DOCUMENT_H
#define XTTML_TESTS_BINDING_OWNED_DOCUMENT_H

#include "binding/ttaf1_dfxp.h"
#include "tests/support/xerces_session.h"

#include <string>

class OwnedDocument : private XercesSession {
public:
    OwnedDocument() : root(ttaf1_dfxp::tt::Cttaf1_dfxp::CreateDocument()) {}
    explicit OwnedDocument(const std::string& text)
        : root(ttaf1_dfxp::tt::Cttaf1_dfxp::LoadFromString(text)) {}
    ~OwnedDocument() { root.DestroyDocument(); }

    xercesc::DOMDocument& Dom() const { return *static_cast<xercesc::DOMDocument*>(root.GetNode()); }

    ttaf1_dfxp::tt::Cttaf1_dfxp root;
};

#endif
