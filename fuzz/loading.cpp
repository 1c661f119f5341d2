// Any bytes as a document: loading them from memory gives what the XML library gives, and it can be taken
// apart.
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "runtime/exceptions.h"
#include "tests/support/plain_parse.h"
#include "xmltree/tree_operations.h"

namespace {

/// Removes everything inside an element that may be removed, from the outside in.
void TakeApart(xercesc::DOMElement& element) {
    const xercesc::DOMNamedNodeMap& attributes = *element.getAttributes();
    for (XMLSize_t i = attributes.getLength(); i > 0; --i)
        element.removeAttributeNode(static_cast<xercesc::DOMAttr*>(attributes.item(i - 1)))->release();
    while (xercesc::DOMNode* const child = element.getLastChild())
        element.removeChild(child)->release();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(bytes, bytes + size);
    PlainParse plain(text);
    try {
        xercesc::DOMDocument* document = XercesTreeOperations::LoadXml(text, {false});
        Require(plain.Message().empty(), "what loads is well-formed");
        Require(plain.IsSame(*document), "it is the document that the XML library reads");
        Require(plain.HasSameCopy(*document), "its copies are the XML library's");
        TakeApart(*document->getDocumentElement());
        Require(!document->getDocumentElement()->hasChildNodes(), "it can be taken apart");
        XercesTreeOperations::FreeDocument(document);
    } catch (const tessera::DataSourceUnavailableException& failure) {
        Require(failure.message() == plain.Message(), "a failure is the XML library's");
    }
    return 0;
}
