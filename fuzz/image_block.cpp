// Any bytes as a block of images, handed over piece by piece, beside a document that asks for every index.
#include "fuzz/choices.h"
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "fuzz/item_invariants.h"
#include "fuzz/player.h"

#include <cstring>

namespace {

constexpr std::size_t IMAGES = 30;

std::string MakeDocument() {
    std::string document = "<tt xmlns:smpte='http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt'><body>";
    for (std::size_t index = 0; index <= IMAGES + 1; ++index)
        document += "<div begin='1s' end='2s' smpte:backgroundImage='urn:dece:container:subtitleimageindex:" +
                    std::to_string(index) + ".png'/>";
    return document + "</body></tt>";
}

/// Where the images begin, and last where the final one ends, by a search of its own.
std::vector<std::size_t> FindImages(const std::string& block) {
    std::vector<std::size_t> begins = {0};
    std::size_t next = 0;
    while (begins.size() <= IMAGES && (next = block.find("\x89PNG", begins.back() + 4)) != std::string::npos)
        begins.push_back(next);
    if (begins.size() <= IMAGES)
        begins.push_back(block.size());
    return begins;
}

void RequireImages(const std::vector<DisplayItem*>& items, std::size_t firstItem, const std::string& block) {
    const std::vector<std::size_t> begins = FindImages(block);
    Require(items.size() == firstItem + IMAGES, "an item for each index of 1 to 30");
    for (std::size_t i = 0; i < IMAGES; ++i) {
        const auto& image = dynamic_cast<const ImageItem&>(*items[firstItem + i]);
        const bool isThere = i + 1 < begins.size();
        const std::size_t size = isThere ? begins[i + 1] - begins[i] : 0;
        Require(isThere == (image.pImageData != nullptr), "an image is there when its file is");
        Require(static_cast<std::size_t>(image.iImageDataSize) == size, "the size of an image");
        Require(size == 0 || std::memcmp(image.pImageData, block.data() + begins[i], size) == 0,
                "the bytes of an image");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const std::string document = MakeDocument();
    Choices choices(bytes, size);
    Player player;
    Require(player.Load(document), "the document loads");
    std::vector<std::string> blocks;
    while (!choices.IsUsedUp() && blocks.size() < 4) {
        const std::string block = blocks.size() == 3 ? choices.Rest() : choices.Text(255);
        if (block.empty())
            continue;
        player.SetImageBlock(block);
        player.GenerateImages(0);
        blocks.push_back(block);
    }
    for (std::size_t i = 0; i < blocks.size(); ++i) { // earlier items outlive later blocks
        const auto end = player.Items().begin() + static_cast<std::ptrdiff_t>((i + 1) * IMAGES);
        RequireImages({player.Items().begin(), end}, i * IMAGES, blocks[i]);
    }
    return 0;
}
