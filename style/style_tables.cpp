#include "style/style_tables.h"

void StylingTable::vClear() {
    firstById_.clear();
    entries_.clear();
}

StylingAttribGroup* StylingTable::prFind(const std::string& strId) const {
    const auto found = firstById_.find(strId);
    return found == firstById_.end() ? nullptr : found->second;
}

StylingAttrib* StylingTable::prGetByID(const std::string& strId) const {
    StylingAttribGroup* const pEntry = prFind(strId);
    return pEntry ? &pEntry->attrib : nullptr;
}

StylingAttribGroup StylingTable::rGetByID(const std::string& strId) const {
    const StylingAttribGroup* const pEntry = prFind(strId);
    return pEntry ? *pEntry : StylingAttribGroup();
}

void StylingTable::vAppend(const StylingAttribGroup& group) {
    entries_.push_back(group);
    firstById_.emplace(entries_.back().strId, &entries_.back());
}

void StyleTable::vGenerate(const ttaf1_dfxp::tt::Ctt_eltype& root) {
    auto itrStyle = root.head.first().styling.first().style.all();
    for (; itrStyle.CurrentNode(); ++itrStyle) {
        StylingAttribGroup group;
        group.strId = itrStyle.id.value().value_or("");
        vReadStyling(itrStyle, styleRules, group.attrib);
        vAppend(group);
    }
}

void RegionTable::vGenerate(const ttaf1_dfxp::tt::Ctt_eltype& root, const Extent& rootExtent) {
    auto itrRegion = root.head.first().layout.first().region.all();
    for (; itrRegion.CurrentNode(); ++itrRegion) {
        StylingAttribGroup group;
        group.attrib.uExtentWidth = rootExtent.uWidth;
        group.attrib.uExtentHeight = rootExtent.uHeight;
        group.strId = itrRegion.id.value().value_or("");
        vReadGeometry(itrRegion, PairOutcome::ZERO, rootExtent, group.attrib);
        vReadStyling(itrRegion, regionRules, group.attrib);
        vAppend(group);
    }
}
