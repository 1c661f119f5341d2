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
#include <xercesc/util/XMLString.hpp>

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

constexpr std::uint64_t MAX_BYTES = XTTML_UNTRUSTED_MAX_BYTES;
constexpr std::size_t MAX_DEPTH = XTTML_UNTRUSTED_MAX_DEPTH;
constexpr XMLSize_t MAX_ATTRIBUTES = 256;
constexpr XMLSize_t MAX_VALUE_LENGTH = 1024; // display items hold copies of values
constexpr std::size_t MAX_NAMES = 4096;

/// Passes a stream on until it has given more bytes than a document may have.
class BoundedStream : public BinInputStream {
public:
    explicit BoundedStream(std::unique_ptr<BinInputStream> stream) : stream_(std::move(stream)) {}

    XMLFilePos curPos() const override { return stream_->curPos(); }
    XMLSize_t readBytes(XMLByte* bytes, XMLSize_t size) override {
        const XMLSize_t count = stream_->readBytes(bytes, size);
        total_ += count;
        if (total_ > MAX_BYTES) {
            const std::string reason = "The document is larger than " + std::to_string(MAX_BYTES) + " bytes.";
            throw xercesc::SAXException(XercesStringTemp(reason), XMLPlatformUtils::fgMemoryManager);
        }
        return count;
    }
    const XMLCh* getContentType() const override { return stream_->getContentType(); }

private:
    std::unique_ptr<BinInputStream> stream_;
    std::uint64_t total_ = 0; // a pipe does not know its position
};

/// A source whose stream is bounded.
class BoundedSource : public InputSource {
public:
    explicit BoundedSource(const InputSource& source)
        : InputSource(source.getSystemId(), source.getMemoryManager()), source_(source) {}

    /// The stream, which the XML library deletes; null when the source cannot be opened.
    BinInputStream* makeStream() const override {
        std::unique_ptr<BinInputStream> stream(source_.makeStream());
        return stream ? new (getMemoryManager()) BoundedStream(std::move(stream)) : nullptr;
    }

private:
    const InputSource& source_;
};

} // namespace

void UntrustedParser::parse(const InputSource& source) {
    DocumentParser::parse(BoundedSource(source));
}

void UntrustedParser::parse(const XMLCh* path) {
    parse(xercesc::LocalFileInputSource(path, XMLPlatformUtils::fgMemoryManager));
}

void UntrustedParser::doctypeDecl(const xercesc::DTDElementDecl&, const XMLCh*, const XMLCh*, bool, bool) {
    Refuse("A document type declaration is not allowed.");
}

void UntrustedParser::startElement(const XMLElementDecl& element, unsigned int namespaceId,
                                   const XMLCh* prefix, const RefVectorOf<XMLAttr>& attributes,
                                   XMLSize_t attributeCount, bool isEmpty, bool isRoot) {
    RequireAtMost(++depth_, MAX_DEPTH, "Elements are nested more than ", " deep.");
    RequireAtMost(attributeCount, MAX_ATTRIBUTES, "An element has more than ", " attributes.");
    CountName(element.getFullName());
    CountName(getScanner()->getURIText(namespaceId));
    for (XMLSize_t i = 0; i < attributeCount; ++i) {
        const XMLAttr& attribute = *attributes.elementAt(i);
        RequireAtMost(xercesc::XMLString::stringLen(attribute.getValue()), MAX_VALUE_LENGTH,
                      "An attribute value is longer than ", " characters.");
        CountName(attribute.getQName());
        CountName(getScanner()->getURIText(attribute.getURIId()));
    }
    DocumentParser::startElement(element, namespaceId, prefix, attributes, attributeCount, isEmpty, isRoot);
}

// The XML library calls it for empty elements as well.
void UntrustedParser::endElement(const XMLElementDecl& element, unsigned int namespaceId, bool isRoot,
                                 const XMLCh* prefix) {
    --depth_;
    DocumentParser::endElement(element, namespaceId, isRoot, prefix);
}

void UntrustedParser::Refuse(const std::string& reason) const {
    throw xercesc::SAXParseException(XercesStringTemp(reason), *getScanner()->getLocator(),
                                     XMLPlatformUtils::fgMemoryManager);
}

template <class Count>
void UntrustedParser::RequireAtMost(Count count, Count limit, const char* before, const char* after) const {
    if (count > limit) {
        Refuse(before + std::to_string(limit) + after);
    }
}

void UntrustedParser::CountName(const XMLCh* name) {
    if (names_.find(std::basic_string_view<XMLCh>(name)) == names_.end()) {
        names_.emplace(name);
        RequireAtMost(names_.size(), MAX_NAMES, "The document has more than ", " different names.");
    }
}
