// The object behind every parser handle: one loaded document, the tables and the display sequence made from
// it, and a private copy of the image data that accompanies image subtitles.
//
// Call order:  ( load  generate*  query*  vCloseDocument )*  delete
//
// The document is released by vCloseDocument() alone: neither a further load nor the destructor does it. The
// items, the tables and the image data live until the parser is deleted; generating again appends. A parser
// belongs to one thread at a time and takes no locks.
#ifndef XTTML_PARSER_TTML_PARSER_H
#define XTTML_PARSER_TTML_PARSER_H

#include "binding/ttaf1_dfxp.h"
#include "parser/display_item.h"
#include "parser/failure.h"
#include "parser/time_index.h"
#include "style/style_tables.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The metric of an offset time (TTML 1.0, 10.3.1 offset-time).
enum offset_time_metric_e : std::int32_t {
    OFFSET_METRIC_NONE = 0,
    OFFSET_METRIC_HOURS = 1,        ///< "h"
    OFFSET_METRIC_MINUTES = 2,      ///< "m"
    OFFSET_METRIC_SECONDS = 3,      ///< "s"
    OFFSET_METRIC_MILLISECONDS = 4, ///< "ms"
    OFFSET_METRIC_FRAMES = 5,       ///< "f"
    OFFSET_METRIC_TICKS = 6         ///< "t"
};

/// What a document's time expressions count in (TTML 1.0, 6.2.4 and 6.2.10): ttp:frameRate, 30 without it,
/// and ttp:tickRate; without that, frame rate times ttp:subFrameRate (1 without it) when ttp:frameRate is
/// given, else 1. A tick rate that is not a positive integer counts as 0.
struct TimeRates {
    std::int32_t iFrameRate = 30; ///< frames a second; 0 or less makes times in frames invalid
    double fTickRate = 1;         ///< ticks a second; 0 or less makes times in ticks invalid
};

/// One PNG file inside the parser's copy of the image data.
struct ImageTableEntry {
    const std::uint8_t* pData = nullptr; ///< null: no such file
    std::int32_t iSize = 0;              ///< bytes
};

class TtmlParser {
public:
    TtmlParser();
    /// Frees the tables, the items and the image data, not the document.
    virtual ~TtmlParser();
    TtmlParser(const TtmlParser&) = delete;
    TtmlParser& operator=(const TtmlParser&) = delete;

    /// Appends a TextItem for each paragraph of the body's first division and sets the root extent and the
    /// document times.
    /// @param iOffset ms added to every begin and end time
    /// Throws tessera::ConversionException when forcedDisplayMode or ttp:frameRate does not convert.
    virtual void vGenerateTextDisplaySequence(int iOffset);
    /// Appends an ImageItem for each division that names an image and sets the root extent and the document
    /// times; does nothing while no image data is held.
    /// @param iOffset ms added to every begin and end time
    virtual void vGenerateImageDisplaySequence(int iOffset);

    // Documents.

    /// Loads a file; initialises the XML library.
    /// @return whether the document has a tt root element; it is held in either case
    /// Throws tessera::DataSourceUnavailableException, the held document unchanged.
    bool fgLoadDocument(const char* path);
    /// Loads a document from memory; the bytes are read during the call only.
    /// @return whether it could be parsed and has a tt root element; without one it is held all the same
    bool fgLoadDocument(const void* data, unsigned int size);
    /// Whether the document has a tt root element; false without a document.
    bool fgHasRootElement() const { return documentRoot_.tt.exists(); }
    /// Whether the documents that are loaded from now on are untrusted; at first LoadOptions says.
    void vSetUntrusted(bool fgUntrusted) { loadOptions_.isUntrusted = fgUntrusted; }
    bool fgIsUntrusted() const { return loadOptions_.isUntrusted; }
    /// Copies a block of image data. The size is stored in any case; one below 1, and a null buffer, which
    /// leaves nothing to copy, keep the copy held so far. The next cut goes by the stored size, but never
    /// beyond the copy.
    /// @param size the bytes of the block
    void vSetDocumentBuffer(const char* buffer, int size);
    /// Whether a copy of image data is held.
    bool fgHoldsImageData() const { return !vecDocumentBuffer_.empty(); }
    /// Releases the document, when there is one.
    void vCloseDocument();
    /// Initialises the XML library; every call needs its vXercesTerminate().
    static void vXercesInit();
    static void vXercesTerminate();
    /// The document model's view of the held document; without a node when none is held.
    const ttaf1_dfxp::tt::Cttaf1_dfxp& rGetDocumentRoot() const { return documentRoot_; }
    /// The xml:lang of the tt element; "INVALID" when it has none.
    std::string strGetDocLanguage() const;
    /// The same as the document has it, owned by the document; empty when there is none.
    std::u16string_view strGetLanguage() const;

    // Failures, for callers that cannot receive an exception.

    /// Why the last operation failed that was asked to remember it.
    const Failure& rGetFailure() const { return failure_; }
    void vForgetFailure();
    void vRememberFailure(failure_kind_e eKind, const char* reason);
    /// Remembers the exception that is being handled.
    void vRememberException() noexcept;

    // The display sequence.

    /// The first item on screen at `uTime` ms, else the first that begins later, else null; becomes current.
    DisplayItem* rGetDisplayItemByTime(std::uint32_t uTime);
    /// Fills four slots with that item and the items right after it that share its begin and end; slots left
    /// over are null. The current item stays.
    void vGetDisplayItemArrayByTime(DisplayItem** ppItems, std::uint32_t uTime) const;
    /// Writes the items on screen at `uTime` ms, overlapping ones included, in generation order, as many as
    /// fit; the current item stays, and slots left over stay as they are.
    /// @param ppItems room for `uCapacity` items; null: none are written
    /// @return how many are on screen, whether they fit or not
    std::uint32_t uGetDisplayItemsOnScreen(DisplayItem** ppItems, std::uint32_t uCapacity,
                                           std::uint32_t uTime) const;
    /// The first ms after `iAfter` at which other items are on screen than right before; nothing: never.
    std::optional<std::int32_t> rGetNextChange(std::int32_t iAfter) const;
    /// Merges the content of the items right after the current one that share its times into it.
    /// @return the current item; null when the sequence is empty
    DisplayItem* rCombineSameTimeItem();
    /// Deletes all items.
    void vClearDisplaySequence();
    /// The items in generation order, owned by the parser.
    const std::vector<DisplayItem*>& vecGetDisplaySequence() const { return vecDisplaySequence_; }

    /// The earliest begin of the items in ms, compared unsigned; -1: none.
    std::int32_t iGetDocumentStartTime() const { return iDocumentStartTime_; }
    /// The latest end of the items in ms, compared unsigned; -1: before the first generation, or an item
    /// without an end; 0: no item.
    std::int32_t iGetDocumentEndTime() const { return iDocumentEndTime_; }
    /// The root container in px; 0 before the first generation.
    std::int32_t iGetExtentWidth() const { return iExtentWidth_; }
    std::int32_t iGetExtentHeight() const { return iExtentHeight_; }
    /// The player's own tag, never interpreted; 0 until set.
    std::int32_t iGetSubtitleType() const { return iSubtitleType_; }
    void vSetSubtitleType(std::int32_t iType) { iSubtitleType_ = iType; }

    // Time expressions (TTML 1.0, 10.3.1), in ms; -1 for what is none or does not fit.

    /// Any form. A text with one colon, or with four and more, gives 0.
    /// @param iFrameRate frames a second; 0 or less makes times in frames invalid
    /// @param fTickRate ticks a second; 0 or less makes times in ticks invalid
    static std::int32_t iGetTimeFromString(const std::string& strTime, std::int32_t iFrameRate,
                                           double fTickRate = 1);
    /// hours:minutes:seconds, with an optional fraction.
    static std::int32_t iGetClockTimeWithoutFrame(const std::string& strTime);
    /// hours:minutes:seconds:frames, with optional thousandths of a frame.
    static std::int32_t iGetClockTimeWithFrame(const std::string& strTime, std::int32_t iFrameRate);
    /// A number and a metric.
    static std::int32_t iGetOffsetTime(const std::string& strTime, std::int32_t iFrameRate = 30,
                                       double fTickRate = 1);
    /// The metric of an offset time.
    static offset_time_metric_e eGetOffsetTimeMetric(const std::string& strTime);
    /// Whether the character is one of 0 to 9.
    static bool fgIsNumberChar(char character);
    /// Removes leading and trailing U+0020 in place.
    static std::string& rTrim(std::string& strText);

    // The region and style tables.

    /// Appends the regions of head/layout; percentages are of the root extent as it is now.
    void vGenerateRegionAttribSequence();
    /// Appends the styles of head/styling.
    void vGenerateStyleAttribSequence();
    /// The record of the first entry with the identifier, owned by the table and not to be
    /// changed; null: unknown.
    StylingAttrib* prGetRegionByID(const std::string& strId) const;
    StylingAttrib* prGetStyleByID(const std::string& strId) const;
    /// A copy of the first entry with the identifier; a default group when it is unknown.
    StylingAttribGroup rGetRegionByID(const std::string& strId) const;
    StylingAttribGroup rGetStyleByID(const std::string& strId) const;

    // Text.

    /// The p children of a division in document order.
    static ttaf1_dfxp::Iterator<ttaf1_dfxp::tt::Cp_eltype> itrGetPItem(ttaf1_dfxp::tt::Cdiv_eltype div);
    /// Appends a sentence, owned by the sequence, for each text and line break in a span.
    /// @param pEnclosing the styling that the span refines
    static void vGetSpanContent(ttaf1_dfxp::tt::Cspan_eltype span, std::vector<Sentence*>* pSentences,
                                const StylingAttrib* pEnclosing);
    /// Appends the text of a span in UTF-16, a line break as U+000A.
    static void vGetSpanContent(ttaf1_dfxp::tt::Cspan_eltype span, std::vector<char16_t>* pText);
    /// Appends the text of a span in the local 8-bit code page, a line break as "\n".
    static void vGetSpanContent(ttaf1_dfxp::tt::Cspan_eltype span, std::string& strText);

    // Images.

    /// Cuts the image data into PNG files by their signature; the first file begins where the data does.
    void vGeneratePNGBufferInfo();
    /// The files found by the last cut, the one with index n at n - 1.
    const std::array<ImageTableEntry, 30>& aGetImageTable() const { return aImageTable_; }
    /// The index in an image reference ("urn:dece:container:subtitleimageindex:7.png" gives 7); 4294967295
    /// when the reference is too short or has no point after the index.
    static std::uint32_t uGetImageIndex(const std::string& strReference);
    /// Appends an item for a division that names an image, else one for each of its children that does.
    /// @param iOffset ms added to begin and end
    /// Throws tessera::InvalidOperationException for an image without begin or end.
    void vGetImageItem(ttaf1_dfxp::tt::Cdiv_eltype division, int iOffset);

private:
    LoadOptions rTellingFault();
    bool fgHoldDocument(const ttaf1_dfxp::tt::Cttaf1_dfxp& loaded);

    // What both generators do (document_facts.cpp).
    std::optional<ttaf1_dfxp::tt::Cbody_eltype> rFindBodyWithDivision() const;
    void vReadRootExtent();
    TimeRates rReadTimeRates();
    static const StylingAttrib& rOrDefault(const StylingAttrib* pAttrib);
    static std::int32_t iShifted(std::int32_t iTime, std::int32_t iOffset);
    void vAppend(std::unique_ptr<DisplayItem> item);
    void vResetDocumentTime();
    void vExtendDocumentTime(const DisplayItem& item);
    void vWriteDocumentTime() const;

    std::unique_ptr<TextItem> rMakeTextItem(const ttaf1_dfxp::tt::Cp_eltype& paragraph,
                                            std::optional<TimeRates>& rates, int iOffset);
    void vSetRegionAndStyle(const std::optional<std::string>& strRegion,
                            const std::optional<std::string>& strStyle, TextItem& item) const;
    void vAppendImages(const ttaf1_dfxp::tt::Cdiv_eltype& division, const TimeRates& rates, int iOffset);
    void vAppendImage(const ttaf1_dfxp::tt::Cdiv_eltype& division, const TimeRates& rates, int iOffset,
                      bool fgReadForced);
    bool fgItemsUseDocumentBuffer() const;

    bool fgIsIndexed() const { return timeIndex_.uGetItemCount() == vecDisplaySequence_.size(); }
    std::optional<std::size_t> rFindByTime(std::uint32_t uTime) const;
    std::optional<std::size_t> rWalkToTime(std::uint32_t uTime) const;
    std::optional<std::int32_t> rWalkToNextChange(std::int32_t iAfter) const;

    std::int32_t iDocumentStartTime_;
    std::int32_t iDocumentEndTime_;
    std::int32_t iExtentWidth_;
    std::int32_t iExtentHeight_;
    RegionTable regionTable_;
    StyleTable styleTable_;
    std::int32_t iSubtitleType_;
    std::vector<DisplayItem*> vecDisplaySequence_;
    std::int32_t iDocumentBufferSize_;
    std::uint32_t uCurrentIndex_;
    std::vector<std::uint8_t> vecDocumentBuffer_; // empty: no copy is held
    std::array<ImageTableEntry, 30> aImageTable_;
    ttaf1_dfxp::tt::Cttaf1_dfxp documentRoot_;
    std::vector<std::vector<std::uint8_t>> vecEarlierBuffers_; // that items point into
    StylingAttrib rootStyling_; // of an item that names no region: the default on the root extent
    LoadOptions loadOptions_;
    LoadFault loadFault_;
    const char* pReadAttribute_ = nullptr; // the attribute that is being converted, for the failure
    Failure failure_;
    TimeIndex timeIndex_; // of the sequence as the last generation left it
};

#endif
