#include "tools/xttml/findings/attribute_groups.h"

#include <fmt/format.h>
#include <map>

namespace xttml {

namespace {

struct Group {
    const Element* element;
    Attribute first;
    std::size_t count;
};

std::string LossOf(const std::string& name, const Group& group) {
    return group.count == 1 ? "not read"
                            : fmt::format("not read, as all {} attributes {}", group.count, name);
}

} // namespace

void ReportGroups(const CheckedDocument& document, const Report& report, GroupOf groupOf) {
    std::map<std::string, Group> groups;
    for (const Element& element : document.Elements()) {
        if (!element.isRead)
            continue;
        for (const Attribute& attribute : AttributesOf(*element.node)) {
            if (const std::optional<std::string> name = groupOf(attribute))
                ++groups.try_emplace(*name, Group{&element, attribute, 0}).first->second.count;
        }
    }
    for (const auto& [name, group] : groups)
        report(*group.element, group.first.Written(), LossOf(name, group));
}

} // namespace xttml
