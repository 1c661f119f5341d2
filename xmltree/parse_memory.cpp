#include "xmltree/parse_memory.h"

#include <xercesc/util/PlatformUtils.hpp>

#include <cstddef>
#include <functional>
#include <utility>

using xercesc::XMLPlatformUtils;

namespace {

constexpr std::size_t blockSize = 64 << 10; // subtitles take 46 KiB of it
constexpr std::size_t largestPiece = 4 << 10;
constexpr std::size_t alignment = alignof(std::max_align_t);

} // namespace

ParseMemory::ParseMemory()
    : library_(*XMLPlatformUtils::fgMemoryManager),
      block_(static_cast<unsigned char*>(library_.allocate(blockSize))), free_(block_) {}

ParseMemory::~ParseMemory() {
    library_.deallocate(block_);
}

xercesc::MemoryManager* ParseMemory::getExceptionMemoryManager() {
    return library_.getExceptionMemoryManager();
}

void* ParseMemory::allocate(XMLSize_t size) {
    const auto room = static_cast<std::size_t>(block_ + blockSize - free_);
    if (size > largestPiece || size >= room) {
        return library_.allocate(size);
    }
    void* const piece = free_;
    free_ += (size + alignment - 1) / alignment * alignment;
    return piece;
}

void ParseMemory::deallocate(void* piece) {
    const std::less<const void*> isBefore;
    const bool isInBlock = !isBefore(piece, block_) && isBefore(piece, block_ + blockSize);
    if (!isInBlock) {
        library_.deallocate(piece);
    }
}

ShortLivedParser::ShortLivedParser(ParseMemory& memory) : XercesDOMParser(nullptr, &memory) {}

void ShortLivedParser::startDocument() {
    xercesc::MemoryManager* const ofParse = std::exchange(fMemoryManager, XMLPlatformUtils::fgMemoryManager);
    XercesDOMParser::startDocument();
    fMemoryManager = ofParse;
}
