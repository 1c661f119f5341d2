// Any bytes as a document: load, text, images, queries.
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "fuzz/item_invariants.h"
#include "fuzz/player.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    constexpr std::int32_t offset = 0x7FFFFF00;
    Player player;
    player.Load(std::string(bytes, bytes + size));
    player.GenerateText(0);
    const std::size_t count = player.Items().size();
    player.GenerateText(offset);
    Require(player.Items().size() == 2 * count, "a document generates as many items again");
    for (std::size_t i = 0; i < count; ++i)
        Require(Text(*player.Items()[i]) == Text(*player.Items()[count + i], offset),
                "a document generates the same items again");
    player.SetImageBlock("\x89PNG the first\x89PNG the second\x89PNG the third");
    player.GenerateImages(-1);
    player.RequireQueriesAgree();
    return 0;
}
