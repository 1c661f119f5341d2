#include "runtime/facets.h"

#include <gtest/gtest.h>

#include <map>

using namespace tessera;

namespace {

#define XTTML_NAME_CHECK(type, facet) {#type "_" #facet, FacetCheck_##type##_##facet},
#define XTTML_NAME_CHECK_OF_TYPE(type) XTTML_VALUE_FACETS(XTTML_NAME_CHECK, type)
const std::map<std::string, const FacetCheck*> CHECKS = {XTTML_FACET_CHECKS(XTTML_NAME_CHECK)};

// A small model: 0 token, collapsed, one word of two, at most six bytes; 1 derived from it, at least two
// bytes; 2 without a base or facets; 3 derived from 0, as it stands.
extern const InfoBinder BINDER;
const FacetInfo FACETS[] = {
    {nullptr, "pattern", "never checked", 0},
    {FacetCheck_string_enumeration, "enumeration", "left", 0},
    {FacetCheck_string_enumeration, "enumeration", "to right", 0},
    {FacetCheck_string_maxLength, "maxLength", "8", 8},
    {nullptr, nullptr, nullptr, 0},
    {FacetCheck_string_minLength, "minLength", "5", 5},
    {FacetCheck_string_pattern, "pattern", "x", 0},
    {nullptr, nullptr, nullptr, 0},
};
const TypeInfo TYPES[] = {
    {&BINDER, 0, "word", -1, 0, 0, 0, WhitespaceType::COLLAPSE, nullptr},
    {&BINDER, 0, "longWord", 0, 0, 0, 5, WhitespaceType::INHERITED, nullptr},
    {&BINDER, 0, "anything", -1, 0, 0, -1, WhitespaceType::INHERITED, nullptr},
    {&BINDER, 0, "verbatim", 0, 0, 0, -1, WhitespaceType::PRESERVE, nullptr},
    {nullptr, 0, nullptr, 0, 0, 0, 0, WhitespaceType::INHERITED, nullptr},
};
const InfoBinder BINDER = {nullptr, TYPES, nullptr, FACETS};

} // namespace

TEST(Facets, NameTheirChecks) {
    const FacetCheck* const alwaysPass = FacetCheck_anySimpleType_fractionDigits;
    const FacetCheck* const enumeration = FacetCheck_string_enumeration;
    const std::map<std::string, const FacetCheck*> others = {
        {"string_length", FacetCheck_string_length},
        {"string_minLength", FacetCheck_string_minLength},
        {"string_maxLength", FacetCheck_string_maxLength},
        {"string_enumeration", enumeration},
        {"hexBinary_enumeration", enumeration},
        {"base64Binary_enumeration", enumeration},
        {"hexBinary_length", nullptr},
        {"hexBinary_minLength", nullptr},
        {"hexBinary_maxLength", nullptr},
        {"base64Binary_length", nullptr},
        {"base64Binary_minLength", nullptr},
        {"base64Binary_maxLength", nullptr},
    };
    for (const auto& [name, check] : CHECKS) {
        const auto other = others.find(name);
        EXPECT_EQ(check, other == others.end() ? alwaysPass : other->second) << name;
    }
    const auto answer = alwaysPass->Check("anything", FACETS[0], WhitespaceType::PRESERVE);
    EXPECT_EQ(answer, 1);
    EXPECT_TRUE((std::is_same_v<decltype(answer), const int>));
}

TEST(Facets, CheckLengths) {
    const FacetInfo three = {nullptr, "length", "3", 3};
    const struct {
        const char* value;
        WhitespaceType whitespace;
        int exactly, atLeast, atMost;
    } cases[] = {
        {"abc", WhitespaceType::PRESERVE, 1, 1, 1},        {"ab", WhitespaceType::PRESERVE, 0, 0, 1},
        {"abcd", WhitespaceType::REPLACE, 0, 1, 0},        {" abc\t", WhitespaceType::REPLACE, 0, 1, 0},
        {" a \r\n b ", WhitespaceType::COLLAPSE, 1, 1, 1}, {"   ", WhitespaceType::COLLAPSE, 0, 0, 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FacetCheck_string_length->Check(c.value, three, c.whitespace), c.exactly) << c.value;
        EXPECT_EQ(FacetCheck_string_minLength->Check(c.value, three, c.whitespace), c.atLeast) << c.value;
        EXPECT_EQ(FacetCheck_string_maxLength->Check(c.value, three, c.whitespace), c.atMost) << c.value;
    }
    EXPECT_EQ(LengthFacetCheckHelper::ComputeLength("  a   b ", WhitespaceType::COLLAPSE), 3U);
}

TEST(Facets, CompareAsWhitespaceAllows) {
    const struct {
        const char* value;
        const char* facetValue;
        bool preserved, replaced, collapsed;
    } cases[] = {
        {"a b", "a b", true, true, true},
        {"a\tb", "a b", false, true, true},
        {"a\tb", "a\tb", true, false, false}, // a facet's own white space is not treated
        {" a \n b", "a b", false, false, true},
        {"a", "a ", false, false, false},
        {"", "", true, true, true},
        {"\n", " ", false, true, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(LengthFacetCheckHelper::Equals(c.value, c.facetValue, WhitespaceType::PRESERVE),
                  c.preserved);
        EXPECT_EQ(LengthFacetCheckHelper::Equals(c.value, c.facetValue, WhitespaceType::REPLACE), c.replaced);
        EXPECT_EQ(LengthFacetCheckHelper::Equals(c.value, c.facetValue, WhitespaceType::COLLAPSE),
                  c.collapsed);
        EXPECT_EQ(FacetCheck_string_enumeration->Check(c.value, {nullptr, "", c.facetValue, 0},
                                                       WhitespaceType::PRESERVE),
                  c.preserved ? 3 : 2);
    }
    EXPECT_EQ(XsSchemaValidation::CollapseWhitespace("\t a \r\n b\v "), "a b\v");
    EXPECT_EQ(XsSchemaValidation::ReplaceWhitespace("\ta\r\nb "), " a  b ");
}

TEST(Facets, ValidateATypeAndItsBases) {
    const struct {
        const char* value;
        bool isWord, isLongWord;
    } cases[] = {
        {"left", true, false},   {"  to \n right ", true, true},
        {"right", false, false}, {"to right away", false, false},
        {"", false, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(XsSchemaValidation::Validate(c.value, TYPES[0]), c.isWord) << c.value;
        EXPECT_EQ(XsSchemaValidation::Validate(c.value, TYPES[1]), c.isLongWord) << c.value;
        EXPECT_TRUE(XsSchemaValidation::Validate(c.value, TYPES[2]));
    }
    EXPECT_EQ(XsSchemaValidation::ResolveWhitespace(TYPES[1]), WhitespaceType::COLLAPSE);
    EXPECT_EQ(XsSchemaValidation::ResolveWhitespace(TYPES[2]), WhitespaceType::PRESERVE);
    EXPECT_EQ(XsSchemaValidation::ResolveWhitespace(TYPES[3]), WhitespaceType::PRESERVE);
}
