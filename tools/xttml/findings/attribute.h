// The attributes of a document as a check sees them.
#ifndef XTTML_TOOLS_XTTML_FINDINGS_ATTRIBUTE_H
#define XTTML_TOOLS_XTTML_FINDINGS_ATTRIBUTE_H

#include "tools/xttml/document/namespace_names.h"

#include <string>
#include <vector>
#include <xercesc/dom/DOMNode.hpp>

namespace xttml {

/// The expanded name of an attribute.
struct AttributeName {
    const char* namespaceUri;
    const char* localName;
};

inline constexpr AttributeName beginName = {noNamespace, "begin"};
inline constexpr AttributeName endName = {noNamespace, "end"};
inline constexpr AttributeName durName = {noNamespace, "dur"};
inline constexpr AttributeName regionName = {noNamespace, "region"};
inline constexpr AttributeName styleName = {noNamespace, "style"};
inline constexpr AttributeName idName = {xmlNamespace, "id"};
inline constexpr AttributeName pictureName = {smpteNamespace, "backgroundImage"};

/// An attribute, or that there is none; a view of the document's node.
class Attribute {
public:
    /// @param node null: there is none
    explicit Attribute(const xercesc::DOMNode* node) : node_(node) {}

    explicit operator bool() const { return node_ != nullptr; }
    /// The value as the library reads it: each character the low byte of a UTF-16 code unit. Empty for none.
    std::string Value() const;
    /// "name="value"" as the document writes it, in UTF-8, without the end of a long one.
    std::string Written() const;
    /// The name as the document writes it, in UTF-8.
    std::string Name() const;
    /// The namespace, in UTF-8; empty for none.
    std::string Namespace() const;
    bool HasNamespace(const char* namespaceUri) const;
    bool HasLocalName(const char* name) const;

private:
    const xercesc::DOMNode* node_;
};

/// The attribute of an element with a name.
Attribute AttributeOf(const xercesc::DOMNode& element, const AttributeName& name);
/// A tts: attribute of an element.
Attribute StylingAttributeOf(const xercesc::DOMNode& element, const char* localName);
/// All attributes of an element, declarations of namespaces included.
std::vector<Attribute> AttributesOf(const xercesc::DOMNode& element);

} // namespace xttml

#endif
