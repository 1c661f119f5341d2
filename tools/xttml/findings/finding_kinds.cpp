#include "tools/xttml/findings/finding_kinds.h"

#include <algorithm>
#include <fmt/format.h>

namespace xttml {

namespace {

FindingKinds AllKinds() {
    FindingKinds kinds;
    for (const auto theme : {ContentFindings, TimeFindings, StyleAndRegionFindings, ValueFindings,
                             LengthFindings, ImageFindings})
        kinds.insert(kinds.end(), theme().begin(), theme().end());
    return kinds;
}

} // namespace

bool IsFindingKind(const std::string& name) {
    const FindingKinds kinds = AllKinds();
    return std::any_of(kinds.begin(), kinds.end(),
                       [&](const FindingKind& kind) { return name == kind.name; });
}

std::string DescribeFindingKinds() {
    std::string text;
    for (const FindingKind& kind : AllKinds())
        text += fmt::format("{:<20} {}{}\n", kind.name, kind.description,
                            kind.isOnByDefault ? "" : " (only with --all)");
    return text;
}

FindingKinds FindingKindsFor(bool all, const std::vector<std::string>& ignored) {
    FindingKinds kinds = AllKinds();
    const auto isLeftOut = [&](const FindingKind& kind) {
        return (!kind.isOnByDefault && !all) ||
               std::find(ignored.begin(), ignored.end(), kind.name) != ignored.end();
    };
    kinds.erase(std::remove_if(kinds.begin(), kinds.end(), isLeftOut), kinds.end());
    return kinds;
}

} // namespace xttml
