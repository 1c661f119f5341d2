// Attributes of which a document has thousands and which are not worth a finding each.
#ifndef XTTML_TOOLS_XTTML_FINDINGS_ATTRIBUTE_GROUPS_H
#define XTTML_TOOLS_XTTML_FINDINGS_ATTRIBUTE_GROUPS_H

#include "tools/xttml/findings/attribute.h"
#include "tools/xttml/findings/finding_kinds.h"

#include <optional>
#include <string>

namespace xttml {

/// What the attributes have in common that an attribute is one of, as "called tts:opacity"; nothing when it
/// is of no interest.
using GroupOf = std::optional<std::string> (*)(const Attribute& attribute);

/// Reports attributes that are not read, those of a group where the first of them stands.
void ReportGroups(const CheckedDocument& document, const Report& report, GroupOf groupOf);

} // namespace xttml

#endif
