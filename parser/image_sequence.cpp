#include "parser/ttml_parser.h"
#include "runtime/progress_lines.h"
#include "style/attribute_reading.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

using namespace ttaf1_dfxp::tt;

namespace {

constexpr std::uint8_t pngSignature[] = {0x89, 'P', 'N', 'G'};
constexpr std::size_t uSignatureSize = sizeof pngSignature;

// "urn:dece:container:subtitleimageindex:" comes before the index; it is not looked at.
constexpr std::size_t uIndexPosition = 38;
constexpr std::uint32_t uNoIndex = UINT32_MAX;

/// The first signature that begins in [pBegin, pEnd); pEnd when there is none. A signature that the block's
/// end cuts off does not count.
const std::uint8_t* pFindSignature(const std::uint8_t* pBegin, const std::uint8_t* pEnd) {
    while (static_cast<std::size_t>(pEnd - pBegin) >= uSignatureSize) {
        const auto uCandidates = static_cast<std::size_t>(pEnd - pBegin) - uSignatureSize + 1;
        const auto* const pFound =
            static_cast<const std::uint8_t*>(std::memchr(pBegin, pngSignature[0], uCandidates));
        if (!pFound)
            break;
        if (std::memcmp(pFound, pngSignature, uSignatureSize) == 0)
            return pFound;
        pBegin = pFound + 1;
    }
    return pEnd;
}

} // namespace

void TtmlParser::vGenerateImageDisplaySequence(int iOffset) {
    const std::optional<Cbody_eltype> body = rFindBodyWithDivision();
    if (!body)
        return;
    aImageTable_.fill({});
    if (vecDocumentBuffer_.empty())
        return;
    vGeneratePNGBufferInfo();
    vReadRootExtent();
    vGenerateRegionAttribSequence();
    vGenerateStyleAttribSequence();
    const TimeRates rates = rReadTimeRates(); // once: to reach the root is to pass all that stands before it
    const TimeIndexCompletion completion(timeIndex_, vecDisplaySequence_);
    auto itrDivision = body->div.all();
    for (; itrDivision.CurrentNode(); ++itrDivision)
        vAppendImages(itrDivision, rates, iOffset);
    vResetDocumentTime();
    for (const DisplayItem* pItem : vecDisplaySequence_)
        vExtendDocumentTime(*pItem);
    timeIndex_.vBuild(vecDisplaySequence_);
    vWriteDocumentTime();
}

void TtmlParser::vGeneratePNGBufferInfo() {
    if (vecDocumentBuffer_.empty()) {
        tessera::WriteLine("Invalid PNG Buffer");
        return;
    }
    aImageTable_.fill({});
    const std::uint8_t* pStart = vecDocumentBuffer_.data();
    // The stored size need not be that of the copy: a later block without bytes leaves the copy as it is.
    if (iDocumentBufferSize_ < 1) {
        aImageTable_[0] = {pStart, iDocumentBufferSize_};
        return;
    }
    const std::uint8_t* const pEnd =
        pStart +
        std::min<std::size_t>(static_cast<std::uint32_t>(iDocumentBufferSize_), vecDocumentBuffer_.size());
    for (ImageTableEntry& entry : aImageTable_) {
        const auto uSkipped = std::min<std::ptrdiff_t>(uSignatureSize, pEnd - pStart);
        const std::uint8_t* const pNext = pFindSignature(pStart + uSkipped, pEnd);
        entry = {pStart, static_cast<std::int32_t>(pNext - pStart)};
        if (pNext == pEnd)
            return;
        pStart = pNext;
    }
}

std::uint32_t TtmlParser::uGetImageIndex(const std::string& strReference) {
    const std::size_t uPoint = strReference.rfind('.');
    if (strReference.size() <= uIndexPosition || uPoint == std::string::npos || uPoint <= uIndexPosition)
        return uNoIndex;
    // The low half of 64 bits, as atoi gives it where long has them; alike on every machine.
    return static_cast<std::uint32_t>(std::strtoll(strReference.c_str() + uIndexPosition, nullptr, 10));
}

void TtmlParser::vGetImageItem(Cdiv_eltype division, int iOffset) {
    vAppendImages(division, rReadTimeRates(), iOffset);
}

void TtmlParser::vAppendImages(const Cdiv_eltype& division, const TimeRates& rates, int iOffset) {
    if (division.backgroundImage.exists()) {
        vAppendImage(division, rates, iOffset, false);
        return;
    }
    auto itrChild = division.div.all();
    for (; itrChild.CurrentNode(); ++itrChild) {
        if (itrChild.backgroundImage.exists())
            vAppendImage(itrChild, rates, iOffset, true);
    }
}

void TtmlParser::vAppendImage(const Cdiv_eltype& division, const TimeRates& rates, int iOffset,
                              bool fgReadForced) {
    const std::uint32_t uIndex = uGetImageIndex(division.backgroundImage);
    if (uIndex < 1 || uIndex > aImageTable_.size())
        return;
    const ImageTableEntry& image = aImageTable_[uIndex - 1];
    auto item = std::make_unique<ImageItem>(image.pData, image.iSize);
    pReadAttribute_ = "begin";
    const std::int32_t iBegin = iGetTimeFromString(division.begin, rates.iFrameRate, rates.fTickRate);
    pReadAttribute_ = "end";
    const std::int32_t iEnd = iGetTimeFromString(division.end, rates.iFrameRate, rates.fTickRate);
    item->vSetTime(iShifted(iBegin, iOffset), iShifted(iEnd, iOffset));
    const std::optional<std::string> strRegion = division.region.value();
    item->styling = strRegion ? rOrDefault(prGetRegionByID(*strRegion)) : rootStyling_;
    const Extent area = {item->styling.uExtentWidth, item->styling.uExtentHeight};
    vReadGeometry(division, PairOutcome::UNCHANGED, area, item->styling);
    pReadAttribute_ = "forcedDisplayMode";
    if (fgReadForced)
        item->fgForcedDisplay = division.forcedDisplayMode.value().value_or(false);
    vAppend(std::move(item));
}

bool TtmlParser::fgItemsUseDocumentBuffer() const {
    const std::uint8_t* const pBegin = vecDocumentBuffer_.data();
    const std::uint8_t* const pEnd = pBegin + vecDocumentBuffer_.size();
    return std::any_of(vecDisplaySequence_.begin(), vecDisplaySequence_.end(), [&](const DisplayItem* pItem) {
        const auto* const pImage = dynamic_cast<const ImageItem*>(pItem);
        return pImage && pImage->pImageData >= pBegin && pImage->pImageData < pEnd;
    });
}
