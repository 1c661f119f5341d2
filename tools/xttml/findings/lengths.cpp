// Lengths that do not become what they say.
#include "tools/xttml/findings/finding_kinds.h"
#include "tools/xttml/findings/styling_names.h"

#include <string_view>
#include <xttml/style/length.h>

namespace xttml {

namespace {

length_unit_e UnitOf(const std::string& length) {
    float number = 0;
    length_unit_e unit = LENGTH_UNIT_NONE;
    fgGetLength(length, number, unit);
    return unit;
}

length_unit_e UnitOfPair(const std::string& lengths) {
    float first = 0;
    float second = 0;
    length_unit_e unit = LENGTH_UNIT_NONE;
    fgGetDoubleLength(lengths, first, second, unit);
    return unit;
}

bool Is(const StylingName& name, std::string_view localName) {
    return name.name == localName;
}

/// What becomes of a length that is neither in px nor in %.
const char* OutcomeOfOther(const Element& element, const StylingName& name, length_unit_e unit) {
    if (element.role == Role::SPAN)
        return "not a length that is read: without effect";
    const bool countsAsPercentage =
        element.role == Role::STYLE && Is(name, "lineHeight") && unit != LENGTH_UNIT_NONE;
    return countsAsPercentage ? "its unit is not read: counts as a percentage of the style's font size"
                              : "not a length that is read: counts as 0";
}

void FindLengths(const CheckedDocument& document, const Report& report) {
    VisitValues(document, ValueForm::LENGTH,
                [&](const Element& element, const Attribute& attribute, const StylingName& name) {
                    const std::string text = attribute.Value();
                    const length_unit_e unit = UnitOf(text);
                    const bool isOther = unit != LENGTH_UNIT_PX && unit != LENGTH_UNIT_PERCENT;
                    if (isOther && !(Is(name, "lineHeight") && text == "normal"))
                        report(element, attribute.Written(), OutcomeOfOther(element, name, unit));
                });
}

/// What becomes of a pair of lengths that is not read; null: what it says.
const char* OutcomeOfPair(const Element& element, const std::string& text) {
    const length_unit_e unit = UnitOfPair(text);
    const bool isRead = unit == LENGTH_UNIT_PX || (unit == LENGTH_UNIT_PERCENT && element.role != Role::ROOT);
    if (element.role == Role::REGION)
        return isRead ? nullptr : "not a pair of lengths that is read: counts as 0";
    if (isRead || text == "auto")
        return nullptr;
    return element.role == Role::ROOT ? "not a pair of lengths in px: counts as 1024px 768px"
                                      : "not a pair of lengths that is read: without effect";
}

void FindPairs(const CheckedDocument& document, const Report& report) {
    VisitValues(document, ValueForm::PAIR,
                [&](const Element& element, const Attribute& attribute, const StylingName&) {
                    if (const char* const outcome = OutcomeOfPair(element, attribute.Value()))
                        report(element, attribute.Written(), outcome);
                });
}

bool HasFontSizeInPixels(const Element& element) {
    return UnitOf(StylingAttributeOf(*element.node, "fontSize").Value()) == LENGTH_UNIT_PX;
}

/// Whether a percentage of the font size is one of 0.
bool IsOfNothing(const Element& element, const StylingName& name) {
    switch (element.role) {
    case Role::STYLE:
    case Role::REGION: // read before they are laid over each other
        return Is(name, "fontSize") || !HasFontSizeInPixels(element);
    case Role::PARAGRAPH:
        return element.item && (Is(name, "fontSize") ? element.item->styling.uFontSize
                                                     : element.item->styling.uLineHeight) == 0;
    default:
        return element.parent->item && element.parent->item->styling.uFontSize == 0;
    }
}

void FindPercentages(const CheckedDocument& document, const Report& report) {
    VisitValues(document, ValueForm::LENGTH,
                [&](const Element& element, const Attribute& attribute, const StylingName& name) {
                    if (UnitOf(attribute.Value()) == LENGTH_UNIT_PERCENT && IsOfNothing(element, name))
                        report(element, attribute.Written(), "of no font size in px: counts as 0");
                });
}

} // namespace

const FindingKinds& LengthFindings() {
    static const FindingKinds kinds = {
        {"length", "A font size or line height that is not read, in em or c above all", FindLengths},
        {"area", "An extent or origin that is not read", FindPairs},
        {"percentage", "A percentage of no font size", FindPercentages},
    };
    return kinds;
}

} // namespace xttml
