#include "binding/member_accessors.h"

#include "generated/accessor_visits.h"
#include "tests/binding/owned_document.h"
#include "xmltree/transcode.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

using namespace ttaf1_dfxp;
using xercesc::DOMElement;

namespace {

/// A value that fits every attribute read as a T and tells the attribute apart from the others.
template <class T>
struct Sample;
template <>
struct Sample<std::string> {
    static std::string Of(std::uint32_t member) { return " v " + std::to_string(member) + "  "; }
};
template <>
struct Sample<unsigned long long> {
    static unsigned long long Of(std::uint32_t member) { return 5000000000ULL + member; }
};
template <>
struct Sample<double> {
    static double Of(std::uint32_t member) { return member + 0.25; }
};
template <>
struct Sample<bool> {
    static bool Of(std::uint32_t) { return true; }
};

std::string Text(const std::string& value) {
    return value;
}
std::string Text(unsigned long long value) {
    return std::to_string(value);
}
std::string Text(double value) {
    return std::to_string(value);
}
std::string Text(bool value) {
    return value ? "true" : "false";
}

/// An element in a document of its own.
class Scratch {
public:
    Scratch() : element(Add(document.Dom(), "", "e")) {}

    void SetAttribute(const tessera::MemberInfo& member, const std::string& value) {
        element->setAttributeNS(XercesStringTemp(member.namespaceURI),
                                XercesStringTemp(QualifiedName(member)), XercesStringTemp(value));
    }

    DOMElement* AddChild(const tessera::MemberInfo& member) {
        return Add(*element, member.namespaceURI, QualifiedName(member));
    }

private:
    static std::string QualifiedName(const tessera::MemberInfo& member) {
        const std::string uri = member.namespaceURI;
        const std::string prefix = uri.empty() ? "" : uri == namespaces[4].namespaceURI ? "xml:" : "q:";
        return prefix + member.localName;
    }

    DOMElement* Add(xercesc::DOMNode& parent, const std::string& uri, const std::string& name) {
        DOMElement* child = document.Dom().createElementNS(XercesStringTemp(uri), XercesStringTemp(name));
        parent.appendChild(child);
        return child;
    }

    OwnedDocument document;

public:
    DOMElement* element;
};

std::uint32_t EnumerationsOf(std::uint32_t type) {
    std::uint32_t count = 0;
    for (auto i = types[type].facetIndex; i != -1 && facets[i].facetName; ++i) {
        count += std::string(facets[i].facetName) == "enumeration";
    }
    return count;
}

template <class T, std::uint32_t member, std::uint32_t enumFirst, std::uint32_t enumCount>
T Read(const MemberAttribute<T, member, enumFirst, enumCount>& attribute) {
    return attribute;
}

/// Reads every accessor on an element that has everything.
class PresentMembers {
public:
    explicit PresentMembers(Scratch& scratch) : scratch_(scratch) {}

    template <class T, std::uint32_t member, std::uint32_t enumFirst, std::uint32_t enumCount>
    void operator()(const MemberAttribute<T, member, enumFirst, enumCount>& attribute) {
        visited.insert(member);
        const T expected = Sample<T>::Of(member);
        EXPECT_EQ(members[member].flags, tessera::MEMBER_ATTRIBUTE);
        EXPECT_EQ(enumFirst, 0U);
        EXPECT_EQ(enumCount, EnumerationsOf(members[member].dataType));
        EXPECT_FALSE(attribute.exists());
        scratch_.SetAttribute(members[member], Text(expected));
        EXPECT_TRUE(attribute.exists());
        EXPECT_EQ(Read(attribute), expected);
        EXPECT_EQ(attribute.value(), expected);
    }

    template <class T, std::uint32_t member>
    void operator()(const MemberElement<T, member>& element) {
        visited.insert(member);
        EXPECT_EQ(members[member].flags, tessera::MEMBER_ELEMENT);
        EXPECT_FALSE(element.exists());
        const std::vector<xercesc::DOMNode*> children = {scratch_.AddChild(members[member]),
                                                         scratch_.AddChild(members[member])};
        EXPECT_TRUE(element.exists());
        EXPECT_EQ(element.first().GetNode(), children[0]);
        std::vector<xercesc::DOMNode*> walked;
        for (auto child = element.all(); child.CurrentNode(); ++child) {
            walked.push_back(child.GetNode());
        }
        EXPECT_EQ(walked, children);
    }

    std::set<std::uint32_t> visited;

private:
    Scratch& scratch_;
};

/// Reads every accessor of a wrapper whose element has nothing, or that has no element.
class AbsentMembers {
public:
    template <class T, std::uint32_t member, std::uint32_t enumFirst, std::uint32_t enumCount>
    void operator()(const MemberAttribute<T, member, enumFirst, enumCount>& attribute) {
        EXPECT_FALSE(attribute.exists());
        EXPECT_FALSE(attribute.value().has_value());
        EXPECT_THROW(Read(attribute), tessera::InvalidOperationException);
    }

    template <class T, std::uint32_t member>
    void operator()(const MemberElement<T, member>& element) {
        EXPECT_FALSE(element.exists());
        EXPECT_EQ(element.first().GetNode(), nullptr);
        auto none = element.all();
        EXPECT_EQ(none.CurrentNode(), nullptr);
        EXPECT_FALSE(++none);
    }
};

struct PresentInEveryClass {
    template <class Wrapper>
    void Visit(std::uint32_t type) {
        SCOPED_TRACE(type);
        Scratch scratch;
        const Wrapper wrapper(scratch.element);
        PresentMembers present(scratch);
        VisitAccessors(wrapper, present);
        std::set<std::uint32_t> expected;
        for (auto i = types[type].firstMember; i < types[type].endMember; ++i) {
            if (*members[i].localName) {
                expected.insert(i);
            }
        }
        EXPECT_EQ(present.visited, expected);
        visited += expected.size();
    }

    std::size_t visited = 0;
};

struct AbsentInEveryClass {
    template <class Wrapper>
    void Visit(std::uint32_t type) {
        SCOPED_TRACE(type);
        Scratch scratch;
        AbsentMembers absent;
        VisitAccessors(Wrapper(scratch.element), absent);
        VisitAccessors(Wrapper(nullptr), absent);
    }
};

/// The first p of the body's first div of a document whose p is `p`.
const std::string HEAD =
    "<tt xmlns='http://www.w3.org/ns/ttml' xmlns:tts='http://www.w3.org/ns/ttml#styling' "
    "xmlns:cff='http://www.decellc.org/schema/2012/01/cff-tt-meta'><body><div>";
const std::string TAIL = "</div></body></tt>";

tt::Cp_eltype FirstP(const OwnedDocument& document) {
    return document.root.tt.first().body.first().div.first().p.first();
}

} // namespace

TEST(MemberAccessors, EveryAccessorReadsItsMember) {
    PresentInEveryClass classes;
    VisitClasses(classes);
    EXPECT_EQ(classes.visited, MEMBER_COUNT - 16U); // all but the members that are text content
}

TEST(MemberAccessors, EveryAccessorKnowsThatItsMemberIsAbsent) {
    AbsentInEveryClass classes;
    VisitClasses(classes);
}

TEST(MemberAttribute, IsFoundByNamespaceAndLocalName) {
    const struct {
        const char* attributes;
        bool exists;
        const char* value;
    } cases[] = {
        {"tts:color='red'", true, "red"},
        {"xmlns:s='http://www.w3.org/ns/ttml#styling' s:color='red'", true, "red"},
        {"tts:color=''", true, ""},
        {"tts:color=' #ff0000 '", true, " #ff0000 "},
        {"color='red'", false, ""},
        {"xmlns:tts='urn:other' tts:color='red'", false, ""},
        {"tts:backgroundColor='red'", false, ""},
        {"", false, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.attributes);
        const OwnedDocument document(HEAD + "<p " + c.attributes + "/>" + TAIL);
        const auto p = FirstP(document);
        EXPECT_EQ(p.color.exists(), c.exists);
        EXPECT_EQ(p.color.value(), c.exists ? std::optional<std::string>(c.value) : std::nullopt);
    }
}

TEST(MemberAttribute, ReadingAnAbsentOneThrows) {
    const OwnedDocument document(HEAD + "<p/>" + TAIL);
    const auto p = FirstP(document);
    try {
        Read(p.begin);
        FAIL() << "nothing thrown";
    } catch (const tessera::InvalidOperationException& e) {
        EXPECT_EQ(e.message(), "Cannot read value of non-existent attribute.");
    }
}

TEST(MemberAttribute, BooleansAreReadByTheirLexicalRules) {
    const struct {
        const char* text;
        bool value;
    } cases[] = {{"1", true}, {" true ", true}, {"true", true}, {"0", false}, {"false", false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        const OwnedDocument document(HEAD + "<p cff:forcedDisplayMode='" + c.text + "'/>" + TAIL);
        EXPECT_EQ(Read(FirstP(document).forcedDisplayMode), c.value);
    }
    for (const char* word : {"yes", "", "True"}) {
        SCOPED_TRACE(word);
        const OwnedDocument document(HEAD + "<p cff:forcedDisplayMode='" + word + "'/>" + TAIL);
        const auto p = FirstP(document);
        EXPECT_TRUE(p.forcedDisplayMode.exists());
        EXPECT_THROW(Read(p.forcedDisplayMode), tessera::StringParseException);
        EXPECT_THROW(p.forcedDisplayMode.value(), tessera::StringParseException);
    }
}

TEST(MemberElement, IsFoundInAnyNamespace) {
    const OwnedDocument document("<x:tt xmlns:x='urn:x'><y:body xmlns:y='urn:y'><div/></y:body></x:tt>");
    EXPECT_TRUE(document.root.tt.first().body.first().div.exists());
    EXPECT_FALSE(document.root.tt.first().head.exists());
}

TEST(Iterator, WalksOnlyItsKindAndStaysOnTheLast) {
    const OwnedDocument document(HEAD + "<p begin='1s'/> text <div/><!-- --><p begin='2s'/><set/>" + TAIL);
    auto p = document.root.tt.first().body.first().div.first().p.all();
    EXPECT_EQ(p.begin.value(), "1s");
    const auto first = p;
    EXPECT_TRUE(++p);
    EXPECT_EQ(p.begin.value(), "2s");
    EXPECT_EQ(first.begin.value(), "1s");
    EXPECT_FALSE(++p);
    EXPECT_EQ(p.CurrentNode(), nullptr);
    EXPECT_EQ(p.begin.value(), "2s");
    EXPECT_FALSE(++p);
    EXPECT_EQ(p.begin.value(), "2s");
}

TEST(Wrappers, CopiesBindTheirOwnAccessors) {
    const OwnedDocument document(HEAD + "<p begin='1s'/><p begin='2s'/>" + TAIL);
    auto iterator = document.root.tt.first().body.first().div.first().p.all();
    tt::Cp_eltype assigned(nullptr);
    {
        const tt::Cp_eltype copy(iterator);
        assigned = copy;
        ++iterator;
        EXPECT_EQ(copy.begin.value(), "1s");
    }
    EXPECT_EQ(assigned.begin.value(), "1s");
    assigned = iterator;
    EXPECT_EQ(assigned.begin.value(), "2s");
}
