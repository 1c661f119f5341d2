// The item of a paragraph as the text generator makes it.
#ifndef XTTML_PARSER_PARAGRAPH_ITEM_H
#define XTTML_PARSER_PARAGRAPH_ITEM_H

#include "parser/display_item.h"

#include <array>
#include <cstddef>
#include <memory_resource>
#include <vector>

/// Appends a new sentence, owned by the sequence.
Sentence& rAppendNewSentence(std::vector<Sentence*>& vecSentence);

/// A text item that spares the heap: it lies in memory that its parser releases as a whole, and carries its
/// first sentences in itself.
class ParagraphItem final : public TextItem {
public:
    /// Makes an item in `memory`, which must outlive it; deleting it leaves the memory there.
    static void* operator new(std::size_t uSize, std::pmr::memory_resource& memory) {
        return memory.allocate(uSize, alignof(ParagraphItem));
    }
    static void operator delete(void*) {} // NOLINT(misc-new-delete-overloads): there is no other operator new
    static void operator delete(void*, std::pmr::memory_resource&) {}

    /// An item without sentences.
    explicit ParagraphItem(const StylingAttrib& styling);
    /// Takes its own sentences out of the sequence; the others are deleted.
    ~ParagraphItem() override;

    /// A new sentence at the end of the sequence.
    Sentence& rAppendSentence();

private:
    bool fgCarries(const Sentence* pSentence) const;

    std::array<Sentence, 3> aCarried_; // two lines of text and the break between them
    std::size_t uCarriedInUse_;
};

#endif
