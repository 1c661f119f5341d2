#include "binding/ttaf1_dfxp.h"

#include "runtime/exceptions.h"
#include "runtime/progress_lines.h"
#include "xmltree/namespace_names.h"
#include "xmltree/transcode.h"
#include "xmltree/tree_operations.h"

#include <xercesc/dom/DOMDocumentType.hpp>
#include <xercesc/dom/DOMImplementation.hpp>

#include <memory>

using xercesc::DOMDocument;
using xercesc::DOMDocumentType;
using xercesc::DOMElement;
using xercesc::DOMImplementation;
using xercesc::DOMNode;

namespace ttaf1_dfxp::tt {

namespace {

/// What an encoding's name alone tells about the bytes to write.
struct ByteOrder {
    explicit ByteOrder(const std::string& encoding)
        : bigEndian(XercesTreeOperations::Uppercase(encoding) == "UTF-16BE"),
          withBOM(XercesTreeOperations::Uppercase(encoding) == "UTF-16") {}

    bool bigEndian;
    bool withBOM;
};

struct Release {
    void operator()(DOMDocumentType* type) const { type->release(); }
};

void RemoveDocumentType(DOMDocument& document) {
    if (DOMDocumentType* type = document.getDoctype()) {
        document.removeChild(type)->release();
    }
}

} // namespace

Cttaf1_dfxp Cttaf1_dfxp::LoadFromFile(const std::string& path, const LoadOptions& options) {
    tessera::WriteLine("LoadFromFile called in ttaf1_dfxp");
    return Cttaf1_dfxp(XercesTreeOperations::LoadDocument(path, options));
}

Cttaf1_dfxp Cttaf1_dfxp::LoadFromString(const std::string& text, const LoadOptions& options) {
    return Cttaf1_dfxp(XercesTreeOperations::LoadXml(text, options));
}

Cttaf1_dfxp Cttaf1_dfxp::LoadFromBinary(const std::vector<unsigned char>& bytes, const LoadOptions& options) {
    return Cttaf1_dfxp(XercesTreeOperations::LoadFromBinary(bytes, options));
}

Cttaf1_dfxp Cttaf1_dfxp::LoadFromBinary(const unsigned char* bytes, std::size_t size,
                                        const LoadOptions& options) {
    return Cttaf1_dfxp(XercesTreeOperations::LoadFromBinary(bytes, size, options));
}

Cttaf1_dfxp Cttaf1_dfxp::CreateDocument() {
    return Cttaf1_dfxp(XercesTreeOperations::CreateDocument());
}

void Cttaf1_dfxp::DestroyDocument() {
    DOMNode* node = GetNode();
    XercesTreeOperations::FreeDocument(node);
    SetNode(node);
}

void Cttaf1_dfxp::SaveToFile(const std::string& path, bool prettyPrint) const {
    XercesTreeOperations::SaveDocument(DocumentToSave(), path, prettyPrint);
}

void Cttaf1_dfxp::SaveToFile(const std::string& path, bool prettyPrint, const std::string& encoding) const {
    const ByteOrder order(encoding);
    SaveToFile(path, prettyPrint, encoding, order.bigEndian, order.withBOM);
}

void Cttaf1_dfxp::SaveToFile(const std::string& path, bool prettyPrint, const std::string& encoding,
                             bool bigEndian, bool withBOM) const {
    XercesTreeOperations::SaveDocument(DocumentToSave(), path, prettyPrint, encoding, bigEndian, withBOM);
}

std::string Cttaf1_dfxp::SaveToString(bool prettyPrint) const {
    return XercesTreeOperations::SaveXml(DocumentToSave(), prettyPrint);
}

std::vector<unsigned char> Cttaf1_dfxp::SaveToBinary(bool prettyPrint) const {
    return XercesTreeOperations::SaveToBinary(DocumentToSave(), prettyPrint);
}

std::vector<unsigned char> Cttaf1_dfxp::SaveToBinary(bool prettyPrint, const std::string& encoding) const {
    const ByteOrder order(encoding);
    return SaveToBinary(prettyPrint, encoding, order.bigEndian, order.withBOM);
}

std::vector<unsigned char> Cttaf1_dfxp::SaveToBinary(bool prettyPrint, const std::string& encoding,
                                                     bool bigEndian, bool withBOM) const {
    std::vector<unsigned char> bytes;
    XercesTreeOperations::SaveToBinary(bytes, DocumentToSave(), prettyPrint, encoding, bigEndian, withBOM,
                                       true);
    return bytes;
}

void Cttaf1_dfxp::SetSchemaLocation(const std::string& location) {
    DOMElement* root = FindRoot();
    if (!root) {
        throw tessera::InvalidOperationException(
            "You have to add a root element before setting schema location.");
    }
    const XercesUnstringTemp rootNamespace(root->getNamespaceURI());
    if (rootNamespace.empty()) {
        XercesTreeOperations::SetAttribute(root, "xsi:noNamespaceSchemaLocation",
                                           XML_SCHEMA_INSTANCE_NAMESPACE, location);
    } else {
        XercesTreeOperations::SetAttribute(root, "xsi:schemaLocation", XML_SCHEMA_INSTANCE_NAMESPACE,
                                           rootNamespace + " " + location);
    }
}

void Cttaf1_dfxp::SetDTDLocation(const std::string& location) {
    if (DOMDocument* document = FindDocument()) {
        RemoveDocumentType(*document);
    }
    DOMElement* root = FindRoot();
    if (!root) {
        throw tessera::InvalidOperationException(
            "You have to add a root element before setting DTD location.");
    }
    std::unique_ptr<DOMDocumentType, Release> type(DOMImplementation::getImplementation()->createDocumentType(
        root->getNodeName(), XercesStringTemp(""), XercesStringTemp(location)));
    FindDocument()->insertBefore(type.get(), root);
    type.release();
}

DOMDocument* Cttaf1_dfxp::FindDocument() const {
    DOMNode* node = GetNode();
    const bool isDocument = node && node->getNodeType() == DOMNode::DOCUMENT_NODE;
    return isDocument ? static_cast<DOMDocument*>(node) : nullptr;
}

DOMDocument* Cttaf1_dfxp::DocumentToSave() const {
    DOMDocument* document = FindDocument();
    if (!document) {
        throw tessera::InvalidOperationException("Cannot save a non-existent document.");
    }
    return document;
}

DOMElement* Cttaf1_dfxp::FindRoot() const {
    const DOMDocument* document = FindDocument();
    return document ? document->getDocumentElement() : nullptr;
}

} // namespace ttaf1_dfxp::tt
