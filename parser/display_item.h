// Display items: what a generated document is made of and what a player reads.
//
// A parser owns its items, a text item owns its sentences, a sentence owns its styling record. Every pointer
// handed to a player stays valid until the parser is deleted. Items are made on the heap and never copied.
// All times are signed 32-bit milliseconds on the player's time line; text is UTF-16 as the XML library
// delivers it, lone surrogates included. A parser and its items belong to one thread at a time.
#ifndef XTTML_PARSER_DISPLAY_ITEM_H
#define XTTML_PARSER_DISPLAY_ITEM_H

#include "runtime/export.h"
#include "style/styling_attrib.h"

#include <cstdint>
#include <string>
#include <vector>

/// A styled run of text.
class XTTML_API Sentence {
public:
    Sentence();
    /// Deletes the styling record.
    ~Sentence();
    Sentence(const Sentence&) = delete;
    Sentence& operator=(const Sentence&) = delete;

    std::vector<char16_t> vecText; ///< the text in UTF-16 code units, without a terminating zero
    StylingAttrib* pStylingAttrib; ///< the run's own styling, owned; null: the item's styling applies
    bool fgLineBreak;              ///< a br element; the text is then the single unit U+000A
};

/// The base of every item: styling and the time span on screen. An item is on screen at t milliseconds when
/// begin <= t <= end.
class XTTML_API DisplayItem {
public:
    /// Default styling, both times -1.
    DisplayItem();
    virtual ~DisplayItem();
    DisplayItem(const DisplayItem&) = delete;
    DisplayItem& operator=(const DisplayItem&) = delete;

    /// Stores both times in ms as they are; -1 marks an unknown time. Queries go by the times that an item
    /// had when a generation last ended: they do not see what is stored afterwards.
    void vSetTime(std::int32_t iBegin, std::int32_t iEnd);
    /// The first millisecond on screen.
    std::int32_t iGetBeginTime() const { return iBeginTime; }
    /// The last millisecond on screen.
    std::int32_t iGetEndTime() const { return iEndTime; }
    /// Whether the item is on screen at `iTime` ms; both ends belong to the span.
    bool fgCheckTimeInfo(std::int32_t iTime) const { return iTime >= iBeginTime && iTime <= iEndTime; }

    StylingAttrib styling; ///< the item's resolved styling
    /// The region that a paragraph names; null: none or unknown. Borrowed: items share it, nobody changes it.
    StylingAttrib* pRegionAttrib;
    /// The style that a paragraph names; null: none or unknown. Borrowed like the region.
    StylingAttrib* pStyleAttrib;
    bool fgForcedDisplay;    ///< shown even when subtitles are off (CFF-TT forcedDisplayMode)
    std::int32_t iBeginTime; ///< first millisecond on screen
    std::int32_t iEndTime;   ///< last millisecond on screen
};

/// A paragraph of text.
class XTTML_API TextItem : public DisplayItem {
public:
    TextItem();
    /// Deletes the sentences.
    ~TextItem() override;

    /// Copies a text into strContent, which the library neither fills nor reads.
    void vSetContent(const std::string& strText);
    /// strContent, owned by the item; also writes it and a line end to standard output.
    std::string* pstrGetContent();
    /// The same, to read.
    const std::string* pstrGetContent() const;
    /// The length of strContent in bytes.
    unsigned int uGetContentLength() const;
    /// The UTF-16 content, owned by the item; the caller may read and append.
    std::vector<char16_t>* pGetContentPointer() { return &vecContent; }
    /// The styled runs in document order. Sentences that the caller appends become the item's own.
    std::vector<Sentence*>* pGetSentenceSeq() { return &vecSentence; }
    /// The styled runs in document order, to read.
    const std::vector<Sentence*>* pGetSentenceSeq() const { return &vecSentence; }

    bool fgCombined;        ///< other items' content has been merged into vecContent
    std::string strContent; ///< plain content; empty unless set with vSetContent()
    /// UTF-16 content that merging reads and extends; generated with one U+000A for each br element directly
    /// in the paragraph and nothing else.
    std::vector<char16_t> vecContent;
    std::vector<Sentence*> vecSentence; ///< the styled runs, owned
};

/// A picture: one PNG file inside the block of image data that the player handed over.
class XTTML_API ImageItem : public DisplayItem {
public:
    /// No image data.
    ImageItem();
    /// @param pData the image data, borrowed; null when there is none
    /// @param iSize its length in bytes
    ImageItem(const std::uint8_t* pData, std::int32_t iSize);
    ~ImageItem() override;

    /// Copies a reference to the image into strImageURI.
    void SetImageURI(const std::string& strURI);
    /// The reference stored with SetImageURI(), strImageURI itself; empty until then.
    std::string& GetImageURI() { return strImageURI; }
    /// The same, to read.
    const std::string& GetImageURI() const { return strImageURI; }

    std::string strImageURI;        ///< an image reference that a caller may store
    const std::uint8_t* pImageData; ///< the image data, borrowed; null: none
    std::int32_t iImageDataSize; ///< its length in bytes; 0 or negative: nothing to read, whatever pImageData
};

#endif
