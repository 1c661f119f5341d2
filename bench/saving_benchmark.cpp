// Saving a document, over the XML library's own serialiser writing the same bytes.
#include "bench/ratio_reporter.h"
#include "bench/subtitle_document.h"
#include "binding/ttaf1_dfxp.h"

#include <benchmark/benchmark.h>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMLSOutput.hpp>
#include <xercesc/dom/DOMLSSerializer.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <cstdlib>
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

void Save(benchmark::State& state, const Encoding& encoding) {
    Cttaf1_dfxp document = Cttaf1_dfxp::LoadFromString(SubtitleDocument(paragraphs));
    for (auto _ : state)
        benchmark::DoNotOptimize(document.SaveToBinary(false, encoding.name));
    document.DestroyDocument();
}

void Serialise(benchmark::State& state, const Encoding& encoding) {
    Cttaf1_dfxp document = Cttaf1_dfxp::LoadFromString(SubtitleDocument(paragraphs));
    xercesc::DOMImplementation* const implementation = xercesc::DOMImplementation::getImplementation();
    for (auto _ : state) {
        xercesc::DOMLSSerializer* const serializer = implementation->createLSSerializer();
        xercesc::DOMLSOutput* const output = implementation->createLSOutput();
        xercesc::MemBufFormatTarget target;
        output->setByteStream(&target);
        output->setEncoding(reinterpret_cast<const XMLCh*>(encoding.wideName));
        if (!serializer->write(document.GetNode(), output))
            std::abort();
        benchmark::DoNotOptimize(target.getRawBuffer());
        output->release();
        serializer->release();
    }
    document.DestroyDocument();
}

} // namespace

int main(int argc, char** argv) {
    xercesc::XMLPlatformUtils::Initialize();
    std::vector<Ratio> ratios;
    for (const Encoding& encoding : encodings) {
        const std::string save = std::string("Save/") + encoding.name;
        const std::string serialise = std::string("Serialise/") + encoding.name;
        benchmark::RegisterBenchmark(save.c_str(), Save, encoding)->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(serialise.c_str(), Serialise, encoding)->Unit(benchmark::kMillisecond);
        ratios.push_back({save, serialise, limit});
    }
    RunBenchmarks(argc, argv, ratios);
    xercesc::XMLPlatformUtils::Terminate();
    return EXIT_SUCCESS;
}
