#include "tools/xttml/findings/findings.h"

#include <algorithm>

namespace xttml {

std::vector<Finding> FindAll(const CheckedDocument& document, const std::vector<FindingKind>& kinds) {
    std::vector<Finding> findings;
    for (const FindingKind& kind : kinds) {
        kind.find(document, [&](const Element& element, const std::string& what, const std::string& loss) {
            findings.push_back({&element, &kind, what, loss});
        });
    }
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& left, const Finding& right) {
        return left.element < right.element; // they stand in one list
    });
    return findings;
}

} // namespace xttml
