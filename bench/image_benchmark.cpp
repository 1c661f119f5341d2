// Cutting a block of image data into PNG files, over a search of the same bytes for the first byte of their
// signature.
#include "bench/bare_parse.h"
#include "bench/comparison.h"
#include "parser/ttml_parser.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::size_t blockSize = std::size_t{64} << 20;
constexpr std::size_t fileCount = 30;
constexpr double cutLimit = 1.5;
constexpr double generationLimit = 1;
constexpr char signature[] = "\x89"
                             "PNG";
constexpr std::size_t signatureSize = sizeof signature - 1;

enum class Filling { COMPRESSED, PLAIN };

/// 30 files of what looks like compressed data, or of zeros.
std::vector<char> Block(Filling filling) {
    std::vector<char> block(blockSize);
    std::mt19937_64 random(5);
    for (std::size_t i = 0; filling == Filling::COMPRESSED && i < blockSize; i += sizeof(std::uint64_t)) {
        const std::uint64_t word = random();
        std::memcpy(&block[i], &word, sizeof word);
    }
    for (std::size_t i = 0; i < fileCount; ++i)
        std::memcpy(&block[i * (blockSize / fileCount)], signature, signatureSize);
    return block;
}

/// One pass over a block that stops at every first byte of a signature.
void SearchFirstBytes(const std::vector<char>& block) {
    const char* const end = block.data() + block.size();
    const char* position = block.data();
    while (position < end) {
        const void* const found =
            std::memchr(position, signature[0], static_cast<std::size_t>(end - position));
        position = found ? static_cast<const char*>(found) + 1 : end;
        benchmark::DoNotOptimize(position);
    }
}

Turns CuttingOverSearching(Filling filling) {
    const auto block = std::make_shared<std::vector<char>>(Block(filling));
    const auto parser = std::make_shared<TtmlParser>();
    parser->vSetDocumentBuffer(block->data(), static_cast<int>(block->size()));
    return {[block] { SearchFirstBytes(*block); },
            [parser] {
                parser->vGeneratePNGBufferInfo();
                if (parser->aGetImageTable()[fileCount - 1].iSize == 0)
                    std::abort();
            }};
}

std::string ImageDocument() {
    std::string text = "<tt xmlns='http://www.w3.org/ns/ttml' xmlns:tts='http://www.w3.org/ns/ttml#styling' "
                       "xmlns:smpte='http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt'><body>";
    for (std::size_t i = 1; i <= fileCount; ++i) {
        const std::string number = std::to_string(i);
        text += "<div begin='" + number + "s' end='" + number +
                ".9s' tts:extent='600px 80px' "
                "tts:origin='20px 600px' smpte:backgroundImage='urn:dece:container:subtitleimageindex:" +
                number + ".png'/>";
    }
    return text + "</body></tt>";
}

void LoadAndGenerateImages(const std::string& text, std::string& block) {
    TtmlParser parser;
    parser.vSetDocumentBuffer(block.data(), static_cast<int>(block.size()));
    if (!parser.fgLoadDocument(text.data(), static_cast<unsigned int>(text.size())))
        std::abort();
    parser.vGenerateImageDisplaySequence(0);
    parser.vCloseDocument();
}

Turns GeneratingOverBareParse() {
    std::string block;
    for (std::size_t i = 0; i < fileCount; ++i)
        block += std::string(signature) + std::string(2000, 'x');
    return {[text = ImageDocument()] { BareParse(text); },
            [text = ImageDocument(), block]() mutable { LoadAndGenerateImages(text, block); }};
}

} // namespace

int main(int argc, char** argv) {
    TtmlParser::vXercesInit();
    const int status = RunComparisons(
        argc, argv,
        {{"cutting compressed images : a search for first bytes", cutLimit,
          [] { return CuttingOverSearching(Filling::COMPRESSED); }},
         {"cutting zeros : a search for first bytes", cutLimit,
          [] { return CuttingOverSearching(Filling::PLAIN); }},
         {"load and generate 30 images : bare parse", generationLimit, GeneratingOverBareParse}});
    TtmlParser::vXercesTerminate();
    return status;
}
