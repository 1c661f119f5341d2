#include "xmltree/parse_memory.h"

#include <xercesc/util/PlatformUtils.hpp>

#include <atomic>
#include <cstddef>
#include <functional>
#include <iterator>
#include <utility>

using xercesc::XMLPlatformUtils;

namespace {

constexpr std::size_t largestPiece = 4 << 10;
constexpr std::size_t alignment = alignof(std::max_align_t);

// No memory of the heap: its end would go back to the system and be fetched again with every load.
alignas(alignment) unsigned char block[64 << 10]; // subtitles take 46 KiB
constexpr unsigned char* blockEnd = std::end(block);
std::atomic_flag isTaken = ATOMIC_FLAG_INIT;

} // namespace

ParseMemory::ParseMemory()
    : library_(*XMLPlatformUtils::fgMemoryManager), hasBlock_(!isTaken.test_and_set()),
      free_(hasBlock_ ? block : blockEnd) {}

ParseMemory::~ParseMemory() {
    if (hasBlock_) {
        isTaken.clear();
    }
}

xercesc::MemoryManager* ParseMemory::getExceptionMemoryManager() {
    return library_.getExceptionMemoryManager();
}

void* ParseMemory::allocate(XMLSize_t size) {
    const auto room = static_cast<std::size_t>(blockEnd - free_);
    if (size > largestPiece || size >= room) {
        return library_.allocate(size);
    }
    void* const piece = free_;
    free_ += (size + alignment - 1) / alignment * alignment;
    return piece;
}

void ParseMemory::deallocate(void* piece) {
    const std::less<const void*> isBefore;
    const bool isInBlock = !isBefore(piece, block) && isBefore(piece, blockEnd);
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
