// The styling record as JSON. The fields are documented in docs/xttml.1.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_STYLING_JSON_H
#define XTTML_TOOLS_XTTML_OUTPUT_STYLING_JSON_H

#include <nlohmann/json.hpp>
#include <xttml/style/styling_attrib.h>

namespace xttml {

/// Objects keep their fields in the order in which they are documented.
using Json = nlohmann::ordered_json;

/// @param isFull with the flags and the reserved fields
Json StylingToJson(const StylingAttrib& styling, bool isFull);

/// What a run has otherwise than its item.
Json DifferenceToJson(const StylingAttrib& run, const StylingAttrib& item);

/// Whether two records have the same in all that is told of them when it is not full.
bool AreAlike(const StylingAttrib& left, const StylingAttrib& right);

} // namespace xttml

#endif
