#include "binding/tables.h"

#include "binding/formatter_slots.h"
#include "runtime/facets.h"
#include "runtime/formatters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

using namespace ttaf1_dfxp;
using tessera::WhitespaceType;

namespace {

/// The type of that name in the namespace of that prefix.
const tessera::TypeInfo& TypeNamed(const std::string& prefix, const std::string& name) {
    for (std::uint32_t i = 0; i < TYPE_COUNT; ++i) {
        if (types[i].localName == name && namespaces[types[i].namespaceIndex].prefix == prefix) {
            return types[i];
        }
    }
    throw std::out_of_range(prefix + ":" + name);
}

/// The facets of a type, as "name=value".
std::vector<std::string> FacetsOf(const tessera::TypeInfo& type) {
    std::vector<std::string> list;
    for (auto i = type.facetIndex; i != -1 && facets[i].facetName; ++i) {
        list.push_back(std::string(facets[i].facetName) + "=" + facets[i].value);
    }
    return list;
}

} // namespace

TEST(Tables, NamespacesOwnTheirTypes) {
    const tessera::NamespaceInfo expected[] = {
        {&binder, "http://www.decellc.org/schema/2012/01/cff-tt-meta", "cff", 0, 0},
        {&binder, "http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt", "smpte", 0, 2},
        {&binder, "http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt#ce608", "m608", 2, 2},
        {&binder, "http://www.w3.org/2001/XMLSchema", "xs", 2, 49},
        {&binder, "http://www.w3.org/XML/1998/namespace", "xml", 49, 49},
        {&binder, "http://www.w3.org/ns/ttml", "tt", 49, 83},
        {&binder, "http://www.w3.org/ns/ttml#datatype", "ttd", 83, 133},
        {&binder, "http://www.w3.org/ns/ttml#metadata", "ttm", 133, 139},
        {&binder, "http://www.w3.org/ns/ttml#parameter", "ttp", 139, 144},
        {&binder, "http://www.w3.org/ns/ttml#styling", "tts", 144, 144},
    };
    for (std::uint32_t i = 0; i < NAMESPACE_COUNT; ++i) {
        SCOPED_TRACE(i);
        EXPECT_STREQ(namespaces[i].namespaceURI, expected[i].namespaceURI);
        EXPECT_STREQ(namespaces[i].prefix, expected[i].prefix);
        EXPECT_EQ(namespaces[i].firstType, expected[i].firstType);
        EXPECT_EQ(namespaces[i].endType, expected[i].endType);
    }
}

TEST(Tables, TypesStandAtTheirIndices) {
    const std::map<std::uint32_t, std::string> expected = {
        {0, "backgoundImageAlign"},
        {1, "backgoundImageType"},
        {13, "anySimpleType"},
        {14, "anyType"},
        {41, "string"},
        {43, "token"},
        {47, "unsignedShort"},
        {48, ""},
        {49, "body.eltype"},
        {61, "tt.eltype"},
        {62, "ttaf1_dfxp"},
        {63, ""},
        {82, ""},
        {83, "agent"},
        {87, "color"},
        {90, "displayAlign"},
        {95, "extent"},
        {98, "fontFamily"},
        {100, "fontStyle"},
        {102, "frameRate"},
        {104, "lineHeight"},
        {110, "origin"},
        {118, "textAlign"},
        {119, "textDecoration"},
        {123, "timeContainer"},
        {124, "timeCoordinate"},
        {125, "timeDuration"},
        {127, "visibility"},
        {130, "zIndex"},
        {132, ""},
        {133, "actor.eltype"},
        {143, "profile.eltype"},
    };
    for (const auto& [index, name] : expected) {
        EXPECT_EQ(types[index].localName, name) << index;
    }
}

TEST(Tables, EveryRecordLeadsToTheBinderAndEveryTableEnds) {
    EXPECT_EQ(binder.namespaces, namespaces);
    EXPECT_EQ(binder.types, types);
    EXPECT_EQ(binder.members, members);
    EXPECT_EQ(binder.facets, facets);
    for (std::uint32_t i = 0; i < NAMESPACE_COUNT; ++i) {
        EXPECT_EQ(namespaces[i].binder, &binder);
    }
    for (std::uint32_t i = 0; i < TYPE_COUNT; ++i) {
        EXPECT_EQ(types[i].binder, &binder);
    }
    for (std::uint32_t i = 0; i < MEMBER_COUNT; ++i) {
        EXPECT_EQ(members[i].binder, &binder);
    }
    EXPECT_EQ(namespaces[NAMESPACE_COUNT].namespaceURI, nullptr);
    EXPECT_EQ(types[TYPE_COUNT].localName, nullptr);
    EXPECT_EQ(types[TYPE_COUNT].formatter, nullptr);
    EXPECT_EQ(members[MEMBER_COUNT].localName, nullptr);
    EXPECT_EQ(facets[FACET_COUNT - 1].facetName, nullptr);
}

TEST(Tables, BaseTypesFollowTheDerivation) {
    const struct {
        const char* prefix;
        const char* name;
        std::vector<std::string> bases;
    } chains[] = {
        {"xs", "byte", {"short", "int", "long", "integer", "decimal", "anySimpleType"}},
        {"xs",
         "unsignedByte",
         {"unsignedShort", "unsignedInt", "unsignedLong", "nonNegativeInteger", "integer", "decimal",
          "anySimpleType"}},
        {"xs", "IDREF", {"NCName", "Name", "token", "normalizedString", "string", "anySimpleType"}},
        {"xs", "negativeInteger", {"nonPositiveInteger", "integer", "decimal", "anySimpleType"}},
        {"ttd", "tickRate", {"positiveInteger", "nonNegativeInteger", "integer", "decimal", "anySimpleType"}},
        {"ttd", "displayAlign", {"token", "normalizedString", "string", "anySimpleType"}},
        {"ttd", "color", {"string", "anySimpleType"}},
        {"ttd", "agent", {"IDREFS", "anySimpleType"}},
        {"ttd", "role", {"NMTOKEN", "token", "normalizedString", "string", "anySimpleType"}},
        {"ttd", "profile", {"anyURI", "anySimpleType"}},
        {"ttd", "alpha", {"float", "anySimpleType"}},
        {"tt", "p.eltype", {"anyType"}},
        {"tt", "ttaf1_dfxp", {}},
        {"xs", "anyType", {}},
    };
    for (const auto& chain : chains) {
        std::vector<std::string> bases;
        for (auto base = TypeNamed(chain.prefix, chain.name).baseType; base != -1;
             base = types[base].baseType) {
            bases.emplace_back(types[base].localName);
        }
        EXPECT_EQ(bases, chain.bases) << chain.name;
    }
    const std::map<std::uint32_t, std::int32_t> anonymous = {
        {48, -1}, {63, 48}, {64, 43}, {65, 48},  {68, 48},  {73, 41},   {78, 41},   {79, 13},
        {80, 41}, {81, 7},  {82, 17}, {131, -1}, {132, -1}, {139, 131}, {141, 132}, {140, 14}};
    for (const auto& [type, base] : anonymous) {
        EXPECT_EQ(types[type].baseType, base) << type;
    }
}

TEST(Tables, OnlyPrimitivesAndListsSayWhatBecomesOfWhiteSpace) {
    std::set<std::string> collapsing;
    for (std::uint32_t i = 0; i < TYPE_COUNT; ++i) {
        const auto& type = types[i];
        if (type.whitespace == WhitespaceType::COLLAPSE) {
            collapsing.insert(type.localName);
        } else if (type.whitespace != WhitespaceType::INHERITED) {
            EXPECT_TRUE(i == 38 || i == 41) << i;
        }
    }
    EXPECT_EQ(types[41].whitespace, WhitespaceType::PRESERVE);
    EXPECT_EQ(types[38].whitespace, WhitespaceType::REPLACE);
    EXPECT_EQ(collapsing, (std::set<std::string>{
                              "ENTITIES",     "IDREFS",    "NMTOKENS", "NOTATION", "QName",     "anyURI",
                              "base64Binary", "boolean",   "date",     "dateTime", "decimal",   "double",
                              "duration",     "float",     "gDay",     "gMonth",   "gMonthDay", "gYear",
                              "gYearMonth",   "hexBinary", "time",     "token"}));
}

TEST(Tables, FormattersOfTheTypes) {
    const struct {
        std::set<std::string> types;
        FormatterSlot slot;
        const tessera::XmlFormatter* formatter;
    } groups[] = {
        {{"time"}, TIME, &tessera::Exported_TimeFormatter},
        {{"date"}, DATE, &tessera::Exported_DateFormatter},
        {{"dateTime"}, DATE_TIME, &tessera::Exported_DateTimeFormatter},
        {{"gYear"}, G_YEAR, &tessera::Exported_GYearFormatter},
        {{"gMonth"}, G_MONTH, &tessera::Exported_GMonthFormatter},
        {{"gDay"}, G_DAY, &tessera::Exported_GDayFormatter},
        {{"gYearMonth"}, G_YEAR_MONTH, &tessera::Exported_GYearMonthFormatter},
        {{"gMonthDay"}, G_MONTH_DAY, &tessera::Exported_GMonthDayFormatter},
        {{"byte", "int", "integer", "long", "short", "negativeInteger", "nonNegativeInteger",
          "nonPositiveInteger", "positiveInteger", "unsignedByte", "unsignedInt", "unsignedLong",
          "unsignedShort", "frameRate", "subFrameRate", "tickRate"},
         INTEGER,
         &tessera::Exported_IntegerFormatter},
        {{"decimal"}, DECIMAL, &tessera::Exported_DecimalFormatter},
        {{"double", "float", "alpha"}, DOUBLE, &tessera::Exported_DoubleFormatter},
        {{"hexBinary"}, HEX_BINARY, &tessera::Exported_HexBinaryFormatter},
        {{}, DURATION, &tessera::Exported_DurationFormatter},
        {{}, BASE64_BINARY, &tessera::Exported_Base64BinaryFormatter},
        {{}, ANY_SIMPLE_TYPE, &tessera::Exported_AnySimpleTypeFormatter}, // all the others
    };
    const std::set<std::uint32_t> withoutText = {49, 50, 51, 52,  53,  56,  57,  59,
                                                 60, 61, 62, 133, 134, 140, 142, 143};
    for (std::uint32_t i = 0; i < TYPE_COUNT; ++i) {
        const auto group = std::find_if(std::begin(groups), std::end(groups) - 1,
                                        [&](const auto& g) { return g.types.count(types[i].localName); });
        const auto* expected = withoutText.count(i) ? nullptr : &formatterSlots[group->slot];
        EXPECT_EQ(types[i].formatter, expected) << i;
    }
    for (const auto& group : groups) {
        EXPECT_EQ(formatterSlots[group.slot], group.formatter) << group.slot;
    }
}

TEST(Tables, OccurrencesOfMembers) {
    const std::set<std::uint32_t> singleText = {1, 423, 427, 431, 445, 446, 474, 480};
    const std::set<std::uint32_t> required = {380, 425, 426, 429, 430, 454};
    const std::set<std::uint32_t> atMostOnce = {144, 145, 394, 395, 456};
    int elements = 0;
    for (std::uint32_t i = 0; i < MEMBER_COUNT; ++i) {
        SCOPED_TRACE(i);
        const auto& member = members[i];
        const bool isText = !*member.localName;
        const bool isElement = member.flags == tessera::MEMBER_ELEMENT;
        const bool inDocument = i >= 396 && i <= 422;
        elements += isElement;
        EXPECT_EQ(member.minOccurs, singleText.count(i) + required.count(i));
        if (isText || isElement) {
            const bool once = singleText.count(i) || atMostOnce.count(i) || inDocument;
            EXPECT_EQ(member.maxOccurs, once ? 1 : -1);
        } else {
            EXPECT_EQ(member.maxOccurs, 1);
        }
    }
    EXPECT_EQ(elements, 120);
}

TEST(Facets, CountsByKind) {
    std::map<std::string, int> counts;
    for (const auto& facet : facets) {
        ++counts[facet.facetName ? facet.facetName : "end"];
        EXPECT_EQ(facet.check, nullptr);
        EXPECT_EQ(facet.intValue, facet.facetName && !std::strcmp(facet.facetName, "minLength") ? 1 : 0);
    }
    EXPECT_EQ(counts, (std::map<std::string, int>{{"enumeration", 123},
                                                  {"whitespace", 24},
                                                  {"pattern", 11},
                                                  {"maxInclusive", 11},
                                                  {"minInclusive", 7},
                                                  {"minLength", 3},
                                                  {"fractionDigits", 1},
                                                  {"end", 79}}));
}

TEST(Facets, ListsOfTypes) {
    const struct {
        const char* prefix;
        const char* name;
        std::vector<std::string> facets;
    } lists[] = {
        {"smpte", "backgoundImageType", {"pattern=urn:dece:container:imageindex:\\d+:.png"}},
        {"xs", "IDREFS", {"whitespace=collapse", "minLength=1"}},
        {"xs", "NMTOKENS", {"whitespace=collapse", "minLength=1", "pattern=\\c+", "pattern=\\c+"}},
        {"xs", "NCName", {"pattern=[\\i-[:]][\\c-[:]]*"}},
        {"xs", "Name", {"pattern=\\i\\c*"}},
        {"xs", "integer", {"fractionDigits=0", "pattern=[\\-+]?[0-9]+"}},
        {"xs", "language", {"pattern=[a-zA-Z]{1,8}(-[a-zA-Z0-9]{1,8})*"}},
        {"xs", "byte", {"minInclusive=-128", "maxInclusive=127"}},
        {"xs", "long", {"minInclusive=-9223372036854775808", "maxInclusive=9223372036854775807"}},
        {"xs", "unsignedLong", {"maxInclusive=18446744073709551615"}},
        {"xs", "string", {"whitespace=preserve"}},
        {"xs", "normalizedString", {"whitespace=replace"}},
        {"xs", "ID", {}},
        {"ttd", "color", {}},
        {"ttd", "displayAlign", {"enumeration=before", "enumeration=center", "enumeration=after"}},
        {"ttd", "visibility", {"enumeration=hidden", "enumeration=visible"}},
        {"ttd",
         "textAlign",
         {"enumeration=left", "enumeration=center", "enumeration=right", "enumeration=start",
          "enumeration=end"}},
    };
    for (const auto& list : lists) {
        EXPECT_EQ(FacetsOf(TypeNamed(list.prefix, list.name)), list.facets) << list.name;
    }
    EXPECT_EQ(FacetsOf(types[67]), std::vector<std::string>{"enumeration=Base64"});
    EXPECT_EQ(FacetsOf(types[66]), std::vector<std::string>{"enumeration=PNG"});
    EXPECT_EQ(FacetsOf(types[81]), (std::vector<std::string>{"enumeration=default", "enumeration=preserve"}));
    EXPECT_EQ(FacetsOf(types[79]).front(), "enumeration=");
}

TEST(Facets, EveryValueIsValid) {
    EXPECT_TRUE(tessera::XsSchemaValidation::Validate("sideways", TypeNamed("ttd", "displayAlign")));
    EXPECT_TRUE(tessera::XsSchemaValidation::Validate("", TypeNamed("xs", "NMTOKENS")));
}
