#include "parser/content_walk.h"
#include "parser/ttml_parser.h"
#include "style/attribute_reading.h"

#include <xercesc/dom/DOMText.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include <iostream>
#include <utility>

using namespace ttaf1_dfxp::tt;

namespace {

constexpr char16_t lineBreak = u'\n';
constexpr std::size_t uUsualSentences = 4; // two lines of text, the break between them and one run more

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

/// A sentence without styling of its own for a text node.
Sentence& rAppendTextSentence(const xercesc::DOMNode& text, std::vector<Sentence*>& vecSentences) {
    Sentence& sentence = rAppendSentence(vecSentences);
    vAppendText(text, sentence.vecText);
    return sentence;
}

void vAppendLineBreakSentence(std::vector<Sentence*>& vecSentences) {
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
        Sentence& sentence = rAppendTextSentence(text, vecSentences_);
        sentence.pStylingAttrib = std::make_unique<StylingAttrib>(vecStyling_.back()).release();
    }
    void vLineBreak() { vAppendLineBreakSentence(vecSentences_); }

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

/// A style laid over the styling of a region. What the style did not give is the region's; so is the area in
/// any case, and the weight under a style that is not bold.
void vLayStyleOver(const StylingAttrib& region, const StylingAttrib& style, StylingAttrib& styling) {
    styling = style;
    styling.uExtentWidth = region.uExtentWidth;
    styling.uExtentHeight = region.uExtentHeight;
    styling.uOriginX = region.uOriginX;
    styling.uOriginY = region.uOriginY;
    const auto vKeep = [&](bool fgSet, auto StylingAttrib::*pField) {
        if (!fgSet)
            styling.*pField = region.*pField;
    };
    vKeep(style.fgColorSet, &StylingAttrib::strColor);
    vKeep(style.fgFontSizeSet, &StylingAttrib::uFontSize);
    vKeep(style.fgFontStyleSet, &StylingAttrib::iFontStyle);
    vKeep(style.iFontWeight != 0, &StylingAttrib::iFontWeight);
    vKeep(style.fgLineHeightSet, &StylingAttrib::uLineHeight);
    vKeep(style.fgTextAlignSet, &StylingAttrib::eTextAlign);
    vKeep(style.fgTextDecorationSet, &StylingAttrib::eTextDecoration);
    vKeep(style.fgVisibilitySet, &StylingAttrib::iVisibility);
    vKeep(style.fgDisplayAlignSet, &StylingAttrib::eDisplayAlign);
}

std::int32_t iReadTime(const std::optional<std::string>& strTime, const TimeRates& rates) {
    return strTime ? TtmlParser::iGetTimeFromString(*strTime, rates.iFrameRate, rates.fTickRate) : -1;
}

void vReadContent(xercesc::DOMNode& paragraph, TextItem& item) {
    item.vecSentence.reserve(uUsualSentences);
    for (xercesc::DOMNode* pNode = paragraph.getFirstChild(); pNode; pNode = pNode->getNextSibling()) {
        switch (eGetContentKind(*pNode)) {
        case ContentKind::TEXT:
            rAppendTextSentence(*pNode, item.vecSentence);
            break;
        case ContentKind::LINE_BREAK:
            vAppendLineBreakSentence(item.vecSentence);
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
    std::cout << "vGenerateTextDisplaySequence called!" << std::endl;
    vReadRootExtent();
    vResetDocumentTime();
    vGenerateRegionAttribSequence();
    vGenerateStyleAttribSequence();
    std::optional<TimeRates> rates;
    for (; itrP.CurrentNode(); ++itrP) {
        vAppend(rMakeTextItem(itrP, rates, iOffset));
        vExtendDocumentTime(*vecDisplaySequence_.back());
    }
    timeIndex_.vBuild(vecDisplaySequence_);
    vWriteDocumentTime();
    std::cout << strGetDocLanguage() << std::endl;
}

std::unique_ptr<TextItem> TtmlParser::rMakeTextItem(const Cp_eltype& paragraph,
                                                    std::optional<TimeRates>& rates, int iOffset) const {
    const auto [fgForced, strRegion, strStyle, strBegin, strEnd] =
        values(paragraph.forcedDisplayMode, paragraph.region, paragraph.style, paragraph.begin, paragraph.end);
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
    if (strStyle)
        vLayStyleOver(region, rOrDefault(item.pStyleAttrib), item.styling);
    else
        item.styling = region;
}
