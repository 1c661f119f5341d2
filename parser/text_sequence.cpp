#include "parser/content_walk.h"
#include "parser/ttml_parser.h"
#include "runtime/progress_lines.h"
#include "style/attribute_reading.h"

#include <xercesc/dom/DOMText.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

using namespace ttaf1_dfxp::tt;

namespace {

constexpr char16_t lineBreak = u'\n';
constexpr std::size_t uUsualSentences = 3; // two lines of text and the break between them

void vAppendText(const xercesc::DOMNode& text, std::vector<char16_t>& vecTarget) {
    const XMLCh* const pUnits = text.getNodeValue();
    const std::size_t uLength = static_cast<const xercesc::DOMText&>(text).getLength();
    vecTarget.insert(vecTarget.end(), pUnits, pUnits + uLength);
}

/// In the local code page.
void vAppendText(const xercesc::DOMNode& text, std::string& strTarget) {
    const auto release = [](char* pText) {
        xercesc::XMLString::release(&pText, xercesc::XMLPlatformUtils::fgMemoryManager);
    };
    const std::unique_ptr<char, decltype(release)> transcoded(
        xercesc::XMLString::transcode(text.getNodeValue(), xercesc::XMLPlatformUtils::fgMemoryManager),
        release);
    strTarget += transcoded.get();
}

Sentence& rAppendSentence(std::vector<Sentence*>& vecSentences) {
    auto sentence = std::make_unique<Sentence>();
    vecSentences.push_back(sentence.get());
    return *sentence.release();
}

void vAppendLineBreak(std::vector<Sentence*>& vecSentences) {
    Sentence& sentence = rAppendSentence(vecSentences);
    sentence.vecText.push_back(lineBreak);
    sentence.fgLineBreak = true;
}

/// Makes the sentences of a span: every span refines the styling of the one around it.
class SentenceCollector {
public:
    SentenceCollector(std::vector<Sentence*>& vecSentences, const StylingAttrib& enclosing)
        : vecSentences_(vecSentences), enclosing_(enclosing) {}

    void vEnterSpan(xercesc::DOMNode& span) {
        vecStyling_.push_back(vecStyling_.empty() ? enclosing_ : vecStyling_.back());
        vReadStyling(Cspan_eltype(&span), spanRules, vecStyling_.back());
    }
    void vLeaveSpan() { vecStyling_.pop_back(); }
    void vText(const xercesc::DOMNode& text) {
        Sentence& sentence = rAppendSentence(vecSentences_);
        vAppendText(text, sentence.vecText);
        sentence.pStylingAttrib = std::make_unique<StylingAttrib>(vecStyling_.back()).release();
    }
    void vLineBreak() { vAppendLineBreak(vecSentences_); }

private:
    std::vector<Sentence*>& vecSentences_;
    const StylingAttrib& enclosing_;
    std::vector<StylingAttrib> vecStyling_; // of the open spans, innermost last
};

/// Gathers the text of a span, whatever the spans inside it.
template <class Text>
class TextCollector {
public:
    explicit TextCollector(Text& text) : text_(text) {}

    void vEnterSpan(const xercesc::DOMNode&) {}
    void vLeaveSpan() {}
    void vText(const xercesc::DOMNode& text) { vAppendText(text, text_); }
    void vLineBreak() { text_.push_back('\n'); }

private:
    Text& text_;
};

/// Completes the styling of a style by that of the region under it: what the style did not give is the
/// region's, so is the area in any case, and the weight under a style that is not bold.
void vLayOverRegion(const StylingAttrib& region, StylingAttrib& styling) {
    styling.uExtentWidth = region.uExtentWidth;
    styling.uExtentHeight = region.uExtentHeight;
    styling.uOriginX = region.uOriginX;
    styling.uOriginY = region.uOriginY;
    const auto vKeep = [&](bool fgSet, auto StylingAttrib::*pField) {
        if (!fgSet)
            styling.*pField = region.*pField;
    };
    vKeep(styling.fgColorSet, &StylingAttrib::strColor);
    vKeep(styling.fgFontSizeSet, &StylingAttrib::uFontSize);
    vKeep(styling.fgFontStyleSet, &StylingAttrib::iFontStyle);
    vKeep(styling.iFontWeight != 0, &StylingAttrib::iFontWeight);
    vKeep(styling.fgLineHeightSet, &StylingAttrib::uLineHeight);
    vKeep(styling.fgTextAlignSet, &StylingAttrib::eTextAlign);
    vKeep(styling.fgTextDecorationSet, &StylingAttrib::eTextDecoration);
    vKeep(styling.fgVisibilitySet, &StylingAttrib::iVisibility);
    vKeep(styling.fgDisplayAlignSet, &StylingAttrib::eDisplayAlign);
}

std::int32_t iReadTime(const std::optional<std::string>& strTime, const TimeRates& rates) {
    return strTime ? TtmlParser::iGetTimeFromString(*strTime, rates.iFrameRate, rates.fTickRate) : -1;
}

void vReadContent(xercesc::DOMNode& paragraph, TextItem& item) {
    item.vecSentence.reserve(uUsualSentences);
    for (xercesc::DOMNode* pNode = paragraph.getFirstChild(); pNode; pNode = pNode->getNextSibling()) {
        switch (eGetContentKind(*pNode)) {
        case ContentKind::TEXT:
            vAppendText(*pNode, rAppendSentence(item.vecSentence).vecText);
            break;
        case ContentKind::LINE_BREAK:
            vAppendLineBreak(item.vecSentence);
            item.vecContent.push_back(lineBreak);
            break;
        case ContentKind::SPAN:
            TtmlParser::vGetSpanContent(Cspan_eltype(pNode), &item.vecSentence, &item.styling);
            break;
        case ContentKind::OTHER:
            break;
        }
    }
}

} // namespace

ttaf1_dfxp::Iterator<Cp_eltype> TtmlParser::itrGetPItem(Cdiv_eltype div) {
    return div.p.all();
}

void TtmlParser::vGetSpanContent(Cspan_eltype span, std::vector<Sentence*>* pSentences,
                                 const StylingAttrib* pEnclosing) {
    SentenceCollector collector(*pSentences, *pEnclosing);
    vWalkSpan(*span.GetNode(), collector);
}

void TtmlParser::vGetSpanContent(Cspan_eltype span, std::vector<char16_t>* pText) {
    TextCollector<std::vector<char16_t>> collector(*pText);
    vWalkSpan(*span.GetNode(), collector);
}

void TtmlParser::vGetSpanContent(Cspan_eltype span, std::string& strText) {
    TextCollector<std::string> collector(strText);
    vWalkSpan(*span.GetNode(), collector);
}

void TtmlParser::vGenerateTextDisplaySequence(int iOffset) {
    const std::optional<Cbody_eltype> body = rFindBodyWithDivision();
    if (!body)
        return;
    auto itrP = itrGetPItem(body->div.first());
    tessera::WriteLine("vGenerateTextDisplaySequence called!");
    vReadRootExtent();
    vResetDocumentTime();
    vGenerateRegionAttribSequence();
    vGenerateStyleAttribSequence();
    const TimeIndexCompletion completion(timeIndex_, vecDisplaySequence_);
    std::optional<TimeRates> rates;
    for (; itrP.CurrentNode(); ++itrP) {
        vAppend(rMakeTextItem(itrP, rates, iOffset));
        vExtendDocumentTime(*vecDisplaySequence_.back());
    }
    timeIndex_.vBuild(vecDisplaySequence_);
    vWriteDocumentTime();
    tessera::WriteLine(strGetDocLanguage());
}

std::unique_ptr<TextItem> TtmlParser::rMakeTextItem(const Cp_eltype& paragraph,
                                                    std::optional<TimeRates>& rates, int iOffset) {
    pReadAttribute_ = "forcedDisplayMode"; // the only one of these that is no text
    const auto [fgForced, strRegion, strStyle, strBegin, strEnd] = values(
        paragraph.forcedDisplayMode, paragraph.region, paragraph.style, paragraph.begin, paragraph.end);
    auto item = std::make_unique<TextItem>();
    item->fgForcedDisplay = fgForced.value_or(false);
    vSetRegionAndStyle(strRegion, strStyle, *item);
    if (paragraph.color.namespaceExists()) { // most paragraphs have no tts: attribute at all
        const Extent area = {item->styling.uExtentWidth, item->styling.uExtentHeight};
        vReadGeometry(paragraph, PairOutcome::UNCHANGED, area, item->styling);
        vReadStyling(paragraph, paragraphRules, item->styling);
    }
    vReadContent(*paragraph.GetNode(), *item);
    if (!rates)
        rates = rReadTimeRates();
    item->vSetTime(iShifted(iReadTime(strBegin, *rates), iOffset),
                   iShifted(iReadTime(strEnd, *rates), iOffset));
    return item;
}

void TtmlParser::vSetRegionAndStyle(const std::optional<std::string>& strRegion,
                                    const std::optional<std::string>& strStyle, TextItem& item) const {
    item.pRegionAttrib = strRegion ? prGetRegionByID(*strRegion) : nullptr;
    item.pStyleAttrib = strStyle ? prGetStyleByID(*strStyle) : nullptr;
    const StylingAttrib& region = strRegion ? rOrDefault(item.pRegionAttrib) : rootStyling_;
    item.styling = strStyle ? rOrDefault(item.pStyleAttrib) : region;
    if (strStyle)
        vLayOverRegion(region, item.styling);
}
