// What is found in a document.
#ifndef XTTML_TOOLS_XTTML_FINDINGS_FINDINGS_H
#define XTTML_TOOLS_XTTML_FINDINGS_FINDINGS_H

#include "tools/xttml/findings/finding_kinds.h"

#include <string>
#include <vector>

namespace xttml {

/// Something of the document that is lost.
struct Finding {
    const Element* element;
    const FindingKind* kind;
    std::string what; ///< an attribute as the document writes it; empty: the element as a whole
    std::string loss;
};

/// What is found of some kinds, in the order of the document.
/// @param kinds live as long as the findings
std::vector<Finding> FindAll(const CheckedDocument& document, const std::vector<FindingKind>& kinds);

} // namespace xttml

#endif
