// A row of edits to a new document: what is written reads back, and the document saves and loads as it is.
#include "binding/ttaf1_dfxp.h"
#include "fuzz/choices.h"
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "runtime/exceptions.h"
#include "runtime/qname.h"
#include "xmltree/transcode.h"
#include "xmltree/tree_operations.h"

#include <xercesc/dom/DOMNamedNodeMap.hpp>

#include <set>

using Tree = XercesTreeOperations;
using tessera::MemberInfo;
using xercesc::DOMDocument;
using xercesc::DOMNode;

namespace {

constexpr int DEEPEST = 50;
constexpr int MOST_EDITS = 100;

/// A document that is released at the end.
struct OwnedDocument {
    explicit OwnedDocument(DOMDocument* owned) : document(owned) {}
    ~OwnedDocument() { Tree::FreeDocument(document); }
    OwnedDocument(const OwnedDocument&) = delete;
    OwnedDocument& operator=(const OwnedDocument&) = delete;

    DOMDocument* document;
};

/// The attributes of an element but for the declarations, in an order of their own.
std::string AttributesOf(const DOMNode* element) {
    std::set<std::string> attributes;
    for (XMLSize_t i = 0; i < element->getAttributes()->getLength(); ++i) {
        const DOMNode* attribute = element->getAttributes()->item(i);
        const XercesUnstringTemp uri(attribute->getNamespaceURI());
        if (uri != "http://www.w3.org/2000/xmlns/")
            attributes.insert(" {" + uri + "}" + XercesUnstringTemp(attribute->getLocalName()) + "='" +
                              Tree::GetTextValue(attribute) + "'");
    }
    std::string text;
    for (const std::string& attribute : attributes)
        text += attribute;
    return text;
}

/// What a tree says, whatever its prefixes and however its text is cut.
std::string Text(const DOMNode* node) {
    std::string text;
    for (const DOMNode* child = node->getFirstChild(); child; child = child->getNextSibling()) {
        if (child->getNodeType() == DOMNode::ELEMENT_NODE)
            text += "<{" + XercesUnstringTemp(child->getNamespaceURI()) + "}" +
                    XercesUnstringTemp(child->getLocalName()) + AttributesOf(child) + ">" + Text(child) +
                    "</>";
        else
            text += Tree::GetTextValue(child);
    }
    return text;
}

std::uint32_t Count(const DOMNode* node, const MemberInfo& member) {
    std::uint32_t count = 0;
    for (auto match = Tree::GetElements(node, member); match.CurrentNode(); ++match)
        ++count;
    return count;
}

/// Edits one element after the other.
class Editor {
public:
    Editor(Choices& choices, DOMNode* root) : choices_(choices), root_(root), node_(root) {}

    void Edit() {
        static constexpr void (Editor::*edits[])() = {&Editor::Add,
                                                      &Editor::Add,
                                                      &Editor::WriteText,
                                                      &Editor::WriteNumber,
                                                      &Editor::WriteBytes,
                                                      &Editor::Remove,
                                                      &Editor::Ascend,
                                                      &Editor::WriteAttribute,
                                                      &Editor::WriteName,
                                                      &Editor::RemoveAll,
                                                      &Editor::WriteNamedAttribute};
        (this->*choices_.OneOf(edits))();
    }

private:
    /// An attribute, element or text content, as `flags` says.
    const MemberInfo& ChooseMember(std::uint32_t flags) {
        std::uint32_t i = choices_.Number() % ttaf1_dfxp::MEMBER_COUNT;
        while (ttaf1_dfxp::members[i].flags != flags)
            i = (i + 1) % ttaf1_dfxp::MEMBER_COUNT;
        return ttaf1_dfxp::members[i];
    }
    /// A short text of ASCII characters that XML allows.
    std::string ChooseText() {
        static constexpr char characters[] = {'a', ' ', '<', '&', '"', '\'', '\n', '\t', ':', '>', ']', '1'};
        std::string text;
        for (unsigned length = choices_.OneOf(6); length > 0; --length)
            text += choices_.OneOf(characters);
        return text;
    }
    const DOMNode* Attribute(const MemberInfo& member) const {
        return *member.localName ? Tree::FindAttribute(node_, member) : node_;
    }

    void Add() {
        if (depth_ == DEEPEST)
            return;
        const MemberInfo& member = ChooseMember(tessera::MEMBER_ELEMENT);
        DOMNode* const element = Tree::AddElement(node_, member);
        Require(Tree::IsMember(element, member), "an added element belongs to its member");
        Require(Tree::IsEqualString(element->getNamespaceURI(), member.namespaceURI), "and to its namespace");
        node_ = element;
        ++depth_;
    }
    void Ascend() {
        if (node_ != root_) {
            node_ = Tree::GetParent(node_);
            --depth_;
        }
    }
    void WriteText() {
        const MemberInfo& member = ChooseMember(tessera::MEMBER_ATTRIBUTE);
        const std::string text = ChooseText();
        Tree::SetValue(node_, member, text);
        Require(Tree::GetTextValue(Attribute(member)) == text, "a text reads back");
    }
    void WriteNumber() {
        const MemberInfo& member = ChooseMember(tessera::MEMBER_ATTRIBUTE);
        const std::int32_t number = choices_.SignedNumber();
        Tree::SetValue(node_, member, number);
        Require(Tree::CastToInt(Attribute(member), member) == number, "an int reads back");
        Tree::SetValue(node_, member, number < 0);
        Require(Tree::CastToBool(Attribute(member), member) == (number < 0), "a bool reads back");
    }
    void WriteBytes() {
        const MemberInfo& member = ChooseMember(tessera::MEMBER_ATTRIBUTE);
        const std::string text = choices_.Text(20);
        const std::vector<unsigned char> bytes(text.begin(), text.end());
        Tree::SetValue(node_, member, bytes);
        Require(Tree::CastToBinary(Attribute(member), member) == bytes, "bytes read back");
    }
    tessera::QName ChooseName() {
        static constexpr const char* uris[] = {"urn:a", "urn:b", "http://www.w3.org/ns/ttml#styling"};
        static constexpr const char* prefixes[] = {"", "a", "n0", "tts"};
        const char* const uri = choices_.OneOf(uris);
        return {uri, choices_.OneOf(prefixes), "name"};
    }
    void WriteName() {
        const MemberInfo& member = ChooseMember(tessera::MEMBER_ATTRIBUTE);
        const tessera::QName name = ChooseName();
        Tree::SetValue(node_, member, name);
        const tessera::QName read = Tree::CastToQName(Attribute(member), member);
        Require(read.uri == name.uri && read.localName == name.localName, "a qualified name reads back");
    }
    /// A prefix that the caller gives is declared as it is, so here each stands for one namespace.
    void WriteAttribute() {
        static constexpr const char* names[] = {"p:name", "name", "q:name"};
        const unsigned choice = choices_.OneOf(3);
        const std::string uri = choice == 2 ? "urn:q" : "urn:p";
        const std::string text = ChooseText();
        Tree::SetAttribute(node_, names[choice], uri, text);
        const DOMNode* const attribute = Tree::FindAttribute(node_, uri.c_str(), "name");
        Require(attribute && Tree::GetTextValue(attribute) == text, "an attribute reads back");
    }
    void WriteNamedAttribute() {
        const tessera::QName value = ChooseName();
        Tree::SetAttribute(node_, "r:type", "urn:r", value.localName, value.uri);
        const DOMNode* const attribute = Tree::FindAttribute(node_, "urn:r", "type");
        Require(attribute &&
                    Tree::CastToQName(attribute, ChooseMember(tessera::MEMBER_ATTRIBUTE)).uri == value.uri,
                "an attribute that names something reads back");
    }
    void Remove() {
        const MemberInfo& member = ChooseMember(tessera::MEMBER_ELEMENT);
        const std::uint32_t count = Count(node_, member);
        const std::uint32_t index = choices_.Byte();
        Tree::RemoveElement(node_, member, index);
        Require(Count(node_, member) == count - (index < count ? 1 : 0), "one element is removed");
    }
    void RemoveAll() {
        const MemberInfo& member = ChooseMember(tessera::MEMBER_ELEMENT);
        Tree::RemoveElements(node_, member);
        Require(Count(node_, member) == 0, "all elements are removed");
    }
    Choices& choices_;
    DOMNode* root_;
    DOMNode* node_;
    int depth_ = 0;
};

std::vector<unsigned char> Saved(DOMDocument* document) {
    std::vector<unsigned char> bytes;
    Tree::SaveToBinary(bytes, document, false, "UTF-8", false, false, true);
    return bytes;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Choices choices(bytes, size);
    const OwnedDocument written(Tree::LoadXml("<tt xmlns='http://www.w3.org/ns/ttml'/>"));
    DOMNode* const root = written.document->getDocumentElement();
    Editor editor(choices, root);
    for (int edit = 0; edit < MOST_EDITS && !choices.IsUsedUp(); ++edit)
        editor.Edit();
    const OwnedDocument read(Tree::LoadFromBinary(Saved(written.document)));
    Require(Text(read.document) == Text(written.document), "an edited document loads as it was saved");
    const OwnedDocument copied(Tree::LoadXml("<tt/>"));
    DOMNode* const copy = copied.document->getDocumentElement();
    Tree::CopyAll(root, copy);
    Require(Text(copy) == Text(root) && AttributesOf(copy) == AttributesOf(root), "a copy is the same");
    return 0;
}
