// Content that is not shown.
#include "tools/xttml/document/xml_text.h"
#include "tools/xttml/findings/attribute_groups.h"
#include "tools/xttml/findings/finding_kinds.h"
#include "tools/xttml/text/text_encoding.h"

#include <fmt/format.h>
#include <map>
#include <xttml/xmltree/tree_operations.h>

namespace xttml {

namespace {

using xercesc::DOMNode;

void FindParagraphsElsewhere(const CheckedDocument& document, const Report& report) {
    std::map<const Element*, std::size_t> counts; // by what the paragraphs stand in, in document order
    for (const Element& element : document.Elements()) {
        if (element.role == Role::PARAGRAPH && !element.isRead && !document.ShowsImages())
            ++counts[element.parent];
    }
    for (const auto& [parent, count] : counts)
        report(*parent, "",
               fmt::format("{} paragraph{} not shown: only those directly in the body's first div are", count,
                           count == 1 ? "" : "s"));
}

/// What a child is that is passed over with the text in it; null for any other.
const char* NameOfUnreadText(const DOMNode& child) {
    switch (child.getNodeType()) {
    case DOMNode::CDATA_SECTION_NODE:
        return "a CDATA section";
    case DOMNode::ENTITY_REFERENCE_NODE:
        return "a reference to an entity";
    default:
        return nullptr;
    }
}

bool HoldsText(const DOMNode& node) {
    return XercesTreeOperations::GetTextValue(&node).find_first_not_of(" \t\r\n") != std::string::npos;
}

void FindUnreadText(const CheckedDocument&, const Element& element, const Report& report) {
    for (const DOMNode* child = element.node->getFirstChild(); child; child = child->getNextSibling()) {
        const char* const name = NameOfUnreadText(*child);
        if (name && HoldsText(*child)) {
            report(element, "", fmt::format("text in {} is not shown", name));
            return;
        }
    }
}

void FindUnknownElement(const CheckedDocument&, const Element& element, const Report& report) {
    if (IsOneTooMany(element))
        report(element, "", "not read: only the first of its name is");
    else
        report(element, "", HoldsText(*element.node) ? "not read, nor is the text in it" : "not read");
}

void FindAnimation(const CheckedDocument&, const Element& element, const Report& report) {
    report(element, "", "not read: what is on screen does not change");
}

void FindNamespaceOfRoot(const CheckedDocument&, const Element& root, const Report& report) {
    const XMLCh* const uri = root.node->getNamespaceURI();
    if (!XercesTreeOperations::IsEqualString(uri, ttmlNamespace))
        report(root, "",
               fmt::format("read as TTML 1.0, but in {}",
                           uri ? "the namespace \"" + Utf8Beginning(Units(uri)) + '"' : "no namespace"));
}

bool StartsWith(const std::string& text, std::string_view beginning) {
    return text.compare(0, beginning.size(), beginning) == 0;
}

/// Whether a namespace is that of a draft of TTML or of a later version.
bool IsOfAnotherVersion(const std::string& uri) {
    for (const char* const known : {ttmlNamespace, metadataNamespace, parameterNamespace, stylingNamespace}) {
        if (uri == known)
            return false;
    }
    return StartsWith(uri, "http://www.w3.org/ns/ttml#") ||
           (StartsWith(uri, "http://www.w3.org/") && uri.find("/ttaf1") != std::string::npos);
}

void FindNamespacesOfAttributes(const CheckedDocument& document, const Report& report) {
    ReportGroups(document, report, [](const Attribute& attribute) {
        const std::string uri = attribute.Namespace();
        return IsOfAnotherVersion(uri) ? std::optional("in the namespace " + uri) : std::nullopt;
    });
}

/// Of paragraphs and of pictures in a division of the body's.
bool HasForcedDisplayRead(const Element& element) {
    return element.role == Role::PARAGRAPH ||
           (element.role == Role::PICTURE && element.parent->role == Role::DIVISION);
}

void FindForcedDisplay(const CheckedDocument&, const Element& element, const Report& report) {
    for (const AttributeName& name : {AttributeName{cffNamespace, "forcedDisplayMode"},
                                      AttributeName{imscStylingNamespace, "forcedDisplay"}}) {
        const Attribute attribute = AttributeOf(*element.node, name);
        const bool isOn = attribute && attribute.Value() != "false" && attribute.Value() != "0";
        if (isOn && !(attribute.HasNamespace(cffNamespace) && HasForcedDisplayRead(element)))
            report(element, attribute.Written(), "not read: it is not forced");
    }
}

} // namespace

const FindingKinds& ContentFindings() {
    static const FindingKinds kinds = {
        {"paragraph-elsewhere", "Paragraphs that do not stand directly in the first division",
         FindParagraphsElsewhere},
        {"unread-text", "Text in a CDATA section or a reference to an entity",
         OnEach<FindUnreadText, Role::BODY, Role::DIVISION, Role::PARAGRAPH, Role::SPAN>},
        {"unknown-element", "An element that is not read where it stands",
         OnEach<FindUnknownElement, Role::UNKNOWN>},
        {"animation", "An element that changes a value in time", OnEach<FindAnimation, Role::ANIMATION>},
        {"root-namespace", "A root element that is not in the namespace of TTML 1.0",
         OnEach<FindNamespaceOfRoot, Role::ROOT>},
        {"attribute-namespace", "Attributes in a namespace of a draft of TTML or of a later version",
         FindNamespacesOfAttributes},
        {"forced-display", "Forced display where it is not read",
         OnEach<FindForcedDisplay, Role::BODY, Role::DIVISION, Role::PICTURE, Role::PARAGRAPH, Role::SPAN,
                Role::REGION, Role::STYLE>},
    };
    return kinds;
}

} // namespace xttml
