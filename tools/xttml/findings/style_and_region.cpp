// Styles and regions that are not found or not read.
#include "tools/xttml/findings/attribute.h"
#include "tools/xttml/findings/finding_kinds.h"

#include <fmt/format.h>
#include <map>
#include <set>

namespace xttml {

namespace {

std::set<std::string> RegionsOf(const CheckedDocument& document) {
    std::set<std::string> names;
    for (const Element& element : document.Elements()) {
        if (element.role == Role::REGION)
            names.insert(AttributeOf(*element.node, idName).Value());
    }
    return names;
}

// The item of a picture does not tell its region.
void FindUnknownRegion(const CheckedDocument& document, const Report& report) {
    const std::set<std::string> names = RegionsOf(document);
    for (const Element& element : document.Elements()) {
        const Attribute region = element.item ? AttributeOf(*element.node, regionName) : Attribute(nullptr);
        if (!region)
            continue;
        const bool isKnown = element.role == Role::PARAGRAPH ? element.item->pRegionAttrib != nullptr
                                                             : names.count(region.Value()) > 0;
        if (!isKnown)
            report(element, region.Written(), "no region is called so");
    }
}

bool ListsSeveral(const Attribute& names) {
    constexpr const char* whiteSpace = " \t\r\n";
    const std::string text = names.Value();
    const std::size_t begin = text.find_first_not_of(whiteSpace);
    const std::size_t end = text.find_first_of(whiteSpace, begin);
    return text.find_first_not_of(whiteSpace, end) != std::string::npos;
}

/// The style of an element when the document has none of that name.
Attribute UnknownStyleOf(const Element& element) {
    const bool isKnown = !element.item || element.item->pStyleAttrib;
    return isKnown ? Attribute(nullptr) : AttributeOf(*element.node, styleName);
}

void FindUnknownStyle(const CheckedDocument&, const Element& element, const Report& report) {
    const Attribute style = UnknownStyleOf(element);
    if (style && !ListsSeveral(style))
        report(element, style.Written(), "no style is called so");
}

void FindSeveralStyles(const CheckedDocument&, const Element& element, const Report& report) {
    const Attribute style = UnknownStyleOf(element);
    if (style && ListsSeveral(style))
        report(element, style.Written(), "taken for one name, that of no style: none of them applies");
}

void FindStyleOfStyle(const CheckedDocument&, const Element& element, const Report& report) {
    const Attribute style = AttributeOf(*element.node, styleName);
    if (style)
        report(element, style.Written(), "not followed: only its own attributes count");
}

void FindReferenceOfContainer(const CheckedDocument&, const Element& element, const Report& report) {
    const Attribute region = AttributeOf(*element.node, regionName);
    const Attribute style = AttributeOf(*element.node, styleName);
    if (region && element.role != Role::PICTURE)
        report(element, region.Written(), "not read: only those of paragraphs and pictures are");
    if (style)
        report(element, style.Written(), "not read: only those of paragraphs are");
}

void FindSameIdentifiers(const CheckedDocument& document, const Report& report) {
    std::map<std::pair<Role, std::string>, const Element*> firsts; // styles and regions apart
    for (const Element& element : document.Elements()) {
        if (element.role != Role::STYLE && element.role != Role::REGION)
            continue;
        const Attribute id = AttributeOf(*element.node, idName);
        const auto [first, isNew] = firsts.try_emplace({element.role, id ? id.Value() : ""}, &element);
        if (id && !isNew)
            report(element, id.Written(),
                   fmt::format("never used: that of line {} has the same name", first->second->place.line));
    }
}

void FindStyleInRegion(const CheckedDocument&, const Element& element, const Report& report) {
    report(element, "", "not read: only the region's own attributes are");
}

} // namespace

const FindingKinds& StyleAndRegionFindings() {
    static const FindingKinds kinds = {
        {"unknown-region", "A region that the document does not have", FindUnknownRegion},
        {"unknown-style", "A style that the document does not have",
         OnEach<FindUnknownStyle, Role::PARAGRAPH>},
        {"several-styles", "Several styles in one attribute", OnEach<FindSeveralStyles, Role::PARAGRAPH>},
        {"style-of-style", "A style or region that names a style",
         OnEach<FindStyleOfStyle, Role::STYLE, Role::REGION>},
        {"container-reference", "A style or region of a body, division or span; a style of a picture",
         OnEach<FindReferenceOfContainer, Role::BODY, Role::DIVISION, Role::PICTURE, Role::SPAN>},
        {"same-identifier", "A style or region whose identifier another one has before it",
         FindSameIdentifiers},
        {"style-in-region", "A style inside a region", OnEach<FindStyleInRegion, Role::REGION_STYLE>},
    };
    return kinds;
}

} // namespace xttml
