// What a player makes of a document, behind the library's C functions.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_DISPLAY_SEQUENCE_H
#define XTTML_TOOLS_XTTML_DOCUMENT_DISPLAY_SEQUENCE_H

#include "render/owned_parser.h"
#include "tools/xttml/document/document_model.h"
#include "tools/xttml/document/image_block.h"
#include "tools/xttml/document/source.h"
#include "tools/xttml/text/media_time.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>
#include <x_ttml_items.h>

namespace xttml {

/// A span of the user's time line; what is not known is left out.
struct TimeSpan {
    std::optional<MediaTime> begin; ///< the first millisecond
    std::optional<MediaTime> end;   ///< the last millisecond
};

/// When an item is on screen, on the user's time line.
struct Appearance {
    MediaTime comes;               ///< the first millisecond
    std::optional<MediaTime> goes; ///< the first millisecond after it; nothing: it stays
};

/// Display items in document order, owned by the sequence.
using ItemList = std::vector<DisplayItem*>;

/// The display items of a document. All times are the user's: the document's and the offset.
class DisplaySequence {
public:
    /// Makes the items: those of images when there are any, else those of text. Throws UnusableFile. The XML
    /// library must be initialised as long as the sequence lives.
    /// @param images lives as long as the sequence
    /// @param offset ms from the document's time line to the user's
    DisplaySequence(const Source& source, const ImageBlock& images, MediaTime offset);

    const ItemList& Items() const { return items_; }
    /// The image data; empty for text subtitles.
    const ImageBlock& Images() const { return images_; }

    TimeSpan SpanOf(const DisplayItem& item) const;
    /// The earliest begin and the latest end; unknown without items, and where an item has none.
    TimeSpan WholeSpan() const;
    /// The root container.
    PixelSize RootContainer() const;
    /// The elements that the items were made from, for as long as the sequence lives.
    DocumentModel Model() const;
    /// The xml:lang of the document; empty without one.
    const std::string& Language() const { return language_; }

    /// All that is on screen. Nothing is before the document's time line begins.
    ItemList OnScreen(MediaTime time) const;
    bool IsOnScreen(const DisplayItem& item, MediaTime time) const;
    /// Nothing for an item that is never on screen.
    std::optional<Appearance> AppearanceOf(const DisplayItem& item) const;
    /// What a player gets that asks for up to four items by time: the first on screen and those right after
    /// it with the same times, else what is announced.
    ItemList PlainAnswer(MediaTime time) const;
    /// The first later time at which not the same items are on screen; nothing: never.
    std::optional<MediaTime> NextChange(MediaTime time) const;
    /// The first item on screen with the content of those right after it that share its times; null when it
    /// is no text or none is on screen.
    TextItem* Combine(MediaTime time) const;

private:
    void Require(int status, const Source& source) const;
    void Load(const Source& source);
    std::optional<std::int32_t> DocumentTime(MediaTime time) const;
    std::optional<MediaTime> UserTime(std::int32_t time) const;

    const ImageBlock& images_;
    MediaTime offset_;
    render::OwnedParser parser_;
    ItemList items_;
    std::string language_;
};

} // namespace xttml

#endif
