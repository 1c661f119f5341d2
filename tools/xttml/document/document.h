// A document with all that is asked of it.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_DOCUMENT_H
#define XTTML_TOOLS_XTTML_DOCUMENT_DOCUMENT_H

#include "tools/xttml/document/display_sequence.h"
#include "tools/xttml/document/document_model.h"
#include "tools/xttml/document/item_origins.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace xttml {

/// A document as the user names it.
struct Input {
    std::string file;                ///< "-" is standard input
    std::vector<std::string> images; ///< the files of the image block; none for text subtitles
    MediaTime offset = 0;            ///< ms added to every time
    bool isTrusted = false;          ///< may name other documents and be of any size
    bool isQuiet = false;            ///< nothing is said of what is not shown
};

/// A document, its items, and, when something asks for them, what its elements say. The XML library must be
/// initialised as long as it lives.
class Document {
public:
    /// Says on standard error how much of the document is not shown. Throws UnusableFile.
    explicit Document(const Input& input);

    const DisplaySequence& Sequence() const { return sequence_; }
    /// Where the items come from.
    ItemOrigins Origins() const { return {sequence_.Model(), sequence_}; }
    /// A time as the user writes it. Throws UnusableFile for a frame that the document's rate does not have.
    MediaTime TimeOf(const WrittenTime& time);

private:
    Document(const Input& input, const Source& source);

    std::string file_;
    ImageBlock images_;
    DisplaySequence sequence_;
    std::optional<std::int32_t> frameRate_; // once a time with frames has been asked for
};

} // namespace xttml

#endif
