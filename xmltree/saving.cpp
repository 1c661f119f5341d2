#include "xmltree/tree_operations.h"

#include "runtime/exceptions.h"
#include "xmltree/transcode.h"

#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMLSOutput.hpp>
#include <xercesc/dom/DOMLSSerializer.hpp>
#include <xercesc/dom/DOMLSSerializerFilter.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <cstdint>
#include <cstdio>
#include <memory>

using tessera::DataTargetUnavailableException;
using xercesc::DOMConfiguration;
using xercesc::DOMDocument;
using xercesc::DOMImplementation;
using xercesc::DOMLSOutput;
using xercesc::DOMLSSerializer;
using xercesc::MemBufFormatTarget;
using xercesc::XMLPlatformUtils;
using xercesc::XMLUni;

namespace {

constexpr XMLSize_t INITIAL_CAPACITY = 1023;
constexpr std::uintptr_t SERIALISER_STACK = std::uintptr_t{512} * 1024; // 4,000 levels

/// Owns what the XML library wants released instead of deleted.
struct Release {
    template <class T>
    void operator()(T* object) const {
        object->release();
    }
};
template <class T>
using Released = std::unique_ptr<T, Release>;

struct Deallocate {
    void operator()(XMLCh* text) const { XMLPlatformUtils::fgMemoryManager->deallocate(text); }
};

/// Runs one save and turns what the XML library throws into the exception of this layer.
template <class Save>
auto Guarded(Save&& save) {
    try {
        return save();
    } catch (const xercesc::XMLException& error) {
        throw DataTargetUnavailableException("Xerces XML error while saving: " +
                                             XercesUnstringTemp(error.getMessage()));
    } catch (const xercesc::SAXException& error) {
        throw DataTargetUnavailableException("Xerces SAX error while saving: " +
                                             XercesUnstringTemp(error.getMessage()));
    } catch (const xercesc::DOMException&) {
        throw DataTargetUnavailableException("Xerces DOM error while saving");
    }
}

void RequireSuccess(bool written) {
    if (!written) {
        throw DataTargetUnavailableException("Xerces XML error while saving.");
    }
}

/// Leaves out the elements that lie so deep that the serialiser, which calls itself for every level, has used
/// up its share of the stack. Asked for each element, it costs less than a walk to find the depth.
class DepthFilter : public xercesc::DOMLSSerializerFilter {
public:
    FilterAction acceptNode(const xercesc::DOMNode*) const override {
        const std::uintptr_t here = Here();
        const bool isTooDeep = (here < start_ ? start_ - here : here - start_) > SERIALISER_STACK;
        hasLeftOut_ = hasLeftOut_ || isTooDeep;
        return isTooDeep ? FILTER_REJECT : FILTER_ACCEPT;
    }
    ShowType getWhatToShow() const override { return xercesc::DOMNodeFilter::SHOW_ELEMENT; }

    void RequireWhole() const {
        if (hasLeftOut_) {
            throw DataTargetUnavailableException(
                "Xerces XML error while saving: The document is nested too deep.");
        }
    }

private:
    static std::uintptr_t Here() { return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)); }

    std::uintptr_t start_ = Here();
    mutable bool hasLeftOut_ = false;
};

Released<DOMLSSerializer> MakeSerializer(bool prettyPrint, DepthFilter& filter) {
    Released<DOMLSSerializer> serializer(
        DOMImplementation::getImplementation()->createLSSerializer(XMLPlatformUtils::fgMemoryManager));
    serializer->setFilter(&filter);
    DOMConfiguration* configuration = serializer->getDomConfig();
    if (prettyPrint && configuration->canSetParameter(XMLUni::fgDOMWRTFormatPrettyPrint, true)) {
        configuration->setParameter(XMLUni::fgDOMWRTFormatPrettyPrint, true);
    }
    return serializer;
}

} // namespace

void XercesTreeOperations::SaveToBinary(std::vector<unsigned char>& data, DOMDocument* document,
                                        bool prettyPrint, const std::string& encoding, bool bigEndian,
                                        bool withBOM, bool applyEncoding) {
    RequireSuccess(document != nullptr);
    Guarded([&] {
        DepthFilter filter;
        const Released<DOMLSSerializer> serializer = MakeSerializer(prettyPrint, filter);
        MemBufFormatTarget target(INITIAL_CAPACITY, XMLPlatformUtils::fgMemoryManager);
        const Released<DOMLSOutput> output(
            DOMImplementation::getImplementation()->createLSOutput(XMLPlatformUtils::fgMemoryManager));
        output->setByteStream(&target);
        if (applyEncoding) {
            output->setEncoding(XercesStringTemp(encoding));
        }
        const bool written = serializer->write(document, output.get());
        data.assign(target.getRawBuffer(), target.getRawBuffer() + target.getLen());
        if (applyEncoding) {
            CorrectByteOrderAndBOM(data, encoding, bigEndian, withBOM);
        }
        RequireSuccess(written);
        filter.RequireWhole();
    });
}

std::vector<unsigned char> XercesTreeOperations::SaveToBinary(DOMDocument* document, bool prettyPrint) {
    std::vector<unsigned char> data;
    SaveToBinary(data, document, prettyPrint, {}, false, false, false);
    return data;
}

void XercesTreeOperations::SaveDocument(DOMDocument* document, const std::string& path, bool prettyPrint,
                                        const std::string& encoding, bool bigEndian, bool withBOM) {
    std::vector<unsigned char> data;
    SaveToBinary(data, document, prettyPrint, encoding, bigEndian, withBOM, true);
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) {
        throw DataTargetUnavailableException("Could not open file " + path + " for writing.");
    }
    static_cast<void>(std::fwrite(data.data(), 1, data.size(), file));
    static_cast<void>(std::fclose(file));
}

void XercesTreeOperations::SaveDocument(DOMDocument* document, const std::string& path, bool prettyPrint) {
    SaveDocument(document, path, prettyPrint, "UTF-8", false, false);
}

std::string XercesTreeOperations::SaveXml(DOMDocument* document, bool prettyPrint) {
    RequireSuccess(document != nullptr);
    return Guarded([&]() -> std::string {
        DepthFilter filter;
        const Released<DOMLSSerializer> serializer = MakeSerializer(prettyPrint, filter);
        const std::unique_ptr<XMLCh, Deallocate> text(
            serializer->writeToString(document, XMLPlatformUtils::fgMemoryManager));
        RequireSuccess(text != nullptr);
        filter.RequireWhole();
        return XercesUnstringTemp(text.get());
    });
}
