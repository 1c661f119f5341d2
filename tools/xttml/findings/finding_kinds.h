// What a check finds. A kind of finding is a function and a row in the table of its theme.
#ifndef XTTML_TOOLS_XTTML_FINDINGS_FINDING_KINDS_H
#define XTTML_TOOLS_XTTML_FINDINGS_FINDING_KINDS_H

#include "tools/xttml/findings/checked_document.h"

#include <functional>
#include <string>
#include <vector>

namespace xttml {

/// Takes a finding: where, what (an attribute, or nothing for the element as a whole) and what is lost.
using Report = std::function<void(const Element& element, const std::string& what, const std::string& loss)>;

/// One kind of finding.
struct FindingKind {
    const char* name;
    const char* description;
    /// Reports at most one finding an attribute, and in time in proportion to the document, sorting aside.
    void (*find)(const CheckedDocument& document, const Report& report);
    bool isOnByDefault = true;
};

using FindingKinds = std::vector<FindingKind>;

/// @{
/// The tables.
const FindingKinds& ContentFindings();
const FindingKinds& TimeFindings();
const FindingKinds& StyleAndRegionFindings();
const FindingKinds& ValueFindings();
const FindingKinds& LengthFindings();
const FindingKinds& ImageFindings();
/// @}

/// Whether a kind has a name.
bool IsFindingKind(const std::string& name);

/// The names and descriptions of all, one a line.
std::string DescribeFindingKinds();

/// Those to look for.
/// @param all also those that are off by default
/// @param ignored the names of those that are not looked for in any case
FindingKinds FindingKindsFor(bool all, const std::vector<std::string>& ignored);

/// Looks at every element with one of some roles that stands where it is read.
template <void (*find)(const CheckedDocument&, const Element&, const Report&), Role... roles>
void OnEach(const CheckedDocument& document, const Report& report) {
    for (const Element& element : document.Elements()) {
        if (element.isRead && ((element.role == roles) || ...))
            find(document, element, report);
    }
}

} // namespace xttml

#endif
