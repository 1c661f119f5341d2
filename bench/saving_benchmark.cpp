// Saving a document, over the XML library's own serialiser writing the same bytes.
#include "bench/comparison.h"
#include "bench/subtitle_document.h"
#include "binding/ttaf1_dfxp.h"

#include <benchmark/benchmark.h>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMLSOutput.hpp>
#include <xercesc/dom/DOMLSSerializer.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <cstdlib>
#include <memory>
#include <string>

using ttaf1_dfxp::tt::Cttaf1_dfxp;

namespace {

constexpr int paragraphs = 10000;
constexpr double limit = 1.2;

struct Encoding {
    const char* name;
    const char16_t* wideName;
};

constexpr Encoding encodings[] = {{"UTF-8", u"UTF-8"}, {"UTF-16LE", u"UTF-16LE"}, {"UTF-16BE", u"UTF-16BE"}};

/// A document that is released at the end.
struct Document {
    Document() = default;
    ~Document() { root.DestroyDocument(); }
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    Cttaf1_dfxp root = Cttaf1_dfxp::LoadFromString(SubtitleDocument(paragraphs));
};

void Serialise(const Document& document, const Encoding& encoding) {
    xercesc::DOMImplementation* const implementation = xercesc::DOMImplementation::getImplementation();
    xercesc::DOMLSSerializer* const serializer = implementation->createLSSerializer();
    xercesc::DOMLSOutput* const output = implementation->createLSOutput();
    xercesc::MemBufFormatTarget target;
    output->setByteStream(&target);
    output->setEncoding(reinterpret_cast<const XMLCh*>(encoding.wideName));
    if (!serializer->write(document.root.GetNode(), output))
        std::abort();
    benchmark::DoNotOptimize(target.getRawBuffer());
    output->release();
    serializer->release();
}

Turns SavingOverSerialising(const Encoding& encoding) {
    const auto document = std::make_shared<Document>();
    return {[document, encoding] { Serialise(*document, encoding); },
            [document, encoding] {
                benchmark::DoNotOptimize(document->root.SaveToBinary(false, encoding.name));
            }};
}

} // namespace

int main(int argc, char** argv) {
    xercesc::XMLPlatformUtils::Initialize();
    std::vector<Comparison> comparisons;
    for (const Encoding& encoding : encodings)
        comparisons.push_back({std::string("saving : the XML library's serialiser, ") + encoding.name, limit,
                               [encoding] { return SavingOverSerialising(encoding); }});
    const int status = RunComparisons(argc, argv, comparisons);
    xercesc::XMLPlatformUtils::Terminate();
    return status;
}
