// What both generators read of a document beside its items, and what they leave in the parser.
#include "parser/ttml_parser.h"

#include "runtime/number.h"
#include "runtime/progress_lines.h"
#include "runtime/whitespace.h"
#include "style/length.h"
#include "xmltree/namespace_names.h"
#include "xmltree/transcode.h"
#include "xmltree/tree_operations.h"

#include <algorithm>

using namespace ttaf1_dfxp::tt;

namespace {

constexpr std::int32_t iDefaultWidth = 1024;
constexpr std::int32_t iDefaultHeight = 768;

/// The value of a text that is a positive integer, else 0.
double fPositiveInteger(const std::string& strText) {
    const tessera::LexicalNumber number = tessera::ClassifyNumber(tessera::TrimWhitespace(strText));
    if (number.kind != tessera::NumberKind::INTEGER)
        return 0;
    return std::max(tessera::ReadDouble(number.text.c_str()), 0.0);
}

/// The tick rate of a document (TTML 1.0, 6.2.10 ttp:tickRate); 0 when it is not a positive integer.
double fReadTickRate(const Ctt_eltype& root, std::int32_t iFrameRate) {
    const std::optional<std::string> strTickRate = root.tickRate.text();
    if (strTickRate)
        return fPositiveInteger(*strTickRate);
    if (!root.frameRate.exists())
        return 1;
    const std::optional<std::string> strSubFrameRate = root.subFrameRate.text();
    return iFrameRate * (strSubFrameRate ? fPositiveInteger(*strSubFrameRate) : 1);
}

void vWriteTime(const char* name, std::int32_t iTime) {
    tessera::WriteLine(name + std::to_string(static_cast<std::uint32_t>(iTime)));
}

} // namespace

std::string TtmlParser::strGetDocLanguage() const {
    return documentRoot_.tt.first().lang.value().value_or("INVALID");
}

std::u16string_view TtmlParser::strGetLanguage() const {
    const xercesc::DOMNode* const pRoot = documentRoot_.tt.first().GetNode();
    const xercesc::DOMNode* const pLanguage =
        pRoot ? XercesTreeOperations::FindAttribute(pRoot, XML_NAMESPACE, "lang") : nullptr;
    return pLanguage ? Units(pLanguage->getNodeValue()) : std::u16string_view();
}

std::optional<Cbody_eltype> TtmlParser::rFindBodyWithDivision() const {
    const Cbody_eltype body = documentRoot_.tt.first().body.first();
    if (!body.GetNode()) {
        tessera::WriteLine("<body> element not found!");
        return std::nullopt;
    }
    if (!body.div.exists()) {
        tessera::WriteLine("<div> element not found!");
        return std::nullopt;
    }
    return body;
}

void TtmlParser::vReadRootExtent() {
    float fWidth = 0;
    float fHeight = 0;
    length_unit_e eUnit = LENGTH_UNIT_NONE;
    const std::optional<std::string> strExtent = documentRoot_.tt.first().extent.value();
    const bool fgPixels =
        strExtent && fgGetDoubleLength(*strExtent, fWidth, fHeight, eUnit) && eUnit == LENGTH_UNIT_PX;
    iExtentWidth_ = fgPixels ? static_cast<std::int32_t>(uWholePixels(fWidth)) : iDefaultWidth;
    iExtentHeight_ = fgPixels ? static_cast<std::int32_t>(uWholePixels(fHeight)) : iDefaultHeight;
    rootStyling_.uExtentWidth = static_cast<std::uint32_t>(iExtentWidth_);
    rootStyling_.uExtentHeight = static_cast<std::uint32_t>(iExtentHeight_);
}

TimeRates TtmlParser::rReadTimeRates() {
    const Ctt_eltype root = documentRoot_.tt.first();
    pReadAttribute_ = "ttp:frameRate";
    TimeRates rates;
    const std::optional<unsigned long long> uFrameRate = root.frameRate.value();
    if (uFrameRate)
        rates.iFrameRate = static_cast<std::int32_t>(static_cast<std::uint32_t>(*uFrameRate));
    rates.fTickRate = fReadTickRate(root, rates.iFrameRate);
    return rates;
}

const StylingAttrib& TtmlParser::rOrDefault(const StylingAttrib* pAttrib) {
    static const StylingAttrib byDefault;
    return pAttrib ? *pAttrib : byDefault;
}

// Wraps in 32 bits.
std::int32_t TtmlParser::iShifted(std::int32_t iTime, std::int32_t iOffset) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(iTime) + static_cast<std::uint32_t>(iOffset));
}

void TtmlParser::vAppend(std::unique_ptr<DisplayItem> item) {
    vecDisplaySequence_.push_back(item.get());
    item.release();
}

void TtmlParser::vResetDocumentTime() {
    iDocumentStartTime_ = -1; // the largest time, compared as unsigned
    iDocumentEndTime_ = 0;
}

void TtmlParser::vExtendDocumentTime(const DisplayItem& item) {
    const auto fgEarlier = [](std::int32_t iLeft, std::int32_t iRight) {
        return static_cast<std::uint32_t>(iLeft) < static_cast<std::uint32_t>(iRight);
    };
    iDocumentStartTime_ = std::min(iDocumentStartTime_, item.iGetBeginTime(), fgEarlier);
    iDocumentEndTime_ = std::max(iDocumentEndTime_, item.iGetEndTime(), fgEarlier);
}

void TtmlParser::vWriteDocumentTime() const {
    vWriteTime("document start time ", iDocumentStartTime_);
    vWriteTime("document end time ", iDocumentEndTime_);
}
