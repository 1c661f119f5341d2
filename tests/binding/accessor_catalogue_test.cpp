// The accessors that the parser reads a document by, against the member records they stand for. Where several
// types have the styling attributes, all but one are looked at in a few places only.
#include "binding/ttaf1_dfxp.h"

#include <gtest/gtest.h>

#include <string>

using namespace ttaf1_dfxp;
using tt::Cbody_eltype;
using tt::Cdiv_eltype;
using tt::Chead_eltype;
using tt::CinformationType;
using tt::Clayout_eltype;
using tt::Cp_eltype;
using tt::Cregion_eltype;
using tt::Cspan_eltype;
using tt::Cstyle_eltype;
using tt::Cstyling_eltype;
using tt::Ctt_eltype;
using tt::Cttaf1_dfxp;

namespace {

std::string ValueName(const std::string*) {
    return "string";
}
std::string ValueName(const bool*) {
    return "bool";
}
std::string ValueName(const unsigned long long*) {
    return "unsigned";
}
std::string ValueName(const double*) {
    return "double";
}

std::string PrefixOf(const tessera::MemberInfo& member) {
    for (std::uint32_t i = 0; i < NAMESPACE_COUNT; ++i) {
        if (namespaces[i].namespaceURI == std::string(member.namespaceURI)) {
            return std::string(namespaces[i].prefix) + ":";
        }
    }
    return member.namespaceURI;
}

/// The owner's type, the member's index and its name.
std::string Describe(std::uint32_t member) {
    const auto& record = members[member];
    return std::string(types[record.containingType].localName) + " " + std::to_string(member) + " " +
           PrefixOf(record) + record.localName;
}

/// ... the type of the value and the number of enumeration values.
template <class Owner, class T, std::uint32_t member, std::uint32_t enumFirst, std::uint32_t enumCount>
std::string Describe(MemberAttribute<T, member, enumFirst, enumCount> Owner::*) {
    EXPECT_EQ(members[member].flags, tessera::MEMBER_ATTRIBUTE);
    EXPECT_EQ(enumFirst, 0U);
    return Describe(member) + " " + ValueName(static_cast<const T*>(nullptr)) + " " +
           std::to_string(enumCount);
}

/// ... the type of the element.
template <class Owner, class T, std::uint32_t member>
std::string Describe(MemberElement<T, member> Owner::*) {
    EXPECT_EQ(members[member].flags, tessera::MEMBER_ELEMENT);
    return Describe(member) + " " + types[members[member].dataType].localName;
}

} // namespace

TEST(AccessorCatalogue, MembersOfTheAccessors) {
    const struct {
        std::string accessor;
        const char* expected;
    } rows[] = {
        {Describe(&Cttaf1_dfxp::tt), "ttaf1_dfxp 411 tt:tt tt.eltype"},
        {Describe(&Ctt_eltype::lang), "tt.eltype 380 xml:lang string 1"},
        {Describe(&Ctt_eltype::frameRate), "tt.eltype 385 ttp:frameRate unsigned 0"},
        {Describe(&Ctt_eltype::subFrameRate), "tt.eltype 390 ttp:subFrameRate unsigned 0"},
        {Describe(&Ctt_eltype::tickRate), "tt.eltype 391 ttp:tickRate unsigned 0"},
        {Describe(&Ctt_eltype::extent), "tt.eltype 393 tts:extent string 0"},
        {Describe(&Ctt_eltype::head), "tt.eltype 394 tt:head head.eltype"},
        {Describe(&Ctt_eltype::body), "tt.eltype 395 tt:body body.eltype"},
        {Describe(&Chead_eltype::styling), "head.eltype 144 tt:styling styling.eltype"},
        {Describe(&Chead_eltype::layout), "head.eltype 145 tt:layout layout.eltype"},
        {Describe(&Cstyling_eltype::style), "styling.eltype 378 tt:style style.eltype"},
        {Describe(&Clayout_eltype::region), "layout.eltype 155 tt:region region.eltype"},
        {Describe(&Cbody_eltype::div), "body.eltype 46 tt:div div.eltype"},
        {Describe(&Cdiv_eltype::begin), "div.eltype 88 begin string 0"},
        {Describe(&Cdiv_eltype::end), "div.eltype 90 end string 0"},
        {Describe(&Cdiv_eltype::region), "div.eltype 92 region string 0"},
        {Describe(&Cdiv_eltype::extent), "div.eltype 100 tts:extent string 0"},
        {Describe(&Cdiv_eltype::origin), "div.eltype 107 tts:origin string 0"},
        {Describe(&Cdiv_eltype::forcedDisplayMode), "div.eltype 121 cff:forcedDisplayMode bool 0"},
        {Describe(&Cdiv_eltype::backgroundImage), "div.eltype 122 smpte:backgroundImage string 0"},
        {Describe(&Cdiv_eltype::p), "div.eltype 132 tt:p p.eltype"},
        {Describe(&Cdiv_eltype::div), "div.eltype 133 tt:div div.eltype"},
        {Describe(&Cp_eltype::begin), "p.eltype 164 begin string 0"},
        {Describe(&Cp_eltype::end), "p.eltype 166 end string 0"},
        {Describe(&Cp_eltype::region), "p.eltype 168 region string 0"},
        {Describe(&Cp_eltype::style), "p.eltype 169 style string 0"},
        {Describe(&Cp_eltype::backgroundColor), "p.eltype 170 tts:backgroundColor string 0"},
        {Describe(&Cp_eltype::color), "p.eltype 171 tts:color string 0"},
        {Describe(&Cp_eltype::displayAlign), "p.eltype 174 tts:displayAlign string 3"},
        {Describe(&Cp_eltype::extent), "p.eltype 176 tts:extent string 0"},
        {Describe(&Cp_eltype::fontSize), "p.eltype 178 tts:fontSize string 0"},
        {Describe(&Cp_eltype::fontStyle), "p.eltype 179 tts:fontStyle string 4"},
        {Describe(&Cp_eltype::fontWeight), "p.eltype 180 tts:fontWeight string 2"},
        {Describe(&Cp_eltype::lineHeight), "p.eltype 181 tts:lineHeight string 0"},
        {Describe(&Cp_eltype::origin), "p.eltype 183 tts:origin string 0"},
        {Describe(&Cp_eltype::textAlign), "p.eltype 187 tts:textAlign string 5"},
        {Describe(&Cp_eltype::textDecoration), "p.eltype 188 tts:textDecoration string 7"},
        {Describe(&Cp_eltype::visibility), "p.eltype 191 tts:visibility string 2"},
        {Describe(&Cp_eltype::forcedDisplayMode), "p.eltype 197 cff:forcedDisplayMode bool 0"},
        {Describe(&Cregion_eltype::id), "region.eltype 207 xml:id string 0"},
        {Describe(&Cregion_eltype::color), "region.eltype 212 tts:color string 0"},
        {Describe(&Cregion_eltype::displayAlign), "region.eltype 215 tts:displayAlign string 3"},
        {Describe(&Cregion_eltype::origin), "region.eltype 224 tts:origin string 0"},
        {Describe(&Cregion_eltype::visibility), "region.eltype 232 tts:visibility string 2"},
        {Describe(&Cstyle_eltype::id), "style.eltype 334 xml:id string 0"},
        {Describe(&Cstyle_eltype::color), "style.eltype 339 tts:color string 0"},
        {Describe(&Cstyle_eltype::displayAlign), "style.eltype 342 tts:displayAlign string 3"},
        {Describe(&Cstyle_eltype::fontFamily), "style.eltype 345 tts:fontFamily string 0"},
        {Describe(&Cstyle_eltype::visibility), "style.eltype 359 tts:visibility string 2"},
        {Describe(&Cspan_eltype::backgroundColor), "span.eltype 297 tts:backgroundColor string 0"},
        {Describe(&Cspan_eltype::textDecoration), "span.eltype 315 tts:textDecoration string 7"},
        {Describe(&Cspan_eltype::visibility), "span.eltype 318 tts:visibility string 2"},
        // A name that a type has twice goes to the attribute, which comes first.
        {Describe(&Cbody_eltype::agent), "body.eltype 36 ttm:agent string 0"},
        {Describe(&Cbody_eltype::agent2), "body.eltype 39 ttm:agent agent.eltype"},
        {Describe(&Cregion_eltype::style), "region.eltype 210 style string 0"},
        {Describe(&Cregion_eltype::style2), "region.eltype 248 tt:style style.eltype"},
        // The last of each block of the member table.
        {Describe(&CinformationType::threshold), " 434 threshold double 0"},
        {Describe(&CinformationType::captionLanguage), " 444 m608:captionLanguage string 0"},
        {Describe(&ttm::Cagent_eltype::type), "agent.eltype 454 type string 5"},
        {Describe(&ttm::Cagent_eltype::actor), "agent.eltype 456 ttm:actor actor.eltype"},
        {Describe(&ttm::Cname_eltype::type), "name.eltype 469 type string 5"},
        {Describe(&ttp::Cfeatures_eltype::base), "features.eltype 484 xml:base string 0"},
        {Describe(&ttp::Cprofile_eltype::extensions), "profile.eltype 489 ttp:extensions extensions.eltype"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.accessor, row.expected);
    }
}

TEST(AccessorCatalogue, AnAccessorIsOneReference) {
    static_assert(sizeof(tt::CspaceType) == sizeof(void*));
    static_assert(sizeof(ttd::Ccolor) == sizeof(void*));
    EXPECT_EQ(sizeof(Cp_eltype), sizeof(void*) * (1 + (206 - 160)));
    EXPECT_EQ(sizeof(Cttaf1_dfxp), sizeof(void*) * (1 + 27));
}
