// A tool that edits a document through the installed document model, reads, checks and writes attributes of
// XML Schema types with members and facets of its own, and saves it.
#include <x_ttml.h>

#include <xttml/binding/ttaf1_dfxp.h>
#include <xttml/runtime/core_types.h>
#include <xttml/runtime/facets.h>
#include <xttml/runtime/formatters.h>

#include <cstdio>
#include <cstring>

using Tree = XercesTreeOperations;

// An attribute of one of the model's types.
static tessera::MemberInfo attribute_of_type(const char* typeName, const char* name) {
    tessera::MemberInfo member{&ttaf1_dfxp::binder, "", name, 0, 0, tessera::MEMBER_ATTRIBUTE, 0, 1};
    while (std::strcmp(ttaf1_dfxp::types[member.dataType].localName, typeName) != 0)
        ++member.dataType;
    return member;
}

// Reads an attribute and writes what was made of it.
template <class T, class Change>
static void rewrite(xercesc::DOMNode* element, const char* typeName, const char* name,
                    T (*read)(const xercesc::DOMNode*, const tessera::MemberInfo&), Change change) {
    const tessera::MemberInfo member = attribute_of_type(typeName, name);
    Tree::SetValue(element, member, change(read(Tree::FindAttribute(element, member), member)));
    std::printf("%s ", Tree::GetTextValue(Tree::FindAttribute(element, member)).c_str());
}

static void rewrite_attributes(xercesc::DOMNode* element) {
    using namespace tessera;
    rewrite<DateTime>(element, "dateTime", "made", Tree::CastToDateTime,
                      [](const DateTime& made) { return made + DayTimeDuration(1, 0, 0, 0); });
    rewrite<Duration>(element, "duration", "lasts", Tree::CastToDuration,
                      [](const Duration& lasts) { return -lasts; });
    rewrite<QName>(element, "QName", "kind", Tree::CastToQName,
                   [](const QName& kind) { return QName(kind.uri, kind.prefix, "b"); });
    const MemberInfo time = attribute_of_type("time", "");
    std::puts(Tree::GetFormatter(time)->Format(CoreTypes::CastToDateTime("12:30:00")).c_str());
}

static void use_values() {
    using tessera::CoreTypes;
    const tessera::FacetInfo length{tessera::FacetCheck_string_maxLength, "maxLength", "3", 3};
    for (const char* value : {"abc", "abcd"})
        std::printf("%d ", length.check->Check(value, length, tessera::WhitespaceType::PRESERVE));
    std::printf("%d ", tessera::XsSchemaValidation::Validate("x", ttaf1_dfxp::types[0]));
    const tessera::Duration* lasts = CoreTypes::Box(CoreTypes::CastToDuration("P1Y2M"));
    std::printf("%s %s %d\n", CoreTypes::CastToString(0.5).c_str(), CoreTypes::CastToString(lasts).c_str(),
                CoreTypes::CastToInt("25.9"));
    delete lasts;
}

static void shift_first_paragraph(const ttaf1_dfxp::tt::Cdiv_eltype& division) {
    const auto paragraph = division.p.first();
    std::printf("%s to %s: %s\n", std::string(paragraph.begin).c_str(), std::string(paragraph.end).c_str(),
                std::string(paragraph).c_str());
    Tree::SetAttribute(paragraph.GetNode(), "begin", "", "5s");
    try {
        static_cast<void>(static_cast<bool>(division.forcedDisplayMode));
    } catch (const tessera::InvalidOperationException& error) {
        std::puts(error.message().c_str());
    }
}

int main() {
    x_ttml_init_xerces();
    auto document = ttaf1_dfxp::tt::Cttaf1_dfxp::LoadFromString(
        "<tt xmlns='http://www.w3.org/ns/ttml' xmlns:k='urn:k' made='2024-02-28T10:00:00Z' lasts='P1DT2H' "
        "kind='k:a'><body><div><p begin='1s' end='2s'>text</p></div></body></tt>");
    rewrite_attributes(document.tt.first().GetNode());
    use_values();
    shift_first_paragraph(document.tt.first().body.first().div.first());
    std::printf("%s\n", document.SaveToString(false).c_str());
    document.DestroyDocument();
    x_ttml_uninit_xerces();
}
