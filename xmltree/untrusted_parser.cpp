#include "xmltree/untrusted_parser.h"

#include "xmltree/transcode.h"

#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/BinInputStream.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/StringPool.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <cstdint>
#include <memory>
#include <string_view>

using xercesc::BinInputStream;
using xercesc::InputSource;
using xercesc::RefVectorOf;
using xercesc::XMLAttr;
using xercesc::XMLElementDecl;
using xercesc::XMLPlatformUtils;

namespace {

constexpr char16_t STYLING_NAMESPACE[] = u"http://www.w3.org/ns/ttml#styling";

/// Ends a stream that gives more bytes than a document may have. It throws nothing: what the XML library
/// holds while it opens a document would be lost.
class BoundedStream : public BinInputStream {
public:
    /// @param isTooLarge becomes true with the end of such a stream
    BoundedStream(std::unique_ptr<BinInputStream> stream, bool& isTooLarge)
        : stream_(std::move(stream)), isTooLarge_(isTooLarge) {}

    XMLFilePos curPos() const override { return stream_->curPos(); }
    XMLSize_t readBytes(XMLByte* bytes, XMLSize_t size) override {
        const XMLSize_t count = isTooLarge_ ? 0 : stream_->readBytes(bytes, size);
        total_ += count;
        isTooLarge_ = total_ > untrusted::BYTES.most;
        return isTooLarge_ ? 0 : count;
    }
    const XMLCh* getContentType() const override { return stream_->getContentType(); }

private:
    std::unique_ptr<BinInputStream> stream_;
    bool& isTooLarge_;
    std::uint64_t total_ = 0; // a pipe does not know its position
};

/// A source whose stream is bounded.
class BoundedSource : public InputSource {
public:
    BoundedSource(const InputSource& source, bool& isTooLarge)
        : InputSource(source.getSystemId(), source.getMemoryManager()), source_(source),
          isTooLarge_(isTooLarge) {}

    /// The stream, which the XML library deletes; null when the source cannot be opened.
    BinInputStream* makeStream() const override {
        std::unique_ptr<BinInputStream> stream(source_.makeStream());
        return stream ? new (getMemoryManager()) BoundedStream(std::move(stream), isTooLarge_) : nullptr;
    }

private:
    const InputSource& source_;
    bool& isTooLarge_;
};

std::string ReasonOf(const untrusted::Limit& limit) {
    return limit.before + std::to_string(limit.most) + limit.after;
}

} // namespace

void UntrustedParser::parse(const InputSource& source) {
    isTooLarge_ = false;
    DocumentParser::parse(BoundedSource(source, isTooLarge_));
    RefuseLargeDocument();
}

void UntrustedParser::parse(const XMLCh* path) {
    parse(xercesc::LocalFileInputSource(path, XMLPlatformUtils::fgMemoryManager));
}

void UntrustedParser::startDocument() {
    nodes_ = 0;
    declarations_ = {0};
    ownNamespaces_ = namespaces_ = getScanner()->getURIStringPool()->getStringCount();
    stylingNamespace_ = 0;
    elementNames_ = 0;
    attributeNames_.clear();
    DocumentParser::startDocument();
}

void UntrustedParser::doctypeDecl(const xercesc::DTDElementDecl&, const XMLCh*, const XMLCh*, bool, bool) {
    Refuse("A document type declaration is not allowed.");
}

void UntrustedParser::docCharacters(const XMLCh* characters, XMLSize_t length, bool isCdata) {
    const bool isContinued = !isCdata && fCurrentNode->getNodeType() == xercesc::DOMNode::TEXT_NODE;
    CountNodes(isContinued ? 0 : 1);
    DocumentParser::docCharacters(characters, length, isCdata);
}

void UntrustedParser::docComment(const XMLCh* comment) {
    CountNodes(1);
    DocumentParser::docComment(comment);
}

void UntrustedParser::docPI(const XMLCh* target, const XMLCh* data) {
    CountNodes(1);
    DocumentParser::docPI(target, data);
}

void UntrustedParser::startElement(const XMLElementDecl& element, unsigned int namespaceId,
                                   const XMLCh* prefix, const RefVectorOf<XMLAttr>& attributes,
                                   XMLSize_t attributeCount, bool isEmpty, bool isRoot) {
    Require(declarations_.size(), untrusted::DEPTH);
    Require(attributeCount, untrusted::ATTRIBUTES);
    CountNodes(1 + attributeCount);
    CountNamespaces();
    CountElementName(element);
    declarations_.push_back(declarations_.back());
    for (XMLSize_t i = 0; i < attributeCount; ++i) {
        CheckAttribute(*attributes.elementAt(i));
    }
    Require(elementNames_ + attributeNames_.size(), untrusted::NAMES);
    Require(declarations_.back(), untrusted::DECLARATIONS);
    DocumentParser::startElement(element, namespaceId, prefix, attributes, attributeCount, isEmpty, isRoot);
}

// The XML library calls it for empty elements as well.
void UntrustedParser::endElement(const XMLElementDecl& element, unsigned int namespaceId, bool isRoot,
                                 const XMLCh* prefix) {
    declarations_.pop_back();
    DocumentParser::endElement(element, namespaceId, isRoot, prefix);
}

void UntrustedParser::error(unsigned int code, const XMLCh* domain, xercesc::XMLErrorReporter::ErrTypes type,
                            const XMLCh* text, const XMLCh* systemId, const XMLCh* publicId, XMLFileLoc line,
                            XMLFileLoc column) {
    RefuseLargeDocument(); // what is missing is wrong with it because it is cut off
    DocumentParser::error(code, domain, type, text, systemId, publicId, line, column);
}

void UntrustedParser::Refuse(const std::string& reason) const {
    throw xercesc::SAXParseException(XercesStringTemp(reason), *getScanner()->getLocator(),
                                     XMLPlatformUtils::fgMemoryManager);
}

void UntrustedParser::Require(std::uint64_t count, const untrusted::Limit& limit) const {
    if (count > limit.most) {
        Refuse(ReasonOf(limit));
    }
}

void UntrustedParser::RequireLength(const XMLCh* text, const untrusted::Limit& limit) const {
    Require(xercesc::XMLString::stringLen(text), limit);
}

void UntrustedParser::RefuseLargeDocument() const {
    if (isTooLarge_) {
        throw xercesc::SAXException(XercesStringTemp(ReasonOf(untrusted::BYTES)),
                                    XMLPlatformUtils::fgMemoryManager);
    }
}

void UntrustedParser::CountNodes(std::uint64_t count) {
    nodes_ += count;
    Require(nodes_, untrusted::NODES);
}

/// The scanner numbers the namespaces in the order of their declarations.
void UntrustedParser::CountNamespaces() {
    const xercesc::XMLStringPool& pool = *getScanner()->getURIStringPool();
    for (; namespaces_ < pool.getStringCount(); ++namespaces_) {
        const XMLCh* const name = pool.getValueForId(namespaces_ + 1);
        RequireLength(name, untrusted::NAMESPACE);
        if (xercesc::XMLString::equals(name, reinterpret_cast<const XMLCh*>(STYLING_NAMESPACE))) {
            stylingNamespace_ = namespaces_ + 1;
        }
    }
    Require(namespaces_ - ownNamespaces_, untrusted::NAMESPACES);
}

/// The scanner numbers the names of elements from 1.
void UntrustedParser::CountElementName(const XMLElementDecl& element) {
    if (element.getId() > elementNames_) {
        RequireLength(element.getFullName(), untrusted::NAME);
        elementNames_ = element.getId();
    }
}

void UntrustedParser::CheckAttribute(const XMLAttr& attribute) {
    const bool isStyling = stylingNamespace_ != 0 && attribute.getURIId() == stylingNamespace_;
    RequireLength(attribute.getValue(), isStyling ? untrusted::STYLING_VALUE : untrusted::VALUE);
    declarations_.back() += IsDeclaration(attribute) ? 1 : 0;
    const std::basic_string_view<XMLCh> name = attribute.getQName();
    if (attributeNames_.find(name) == attributeNames_.end()) {
        Require(name.size(), untrusted::NAME);
        attributeNames_.emplace(name);
    }
}

bool UntrustedParser::IsDeclaration(const XMLAttr& attribute) const {
    return attribute.getURIId() == getScanner()->getXMLNSNamespaceId() ||
           xercesc::XMLString::equals(attribute.getQName(), xercesc::XMLUni::fgXMLNSString);
}
