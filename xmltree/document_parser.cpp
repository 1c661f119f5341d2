#include "xmltree/document_parser.h"

// What a parser derives its own kinds of nodes from is in Xerces-C's headers below impl.
#include <xercesc/dom/impl/DOMAttrNSImpl.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>
#include <xercesc/dom/impl/DOMTextImpl.hpp>

using xercesc::DOMAttr;
using xercesc::DOMAttrNSImpl;
using xercesc::DOMMemoryManager;
using xercesc::DOMTextImpl;

namespace {

/// Has no members of its own: when it is released, the document uses its memory for another attribute.
class ParsedAttribute : public DOMAttrNSImpl {
public:
    using DOMAttrNSImpl::DOMAttrNSImpl;

    /// Only for an attribute without a value. A first child is marked as such, and the last child is its
    /// previous sibling.
    void setValueFast(const XMLCh* value) override {
        if (!value) {
            return;
        }
        auto* const text = static_cast<DOMTextImpl*>(fParent.fOwnerDocument->createTextNode(value));
        text->fNode.fOwnerNode = this;
        text->fNode.isOwned(true);
        text->fNode.isFirstChild(true);
        text->fChild.previousSibling = text;
        fParent.fFirstChild = text;
    }
};
static_assert(sizeof(ParsedAttribute) == sizeof(DOMAttrNSImpl));

} // namespace

DOMAttr* DocumentParser::createAttrNS(const XMLCh* namespaceURI, const XMLCh* prefix, const XMLCh* localName,
                                      const XMLCh* qualifiedName) {
    return new (fDocument, DOMMemoryManager::ATTR_NS_OBJECT)
        ParsedAttribute(fDocument, namespaceURI, prefix, localName, qualifiedName);
}
