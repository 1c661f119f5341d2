// A player as the fuzzers have one: a parser behind its handle, closed and deleted in the right order.
#ifndef XTTML_FUZZ_PLAYER_H
#define XTTML_FUZZ_PLAYER_H

#include "api/x_ttml.h"
#include "parser/ttml_parser.h"

#include <string>
#include <vector>

class Player {
public:
    Player();
    ~Player();
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    /// Whether the document has a tt root element.
    bool Load(const std::string& document);
    /// Hands over a block of images; the checks of image items go by it.
    void SetImageBlock(const std::string& block);

    /// What a generation came to; it throws what its contract names and nothing else.
    enum class Generation { DONE, BAD_ATTRIBUTE };
    /// Generates, and requires of the parser what holds after every generation.
    Generation GenerateText(std::int32_t offset);
    Generation GenerateImages(std::int32_t offset);

    /// Asks for every time at which the answer may change, and requires of the answers what a plain walk over
    /// the items gives.
    void RequireQueriesAgree();

    const std::vector<DisplayItem*>& Items() const { return parser_->vecGetDisplaySequence(); }
    x_ttml_handle Handle() const { return parser_; }

private:
    void RequireDocumentTimes(std::size_t firstItem) const;

    TtmlParser* parser_;
    std::size_t blockSize_ = 0;
};

#endif
