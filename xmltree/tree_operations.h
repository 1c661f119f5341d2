// The one layer through which the bound document model touches the DOM of the XML library.
//
// Names and values are 8-bit strings on this side (xmltree/transcode.h). Nodes are never owned here: the
// document owns its nodes and the caller owns the document, from the load or CreateDocument until
// FreeDocument; nodes taken from it are invalid afterwards. A null node has no children, no attributes and
// no text, and matches nothing. The XML library must be initialised.
//
// An edit of a null node throws tessera::InvalidOperationException. On a node of a type that has no such
// children, attributes or value, a removal and SetValue(node, value) do nothing; every other edit throws
// xercesc::DOMException: HIERARCHY_REQUEST_ERR, and NO_MODIFICATION_ALLOWED_ERR inside an entity reference.
//
// What an edit writes loads again in the same namespaces when it is saved, and so does what was there before:
// a prefix that is in scope for a namespace is taken and one that is given is kept only if it does not stand
// for another namespace at the element, by a declaration or by a name there or above. Else an unused one is
// made from it.
//
// Unless a function says otherwise it passes on what the XML library throws: xercesc::DOMException for a
// refused edit, xercesc::OutOfMemoryException, which is no std::exception, for lack of memory.
#ifndef XTTML_XMLTREE_TREE_OPERATIONS_H
#define XTTML_XMLTREE_TREE_OPERATIONS_H

#include "runtime/export.h"
#include "runtime/info.h"
#include "xmltree/load_options.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNode.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tessera {
class DateTime;
class Duration;
struct QName;
} // namespace tessera

/// Loading, reading, editing and saving a DOM document. A member is an attribute, a child element or the
/// text content of an element type.
class XTTML_API XercesTreeOperations {
public:
    XercesTreeOperations() = delete;

    /// Walks all children of a node, in document order. The walk has ended when CurrentNode() is null.
    class AllIterator {
    public:
        /// Stands on `node`, which may be null.
        explicit AllIterator(xercesc::DOMNode* node) : current(node) {}

        /// The node that the walk stands on; null at the end.
        xercesc::DOMNode* CurrentNode() const { return current; }
        /// Moves to the next sibling and tells whether there is one.
        bool operator++() {
            current = current ? current->getNextSibling() : nullptr;
            return current != nullptr;
        }

    private:
        xercesc::DOMNode* current;
    };

    /// Walks the siblings that match a member, from a start node on.
    class MemberIterator : public AllIterator {
    public:
        /// Stands on the first match among `node` (may be null) and the siblings after it.
        MemberIterator(xercesc::DOMNode* node, const tessera::MemberInfo& member);
        MemberIterator(xercesc::DOMNode* node, const tessera::MemberInfo&& member) = delete;

        /// Moves to the next match and tells whether there is one.
        bool operator++() {
            AllIterator::operator++();
            return SettleOnMatch();
        }

    private:
        bool SettleOnMatch();

        const tessera::MemberInfo* matched;
    };

    // Loading. The document belongs to the caller. The encoding is found by the XML library. Each throws
    // tessera::DataSourceUnavailableException when the XML library reports an error, never returns null and
    // lets every other exception pass.

    /// Reads the file at `path`, the XML library's system identifier. Writes its progress to standard output.
    static xercesc::DOMDocument* LoadDocument(const std::string& path, const LoadOptions& options = {});
    /// Reads a document from the bytes of a string.
    static xercesc::DOMDocument* LoadXml(const std::string& text, const LoadOptions& options = {});
    /// @{
    /// Reads a document from bytes, during the call only.
    static xercesc::DOMDocument* LoadFromBinary(const std::vector<unsigned char>& bytes,
                                                const LoadOptions& options = {});
    static xercesc::DOMDocument* LoadFromBinary(const unsigned char* bytes, std::size_t size,
                                                const LoadOptions& options = {});
    /// @}

    // Queries. They allocate nothing, except for the text that they return.

    /// Whether a node belongs to a member: by local name alone for an element (the node name when it has no
    /// local name), by node type for the text content (text and CDATA nodes).
    static bool IsMember(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    /// Whether the node is not null.
    static bool IsValid(const xercesc::DOMNode* node) { return node != nullptr; }
    /// Whether both strings have the same length and each UTF-16 unit equals the byte at its place. Null
    /// counts as the empty string.
    static bool IsEqualString(const XMLCh* utf16, const char* chars);
    /// The attribute of an element that DOMNamedNodeMap::getNamedItemNS finds; null when there is none.
    static xercesc::DOMNode* FindAttribute(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    /// The same by a namespace (empty for none) and a local name.
    static xercesc::DOMNode* FindAttribute(const xercesc::DOMNode* node, const char* namespaceURI,
                                           const char* localName);
    /// An attribute to look for.
    struct SoughtAttribute {
        const tessera::MemberInfo* member;       ///< its names; never null
        const xercesc::DOMNode* found = nullptr; ///< the attribute of the element; null: not found
    };
    /// Looks for `count` attributes in one pass over those of an element; fills in those that it carries.
    static void FindAttributes(const xercesc::DOMNode* node, SoughtAttribute* sought, std::size_t count);
    /// Whether an element carries any attribute of the member's namespace.
    static bool HasAttributeInNamespace(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    /// All children.
    static AllIterator GetElements(const xercesc::DOMNode* node) {
        return AllIterator(node ? node->getFirstChild() : nullptr);
    }
    /// The children that match the member, which must outlive the iterator.
    static MemberIterator GetElements(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    static MemberIterator GetElements(const xercesc::DOMNode* node,
                                      const tessera::MemberInfo&& member) = delete;
    /// The parent; null for a document, an attribute and a detached node.
    static xercesc::DOMNode* GetParent(const xercesc::DOMNode* node) {
        return node ? node->getParentNode() : nullptr;
    }
    /// The text of a node: of an element, entity reference, document or fragment the text inside it, comments
    /// and processing instructions left out; of an attribute, text, CDATA, comment or processing instruction
    /// its value; of anything else the empty string.
    static std::string GetTextValue(const xercesc::DOMNode* node);
    /// The lexical formatter of the member's data type; the one of anySimpleType when the type has none.
    /// Never null.
    static const tessera::XmlFormatter* GetFormatter(const tessera::MemberInfo& member);

    /// @{
    /// GetTextValue, converted by the tessera::CoreTypes conversion of the same name, whose exceptions pass.
    /// The member is consulted by CastToBinary only.
    static std::string CastToString(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    static bool CastToBool(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    static int CastToInt(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    static unsigned int CastToUInt(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    static long long CastToInt64(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    static unsigned long long CastToUInt64(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    static double CastToDouble(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    static tessera::DateTime CastToDateTime(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    static tessera::Duration CastToDuration(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    /// Decodes with the member's formatter: hexBinary for that type, else Base64.
    static std::vector<unsigned char> CastToBinary(const xercesc::DOMNode* node,
                                                   const tessera::MemberInfo& member);
    /// Resolves the prefix by the declarations in scope at the node: an unknown prefix gives the empty
    /// namespace, no prefix the default namespace.
    static tessera::QName CastToQName(const xercesc::DOMNode* node, const tessera::MemberInfo& member);
    /// @}

    // Edits.

    /// A new, empty document, which belongs to the caller.
    static xercesc::DOMDocument* CreateDocument();
    /// Releases the document (may be null) and sets the pointer to null.
    static void FreeDocument(xercesc::DOMDocument*& document);
    /// The same for a document held as a node.
    static void FreeDocument(xercesc::DOMNode*& document);

    /// Appends a new element of the member's namespace and name to an element or document, under the prefix
    /// in scope for that namespace or none, and returns it.
    static xercesc::DOMElement* AddElement(xercesc::DOMNode* node, const tessera::MemberInfo& member);
    /// Removes every child that matches the member.
    static void RemoveElements(xercesc::DOMNode* node, const tessera::MemberInfo& member);
    /// Removes the matching child number `index`, counted from 0; does nothing when there are fewer.
    static void RemoveElement(xercesc::DOMNode* node, const tessera::MemberInfo& member, std::uint32_t index);
    /// Removes the member's attribute, or, for the text content, every text and CDATA child. Does nothing on
    /// a node without attributes; xercesc::DOMException (NOT_FOUND_ERR) when it has only others.
    static void RemoveAttribute(xercesc::DOMNode* node, const tessera::MemberInfo& member);
    /// Appends copies of the children of `source` to `target`, as DOMDocument::importNode makes them, and
    /// gives it copies of the attributes. They may belong to different documents.
    static void CopyAll(const xercesc::DOMNode* source, xercesc::DOMNode* target);
    /// Appends a processing instruction to an element or document.
    static void AddProcessingInstruction(xercesc::DOMNode* node, const std::string& target,
                                         const std::string& data);

    /// Sets the node value (DOMNode::setNodeValue).
    static void SetValue(xercesc::DOMNode* node, const std::string& value);
    /// Replaces all children, which are released, by one text node.
    static void SetTextValue(xercesc::DOMNode* node, const std::string& value);

    /// @{
    /// Sets the attribute of an element that the member names, replacing the one that is there, under the
    /// prefix in scope for its namespace or an unused one, which the serialiser declares. For the text
    /// content: as SetTextValue. A null value counts as the empty string.
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member, const XMLCh* value);
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member, const std::string& value);
    /// @}
    /// Keeps string literals from being taken for a bool.
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member, const char* value) {
        SetValue(node, member, std::string(value ? value : ""));
    }
    /// The text of another node becomes the value.
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member,
                         const xercesc::DOMNode* source);
    /// @{
    /// The member's formatter writes the value; what it throws passes.
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member, bool value);
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member, int value);
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member, unsigned int value);
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member, long long value);
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member, unsigned long long value);
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member, double value);
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member, long value) {
        SetValue(node, member, static_cast<long long>(value));
    }
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member, unsigned long value) {
        SetValue(node, member, static_cast<unsigned long long>(value));
    }
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member,
                         const tessera::DateTime& value);
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member,
                         const tessera::Duration& value);
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member,
                         const std::vector<unsigned char>& value);
    /// @}
    /// Writes prefix:name under the prefix in scope for the name's namespace; without one, declares the
    /// name's own prefix, or an unused one made from it, on the element.
    static void SetValue(xercesc::DOMNode* node, const tessera::MemberInfo& member,
                         const tessera::QName& value);

    /// Sets an attribute of an element. `name` is a local name with or without a prefix. The prefix in scope
    /// for a namespace that is not empty replaces the one given; without one, the given prefix, or an unused
    /// one, is declared on the element.
    static void SetAttribute(xercesc::DOMNode* node, const std::string& name, const std::string& namespaceURI,
                             const std::string& value);
    /// The same with a qualified name as its value, declaring a prefix for it where none is in scope.
    static void SetAttribute(xercesc::DOMNode* node, const std::string& name, const std::string& namespaceURI,
                             const std::string& valueLocalName, const std::string& valueNamespace);

    // Saving. Each throws tessera::DataTargetUnavailableException when the document cannot be written, also
    // when it is nested too deep: the XML library's serialiser calls itself for every level of elements and
    // is given 512 KiB of the thread's stack, some 4,000 levels.

    /// Replaces `data` by the serialised document. With `applyEncoding` the document is written in `encoding`
    /// and its byte order and byte order mark are made the ones asked for; without, the three arguments
    /// before it are not used and the bytes are the XML library's own choice. After a failure to write,
    /// `data` holds what was produced.
    static void SaveToBinary(std::vector<unsigned char>& data, xercesc::DOMDocument* document,
                             bool prettyPrint, const std::string& encoding, bool bigEndian, bool withBOM,
                             bool applyEncoding);
    /// The serialised document in the XML library's own choice of encoding.
    static std::vector<unsigned char> SaveToBinary(xercesc::DOMDocument* document, bool prettyPrint);
    /// Writes a file. Nothing is created when the document cannot be serialised; a disk that is full goes
    /// unnoticed.
    static void SaveDocument(xercesc::DOMDocument* document, const std::string& path, bool prettyPrint,
                             const std::string& encoding, bool bigEndian, bool withBOM);
    /// Writes a UTF-8 file without a byte order mark.
    static void SaveDocument(xercesc::DOMDocument* document, const std::string& path, bool prettyPrint);
    /// The serialised document as text, each UTF-16 unit narrowed to its low 8 bits.
    static std::string SaveXml(xercesc::DOMDocument* document, bool prettyPrint);

    // Encodings of serialised documents.

    /// @{
    /// What the first bytes of a document tell of its encoding; 0: nothing. Bits 0-3: size of a code unit in
    /// bytes. 0x10: there is a byte order mark. 0x20: big-endian. Bits 8-11: length of the mark in bytes.
    static int GetEncodingAndByteOrderFromXml(const unsigned char* data, int size);
    static int GetEncodingAndByteOrderFromXml(const std::vector<unsigned char>& data);
    /// @}
    /// The string with every byte passed through the C library's toupper.
    static std::string Uppercase(const std::string& s);
    /// The size of a code unit in bytes: 1 for a name that contains UTF-8, 2 for UTF-16 and UCS-2, in any
    /// case of letters; 0 for every other name.
    static int GetUnicodeSizeFromEncodingName(const std::string& name);
    /// Gives a serialised document in UTF-8, UTF-16 or UCS-2 the byte order and byte order mark asked for.
    /// Data in any other encoding stays as it is.
    static void CorrectByteOrderAndBOM(std::vector<unsigned char>& data, const std::string& encoding,
                                       bool bigEndian, bool withBOM);
};

inline bool XercesTreeOperations::IsEqualString(const XMLCh* utf16, const char* chars) {
    if (!utf16 || !chars) {
        return (!utf16 || !*utf16) && (!chars || !*chars);
    }
    while (*utf16 && *utf16 == static_cast<unsigned char>(*chars)) {
        ++utf16;
        ++chars;
    }
    return !*utf16 && !*chars;
}

inline bool XercesTreeOperations::IsMember(const xercesc::DOMNode* node, const tessera::MemberInfo& member) {
    if (!node) {
        return false;
    }
    const auto type = node->getNodeType();
    if (!*member.localName) {
        return type == xercesc::DOMNode::TEXT_NODE || type == xercesc::DOMNode::CDATA_SECTION_NODE;
    }
    if (type != xercesc::DOMNode::ELEMENT_NODE) {
        return false;
    }
    const XMLCh* name = node->getLocalName();
    return IsEqualString(name ? name : node->getNodeName(), member.localName);
}

inline XercesTreeOperations::MemberIterator::MemberIterator(xercesc::DOMNode* node,
                                                            const tessera::MemberInfo& member)
    : AllIterator(node), matched(&member) {
    SettleOnMatch();
}

inline bool XercesTreeOperations::MemberIterator::SettleOnMatch() {
    while (CurrentNode() && !IsMember(CurrentNode(), *matched)) {
        AllIterator::operator++();
    }
    return CurrentNode() != nullptr;
}

inline XercesTreeOperations::MemberIterator
XercesTreeOperations::GetElements(const xercesc::DOMNode* node, const tessera::MemberInfo& member) {
    return MemberIterator(node ? node->getFirstChild() : nullptr, member);
}

#endif
