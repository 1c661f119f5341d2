// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// Hands every accessor of every wrapper class to a visitor.
// clang-format off
#ifndef XTTML_TESTS_BINDING_GENERATED_ACCESSOR_VISITS_H
#define XTTML_TESTS_BINDING_GENERATED_ACCESSOR_VISITS_H

#include "binding/ttaf1_dfxp.h"

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::xs::CanyType& wrapper,
                    [[maybe_unused]] Visitor& visit) {
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::xs::CstringType& wrapper,
                    [[maybe_unused]] Visitor& visit) {
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Cbody_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.begin);
    visit(wrapper.dur);
    visit(wrapper.end);
    visit(wrapper.timeContainer);
    visit(wrapper.region);
    visit(wrapper.style);
    visit(wrapper.backgroundColor);
    visit(wrapper.color);
    visit(wrapper.direction);
    visit(wrapper.display);
    visit(wrapper.displayAlign);
    visit(wrapper.dynamicFlow);
    visit(wrapper.extent);
    visit(wrapper.fontFamily);
    visit(wrapper.fontSize);
    visit(wrapper.fontStyle);
    visit(wrapper.fontWeight);
    visit(wrapper.lineHeight);
    visit(wrapper.opacity);
    visit(wrapper.origin);
    visit(wrapper.overflow);
    visit(wrapper.padding);
    visit(wrapper.showBackground);
    visit(wrapper.textAlign);
    visit(wrapper.textDecoration);
    visit(wrapper.textOutline);
    visit(wrapper.unicodeBidi);
    visit(wrapper.visibility);
    visit(wrapper.wrapOption);
    visit(wrapper.writingMode);
    visit(wrapper.zIndex);
    visit(wrapper.agent);
    visit(wrapper.role);
    visit(wrapper.forcedDisplayMode);
    visit(wrapper.agent2);
    visit(wrapper.copyright);
    visit(wrapper.desc);
    visit(wrapper.title);
    visit(wrapper.metadata);
    visit(wrapper.information);
    visit(wrapper.set);
    visit(wrapper.div);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Cbr_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.style);
    visit(wrapper.backgroundColor);
    visit(wrapper.color);
    visit(wrapper.direction);
    visit(wrapper.display);
    visit(wrapper.displayAlign);
    visit(wrapper.dynamicFlow);
    visit(wrapper.extent);
    visit(wrapper.fontFamily);
    visit(wrapper.fontSize);
    visit(wrapper.fontStyle);
    visit(wrapper.fontWeight);
    visit(wrapper.lineHeight);
    visit(wrapper.opacity);
    visit(wrapper.origin);
    visit(wrapper.overflow);
    visit(wrapper.padding);
    visit(wrapper.showBackground);
    visit(wrapper.textAlign);
    visit(wrapper.textDecoration);
    visit(wrapper.textOutline);
    visit(wrapper.unicodeBidi);
    visit(wrapper.visibility);
    visit(wrapper.wrapOption);
    visit(wrapper.writingMode);
    visit(wrapper.zIndex);
    visit(wrapper.agent);
    visit(wrapper.role);
    visit(wrapper.agent2);
    visit(wrapper.copyright);
    visit(wrapper.desc);
    visit(wrapper.title);
    visit(wrapper.metadata);
    visit(wrapper.information);
    visit(wrapper.set);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Cdiv_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.begin);
    visit(wrapper.dur);
    visit(wrapper.end);
    visit(wrapper.timeContainer);
    visit(wrapper.region);
    visit(wrapper.style);
    visit(wrapper.backgroundColor);
    visit(wrapper.color);
    visit(wrapper.direction);
    visit(wrapper.display);
    visit(wrapper.displayAlign);
    visit(wrapper.dynamicFlow);
    visit(wrapper.extent);
    visit(wrapper.fontFamily);
    visit(wrapper.fontSize);
    visit(wrapper.fontStyle);
    visit(wrapper.fontWeight);
    visit(wrapper.lineHeight);
    visit(wrapper.opacity);
    visit(wrapper.origin);
    visit(wrapper.overflow);
    visit(wrapper.padding);
    visit(wrapper.showBackground);
    visit(wrapper.textAlign);
    visit(wrapper.textDecoration);
    visit(wrapper.textOutline);
    visit(wrapper.unicodeBidi);
    visit(wrapper.visibility);
    visit(wrapper.wrapOption);
    visit(wrapper.writingMode);
    visit(wrapper.zIndex);
    visit(wrapper.agent);
    visit(wrapper.role);
    visit(wrapper.forcedDisplayMode);
    visit(wrapper.backgroundImage);
    visit(wrapper.backgroundImageHorizontal);
    visit(wrapper.backgroundImageVertical);
    visit(wrapper.agent2);
    visit(wrapper.copyright);
    visit(wrapper.desc);
    visit(wrapper.title);
    visit(wrapper.metadata);
    visit(wrapper.information);
    visit(wrapper.set);
    visit(wrapper.p);
    visit(wrapper.div);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Chead_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.agent);
    visit(wrapper.copyright);
    visit(wrapper.desc);
    visit(wrapper.title);
    visit(wrapper.metadata);
    visit(wrapper.information);
    visit(wrapper.profile);
    visit(wrapper.styling);
    visit(wrapper.layout);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Clayout_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.agent);
    visit(wrapper.copyright);
    visit(wrapper.desc);
    visit(wrapper.title);
    visit(wrapper.metadata);
    visit(wrapper.information);
    visit(wrapper.region);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Cmetadata_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Cp_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.begin);
    visit(wrapper.dur);
    visit(wrapper.end);
    visit(wrapper.timeContainer);
    visit(wrapper.region);
    visit(wrapper.style);
    visit(wrapper.backgroundColor);
    visit(wrapper.color);
    visit(wrapper.direction);
    visit(wrapper.display);
    visit(wrapper.displayAlign);
    visit(wrapper.dynamicFlow);
    visit(wrapper.extent);
    visit(wrapper.fontFamily);
    visit(wrapper.fontSize);
    visit(wrapper.fontStyle);
    visit(wrapper.fontWeight);
    visit(wrapper.lineHeight);
    visit(wrapper.opacity);
    visit(wrapper.origin);
    visit(wrapper.overflow);
    visit(wrapper.padding);
    visit(wrapper.showBackground);
    visit(wrapper.textAlign);
    visit(wrapper.textDecoration);
    visit(wrapper.textOutline);
    visit(wrapper.unicodeBidi);
    visit(wrapper.visibility);
    visit(wrapper.wrapOption);
    visit(wrapper.writingMode);
    visit(wrapper.zIndex);
    visit(wrapper.agent);
    visit(wrapper.role);
    visit(wrapper.forcedDisplayMode);
    visit(wrapper.agent2);
    visit(wrapper.copyright);
    visit(wrapper.desc);
    visit(wrapper.title);
    visit(wrapper.metadata);
    visit(wrapper.information);
    visit(wrapper.set);
    visit(wrapper.br);
    visit(wrapper.span);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Cregion_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.style);
    visit(wrapper.backgroundColor);
    visit(wrapper.color);
    visit(wrapper.direction);
    visit(wrapper.display);
    visit(wrapper.displayAlign);
    visit(wrapper.dynamicFlow);
    visit(wrapper.extent);
    visit(wrapper.fontFamily);
    visit(wrapper.fontSize);
    visit(wrapper.fontStyle);
    visit(wrapper.fontWeight);
    visit(wrapper.lineHeight);
    visit(wrapper.opacity);
    visit(wrapper.origin);
    visit(wrapper.overflow);
    visit(wrapper.padding);
    visit(wrapper.showBackground);
    visit(wrapper.textAlign);
    visit(wrapper.textDecoration);
    visit(wrapper.textOutline);
    visit(wrapper.unicodeBidi);
    visit(wrapper.visibility);
    visit(wrapper.wrapOption);
    visit(wrapper.writingMode);
    visit(wrapper.zIndex);
    visit(wrapper.begin);
    visit(wrapper.dur);
    visit(wrapper.end);
    visit(wrapper.timeContainer);
    visit(wrapper.forcedDisplayMode);
    visit(wrapper.agent);
    visit(wrapper.copyright);
    visit(wrapper.desc);
    visit(wrapper.title);
    visit(wrapper.metadata);
    visit(wrapper.information);
    visit(wrapper.set);
    visit(wrapper.style2);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Cset_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.begin);
    visit(wrapper.dur);
    visit(wrapper.end);
    visit(wrapper.backgroundColor);
    visit(wrapper.color);
    visit(wrapper.direction);
    visit(wrapper.display);
    visit(wrapper.displayAlign);
    visit(wrapper.dynamicFlow);
    visit(wrapper.extent);
    visit(wrapper.fontFamily);
    visit(wrapper.fontSize);
    visit(wrapper.fontStyle);
    visit(wrapper.fontWeight);
    visit(wrapper.lineHeight);
    visit(wrapper.opacity);
    visit(wrapper.origin);
    visit(wrapper.overflow);
    visit(wrapper.padding);
    visit(wrapper.showBackground);
    visit(wrapper.textAlign);
    visit(wrapper.textDecoration);
    visit(wrapper.textOutline);
    visit(wrapper.unicodeBidi);
    visit(wrapper.visibility);
    visit(wrapper.wrapOption);
    visit(wrapper.writingMode);
    visit(wrapper.zIndex);
    visit(wrapper.forcedDisplayMode);
    visit(wrapper.agent);
    visit(wrapper.copyright);
    visit(wrapper.desc);
    visit(wrapper.title);
    visit(wrapper.metadata);
    visit(wrapper.information);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Cspan_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.begin);
    visit(wrapper.dur);
    visit(wrapper.end);
    visit(wrapper.timeContainer);
    visit(wrapper.region);
    visit(wrapper.style);
    visit(wrapper.backgroundColor);
    visit(wrapper.color);
    visit(wrapper.direction);
    visit(wrapper.display);
    visit(wrapper.displayAlign);
    visit(wrapper.dynamicFlow);
    visit(wrapper.extent);
    visit(wrapper.fontFamily);
    visit(wrapper.fontSize);
    visit(wrapper.fontStyle);
    visit(wrapper.fontWeight);
    visit(wrapper.lineHeight);
    visit(wrapper.opacity);
    visit(wrapper.origin);
    visit(wrapper.overflow);
    visit(wrapper.padding);
    visit(wrapper.showBackground);
    visit(wrapper.textAlign);
    visit(wrapper.textDecoration);
    visit(wrapper.textOutline);
    visit(wrapper.unicodeBidi);
    visit(wrapper.visibility);
    visit(wrapper.wrapOption);
    visit(wrapper.writingMode);
    visit(wrapper.zIndex);
    visit(wrapper.agent);
    visit(wrapper.role);
    visit(wrapper.forcedDisplayMode);
    visit(wrapper.agent2);
    visit(wrapper.copyright);
    visit(wrapper.desc);
    visit(wrapper.title);
    visit(wrapper.metadata);
    visit(wrapper.information);
    visit(wrapper.set);
    visit(wrapper.br);
    visit(wrapper.span);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Cstyle_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.style);
    visit(wrapper.backgroundColor);
    visit(wrapper.color);
    visit(wrapper.direction);
    visit(wrapper.display);
    visit(wrapper.displayAlign);
    visit(wrapper.dynamicFlow);
    visit(wrapper.extent);
    visit(wrapper.fontFamily);
    visit(wrapper.fontSize);
    visit(wrapper.fontStyle);
    visit(wrapper.fontWeight);
    visit(wrapper.lineHeight);
    visit(wrapper.opacity);
    visit(wrapper.origin);
    visit(wrapper.overflow);
    visit(wrapper.padding);
    visit(wrapper.showBackground);
    visit(wrapper.textAlign);
    visit(wrapper.textDecoration);
    visit(wrapper.textOutline);
    visit(wrapper.unicodeBidi);
    visit(wrapper.visibility);
    visit(wrapper.wrapOption);
    visit(wrapper.writingMode);
    visit(wrapper.zIndex);
    visit(wrapper.agent);
    visit(wrapper.copyright);
    visit(wrapper.desc);
    visit(wrapper.title);
    visit(wrapper.metadata);
    visit(wrapper.information);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Cstyling_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.agent);
    visit(wrapper.copyright);
    visit(wrapper.desc);
    visit(wrapper.title);
    visit(wrapper.metadata);
    visit(wrapper.information);
    visit(wrapper.style);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Ctt_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.cellResolution);
    visit(wrapper.clockMode);
    visit(wrapper.dropMode);
    visit(wrapper.frameRate);
    visit(wrapper.frameRateMultiplier);
    visit(wrapper.markerMode);
    visit(wrapper.profile);
    visit(wrapper.pixelAspectRatio);
    visit(wrapper.subFrameRate);
    visit(wrapper.tickRate);
    visit(wrapper.timeBase);
    visit(wrapper.extent);
    visit(wrapper.head);
    visit(wrapper.body);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::Cttaf1_dfxp& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.data);
    visit(wrapper.image);
    visit(wrapper.information);
    visit(wrapper.body);
    visit(wrapper.br);
    visit(wrapper.div);
    visit(wrapper.head);
    visit(wrapper.layout);
    visit(wrapper.metadata);
    visit(wrapper.p);
    visit(wrapper.region);
    visit(wrapper.set);
    visit(wrapper.span);
    visit(wrapper.style);
    visit(wrapper.styling);
    visit(wrapper.tt);
    visit(wrapper.actor);
    visit(wrapper.agent);
    visit(wrapper.copyright);
    visit(wrapper.desc);
    visit(wrapper.name);
    visit(wrapper.title);
    visit(wrapper.extension);
    visit(wrapper.extensions);
    visit(wrapper.feature);
    visit(wrapper.features);
    visit(wrapper.profile);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::CdataType& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.encoding);
    visit(wrapper.datatype);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::CimageType& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.imagetype);
    visit(wrapper.encoding);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::tt::CinformationType& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.origin);
    visit(wrapper.threshold);
    visit(wrapper.mode);
    visit(wrapper.encoding);
    visit(wrapper.channel);
    visit(wrapper.fieldStart);
    visit(wrapper.programName);
    visit(wrapper.programType);
    visit(wrapper.contentAdvisory);
    visit(wrapper.captionService);
    visit(wrapper.copyAndRedistributionControl);
    visit(wrapper.captionLanguage);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttd::CextensionDesignatorType& wrapper,
                    [[maybe_unused]] Visitor& visit) {
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttd::CfeatureDesignatorType& wrapper,
                    [[maybe_unused]] Visitor& visit) {
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttm::Cactor_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.agent);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttm::Cagent_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.type);
    visit(wrapper.name);
    visit(wrapper.actor);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttm::Ccopyright_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttm::Cdesc_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttm::Cname_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
    visit(wrapper.type);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttm::Ctitle_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.lang);
    visit(wrapper.space);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttp::Cextension_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.value);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttp::Cextensions_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.base);
    visit(wrapper.extension);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttp::Cfeature_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.value);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttp::Cfeatures_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.base);
    visit(wrapper.feature);
}

template <class Visitor>
void VisitAccessors([[maybe_unused]] const ttaf1_dfxp::ttp::Cprofile_eltype& wrapper,
                    [[maybe_unused]] Visitor& visit) {
    visit(wrapper.id);
    visit(wrapper.use);
    visit(wrapper.features);
    visit(wrapper.extensions);
}

/// Calls Visit<class>(type index) for every class that has accessors or text.
template <class Visitor>
void VisitClasses(Visitor& visit) {
    visit.template Visit<ttaf1_dfxp::xs::CanyType>(14);
    visit.template Visit<ttaf1_dfxp::xs::CstringType>(48);
    visit.template Visit<ttaf1_dfxp::tt::Cbody_eltype>(49);
    visit.template Visit<ttaf1_dfxp::tt::Cbr_eltype>(50);
    visit.template Visit<ttaf1_dfxp::tt::Cdiv_eltype>(51);
    visit.template Visit<ttaf1_dfxp::tt::Chead_eltype>(52);
    visit.template Visit<ttaf1_dfxp::tt::Clayout_eltype>(53);
    visit.template Visit<ttaf1_dfxp::tt::Cmetadata_eltype>(54);
    visit.template Visit<ttaf1_dfxp::tt::Cp_eltype>(55);
    visit.template Visit<ttaf1_dfxp::tt::Cregion_eltype>(56);
    visit.template Visit<ttaf1_dfxp::tt::Cset_eltype>(57);
    visit.template Visit<ttaf1_dfxp::tt::Cspan_eltype>(58);
    visit.template Visit<ttaf1_dfxp::tt::Cstyle_eltype>(59);
    visit.template Visit<ttaf1_dfxp::tt::Cstyling_eltype>(60);
    visit.template Visit<ttaf1_dfxp::tt::Ctt_eltype>(61);
    visit.template Visit<ttaf1_dfxp::tt::Cttaf1_dfxp>(62);
    visit.template Visit<ttaf1_dfxp::tt::CdataType>(63);
    visit.template Visit<ttaf1_dfxp::tt::CimageType>(65);
    visit.template Visit<ttaf1_dfxp::tt::CinformationType>(68);
    visit.template Visit<ttaf1_dfxp::ttd::CextensionDesignatorType>(131);
    visit.template Visit<ttaf1_dfxp::ttd::CfeatureDesignatorType>(132);
    visit.template Visit<ttaf1_dfxp::ttm::Cactor_eltype>(133);
    visit.template Visit<ttaf1_dfxp::ttm::Cagent_eltype>(134);
    visit.template Visit<ttaf1_dfxp::ttm::Ccopyright_eltype>(135);
    visit.template Visit<ttaf1_dfxp::ttm::Cdesc_eltype>(136);
    visit.template Visit<ttaf1_dfxp::ttm::Cname_eltype>(137);
    visit.template Visit<ttaf1_dfxp::ttm::Ctitle_eltype>(138);
    visit.template Visit<ttaf1_dfxp::ttp::Cextension_eltype>(139);
    visit.template Visit<ttaf1_dfxp::ttp::Cextensions_eltype>(140);
    visit.template Visit<ttaf1_dfxp::ttp::Cfeature_eltype>(141);
    visit.template Visit<ttaf1_dfxp::ttp::Cfeatures_eltype>(142);
    visit.template Visit<ttaf1_dfxp::ttp::Cprofile_eltype>(143);
}

#endif
