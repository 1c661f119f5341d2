#include "binding/tables.h"

#include "binding/formatter_slots.h"
#include "runtime/formatters.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using namespace ttaf1_dfxp;

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

TEST(Tables, BaseTypesFollowTheDerivation) {
    const struct {
        const char* prefix;
        const char* name;
        std::vector<std::string> bases;
    } chains[] = {
        {"xs",
         "unsignedByte",
         {"unsignedShort", "unsignedInt", "unsignedLong", "nonNegativeInteger", "integer", "decimal",
          "anySimpleType"}},
        {"xs", "IDREF", {"NCName", "Name", "token", "normalizedString", "string", "anySimpleType"}},
        {"ttd", "tickRate", {"positiveInteger", "nonNegativeInteger", "integer", "decimal", "anySimpleType"}},
        {"tt", "p.eltype", {"anyType"}},
        {"tt", "ttaf1_dfxp", {}},
    };
    for (const auto& chain : chains) {
        std::vector<std::string> bases;
        for (auto base = TypeNamed(chain.prefix, chain.name).baseType; base != -1;
             base = types[base].baseType) {
            bases.emplace_back(types[base].localName);
        }
        EXPECT_EQ(bases, chain.bases) << chain.name;
    }
}

TEST(Tables, FormattersOfTypes) {
    const struct {
        const char* type;
        const tessera::XmlFormatter* formatter;
    } rows[] = {
        {"time", &tessera::Exported_TimeFormatter},
        {"date", &tessera::Exported_DateFormatter},
        {"dateTime", &tessera::Exported_DateTimeFormatter},
        {"gYear", &tessera::Exported_GYearFormatter},
        {"gMonth", &tessera::Exported_GMonthFormatter},
        {"gDay", &tessera::Exported_GDayFormatter},
        {"gYearMonth", &tessera::Exported_GYearMonthFormatter},
        {"gMonthDay", &tessera::Exported_GMonthDayFormatter},
        {"int", &tessera::Exported_IntegerFormatter},
        {"decimal", &tessera::Exported_DecimalFormatter},
        {"double", &tessera::Exported_DoubleFormatter},
        {"hexBinary", &tessera::Exported_HexBinaryFormatter},
        {"string", &tessera::Exported_AnySimpleTypeFormatter},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(*TypeNamed("xs", row.type).formatter, row.formatter) << row.type;
    }
    EXPECT_EQ(TypeNamed("tt", "ttaf1_dfxp").formatter, nullptr);
    EXPECT_EQ(formatterSlots[DURATION], &tessera::Exported_DurationFormatter);
    EXPECT_EQ(formatterSlots[BASE64_BINARY], &tessera::Exported_Base64BinaryFormatter);
}

TEST(Facets, ListsOfTypes) {
    const struct {
        const char* prefix;
        const char* name;
        std::vector<std::string> facets;
    } lists[] = {
        {"xs", "IDREFS", {"whitespace=collapse", "minLength=1"}},
        {"xs", "ID", {}},
        {"xs", "byte", {"minInclusive=-128", "maxInclusive=127"}},
        {"ttd", "displayAlign", {"enumeration=before", "enumeration=center", "enumeration=after"}},
    };
    for (const auto& list : lists) {
        EXPECT_EQ(FacetsOf(TypeNamed(list.prefix, list.name)), list.facets) << list.name;
    }
}
