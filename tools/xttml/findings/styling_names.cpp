#include "tools/xttml/findings/styling_names.h"

#include <algorithm>
#include <iterator>

namespace xttml {

namespace {

template <class... Roles>
constexpr unsigned On(Roles... roles) {
    return ((1U << static_cast<unsigned>(roles)) | ...);
}

constexpr unsigned blocks = On(Role::STYLE, Role::REGION, Role::PARAGRAPH);
constexpr unsigned blocksAndSpans = blocks | On(Role::SPAN);
constexpr unsigned areas = On(Role::REGION, Role::PARAGRAPH, Role::PICTURE);

constexpr StylingName names[] = {
    {"backgroundColor", ValueForm::COLOR, blocksAndSpans, nullptr},
    {"color", ValueForm::COLOR, blocksAndSpans, nullptr},
    {"displayAlign", ValueForm::KEYWORD, blocks, "before"},
    {"extent", ValueForm::PAIR, areas | On(Role::ROOT), nullptr},
    {"fontSize", ValueForm::LENGTH, blocksAndSpans, nullptr},
    {"fontStyle", ValueForm::KEYWORD, blocksAndSpans, "normal"},
    {"fontWeight", ValueForm::KEYWORD, blocksAndSpans, "normal"},
    {"lineHeight", ValueForm::LENGTH, blocks, nullptr},
    {"origin", ValueForm::PAIR, areas, nullptr},
    {"textAlign", ValueForm::KEYWORD, blocks, "start"},
    {"textDecoration", ValueForm::KEYWORD, blocksAndSpans, "none"},
    {"visibility", ValueForm::KEYWORD, blocksAndSpans, "visible"},
};

} // namespace

bool IsReadOn(const StylingName& name, const Element& element) {
    return (name.roles & On(element.role)) != 0;
}

const StylingName* FindStylingName(const Attribute& attribute) {
    const auto* const found = std::find_if(std::begin(names), std::end(names), [&](const StylingName& name) {
        return attribute.HasLocalName(name.name);
    });
    return found == std::end(names) ? nullptr : found;
}

} // namespace xttml
