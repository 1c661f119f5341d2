// Styling attributes that are not read or do not become what they say.
#include "tools/xttml/findings/attribute_groups.h"
#include "tools/xttml/findings/finding_kinds.h"
#include "tools/xttml/findings/styling_names.h"
#include "tools/xttml/output/styling_words.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <xttml/style/color.h>

namespace xttml {

namespace {

bool IsOpaqueWhite(const RgbaColor& color) {
    return color.uRed == 255 && color.uGreen == 255 && color.uBlue == 255 && color.uAlpha == 255;
}

/// Whether a colour is meant to be opaque white, in whichever letters and with whichever white space.
bool MeansOpaqueWhite(const std::string& color) {
    std::string letters;
    for (const char character : color) {
        const auto byte = static_cast<unsigned char>(character);
        if (!std::isspace(byte))
            letters += static_cast<char>(std::tolower(byte));
    }
    const char* const whites[] = {
        "white", "#fff", "#ffff", "#ffffff", "#ffffffff", "rgb(255,255,255)", "rgba(255,255,255,255)"};
    return std::find(std::begin(whites), std::end(whites), letters) != std::end(whites);
}

void FindColors(const CheckedDocument& document, const Report& report) {
    VisitValues(document, ValueForm::COLOR,
                [&](const Element& element, const Attribute& attribute, const StylingName&) {
                    std::string text = attribute.Value();
                    if (IsOpaqueWhite(rMapColor(text)) && !MeansOpaqueWhite(text))
                        report(element, attribute.Written(),
                               "no colour that is read: counts as opaque white");
                });
}

void FindKeywords(const CheckedDocument& document, const Report& report) {
    VisitValues(document, ValueForm::KEYWORD,
                [&](const Element& element, const Attribute& attribute, const StylingName& name) {
                    if (!IsStylingKeyword(name.name, attribute.Value()))
                        report(element, attribute.Written(),
                               std::string("no keyword that is read: counts as ") + name.fallback);
                });
}

void FindStylingElsewhere(const CheckedDocument&, const Element& element, const Report& report) {
    for (const Attribute& attribute : AttributesOf(*element.node)) {
        const StylingName* const name =
            attribute.HasNamespace(stylingNamespace) ? FindStylingName(attribute) : nullptr;
        if (name && !IsReadOn(*name, element))
            report(element, attribute.Written(), "not read here");
    }
}

void FindStylingWithoutNamespace(const CheckedDocument& document, const Report& report) {
    ReportGroups(document, report, [](const Attribute& attribute) {
        return attribute.HasNamespace(noNamespace) && FindStylingName(attribute)
                   ? std::optional<std::string>("of styling without their namespace")
                   : std::nullopt;
    });
}

/// Whether the library never reads an attribute that says how something looks or what values mean.
bool IsNeverRead(const Attribute& attribute) {
    const auto isAmong = [](auto&& has, auto... texts) { return (has(texts) || ...); };
    if (attribute.HasNamespace(stylingNamespace))
        return !FindStylingName(attribute);
    const auto hasName = [&](const char* name) { return attribute.HasLocalName(name); };
    if (attribute.HasNamespace(parameterNamespace))
        return !isAmong(hasName, "frameRate", "subFrameRate", "tickRate");
    const auto hasNamespace = [&](const char* uri) { return attribute.HasNamespace(uri); };
    return isAmong(hasNamespace, imscStylingNamespace, imscParameterNamespace, ebuStylingNamespace);
}

void FindAttributesNeverRead(const CheckedDocument& document, const Report& report) {
    ReportGroups(document, report, [](const Attribute& attribute) {
        return IsNeverRead(attribute) ? std::optional("called " + attribute.Name()) : std::nullopt;
    });
}

} // namespace

const FindingKinds& ValueFindings() {
    static const FindingKinds kinds = {
        {"color", "A colour that counts as opaque white and is not", FindColors},
        {"keyword", "A keyword that counts as another one", FindKeywords},
        {"styling-elsewhere", "A styling attribute on an element where it is not read",
         OnEach<FindStylingElsewhere, Role::ROOT, Role::STYLE, Role::BODY, Role::DIVISION, Role::PICTURE,
                Role::SPAN>},
        {"styling-namespace", "Styling attributes without their namespace", FindStylingWithoutNamespace},
        {"unread-attribute", "Attributes of styling and parameters that are never read, as tts:opacity",
         FindAttributesNeverRead, false},
    };
    return kinds;
}

} // namespace xttml
