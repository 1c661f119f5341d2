#include "xmltree/parse_memory.h"

#include "tests/support/xerces_session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace {

TEST(ParseMemory, PiecesAreApartInsideItsBlockAndBeyond) {
    const XercesSession session;
    ParseMemory memory;
    std::vector<std::pair<unsigned char*, std::size_t>> pieces;
    for (std::size_t i = 0; i < 500; ++i) { // about four blocks
        const std::size_t size = i % 50 == 49 ? 5000 : i;
        auto* const piece = static_cast<unsigned char*>(memory.allocate(size));
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(piece) % alignof(std::max_align_t), 0u);
        std::memset(piece, static_cast<int>(i % 251), size);
        pieces.emplace_back(piece, size);
    }
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const auto& [piece, size] = pieces[i];
        EXPECT_EQ(std::count(piece, piece + size, i % 251), static_cast<std::ptrdiff_t>(size));
        memory.deallocate(piece);
    }
    memory.deallocate(nullptr);
}

TEST(ParseMemory, TheBlockIsOfOneParseAtATime) {
    const XercesSession session;
    std::vector<void*> firstPieces;
    for (int turn = 0; turn < 2; ++turn) {
        ParseMemory memory;
        firstPieces.push_back(memory.allocate(1));
        ParseMemory other;
        void* const apart = other.allocate(1);
        EXPECT_NE(apart, firstPieces.back());
        other.deallocate(apart);
    }
    EXPECT_EQ(firstPieces[0], firstPieces[1]);
}

} // namespace
