#include "parser/paragraph_item.h"

#include <algorithm>
#include <memory>

Sentence& rAppendNewSentence(std::vector<Sentence*>& vecSentence) {
    auto sentence = std::make_unique<Sentence>();
    vecSentence.push_back(sentence.get());
    return *sentence.release();
}

ParagraphItem::ParagraphItem(const StylingAttrib& attrib) : TextItem(attrib), uCarriedInUse_(0) {
    vecSentence.reserve(aCarried_.size());
}

ParagraphItem::~ParagraphItem() {
    const auto own = std::remove_if(vecSentence.begin(), vecSentence.end(),
                                    [this](const Sentence* pSentence) { return fgCarries(pSentence); });
    vecSentence.erase(own, vecSentence.end());
}

Sentence& ParagraphItem::rAppendSentence() {
    if (uCarriedInUse_ == aCarried_.size())
        return rAppendNewSentence(vecSentence);
    vecSentence.push_back(&aCarried_[uCarriedInUse_]);
    return aCarried_[uCarriedInUse_++];
}

bool ParagraphItem::fgCarries(const Sentence* pSentence) const {
    return std::any_of(aCarried_.begin(), aCarried_.end(),
                       [pSentence](const Sentence& carried) { return &carried == pSentence; });
}
