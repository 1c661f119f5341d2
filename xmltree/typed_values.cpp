#include "xmltree/tree_operations.h"

#include "runtime/core_types.h"
#include "runtime/formatters.h"
#include "runtime/qname.h"
#include "xmltree/namespace_prefixes.h"

using tessera::CoreTypes;
using tessera::MemberInfo;
using xercesc::DOMNode;

const tessera::XmlFormatter* XercesTreeOperations::GetFormatter(const MemberInfo& member) {
    const tessera::XmlFormatter* const* slot = member.binder->types[member.dataType].formatter;
    return slot ? *slot : &tessera::Exported_AnySimpleTypeFormatter;
}

std::string XercesTreeOperations::CastToString(const DOMNode* node, const MemberInfo&) {
    return GetTextValue(node);
}

bool XercesTreeOperations::CastToBool(const DOMNode* node, const MemberInfo&) {
    return CoreTypes::CastToBool(GetTextValue(node));
}

int XercesTreeOperations::CastToInt(const DOMNode* node, const MemberInfo&) {
    return CoreTypes::CastToInt(GetTextValue(node));
}

unsigned int XercesTreeOperations::CastToUInt(const DOMNode* node, const MemberInfo&) {
    return CoreTypes::CastToUInt(GetTextValue(node));
}

long long XercesTreeOperations::CastToInt64(const DOMNode* node, const MemberInfo&) {
    return CoreTypes::CastToInt64(GetTextValue(node));
}

unsigned long long XercesTreeOperations::CastToUInt64(const DOMNode* node, const MemberInfo&) {
    return CoreTypes::CastToUInt64(GetTextValue(node));
}

double XercesTreeOperations::CastToDouble(const DOMNode* node, const MemberInfo&) {
    return CoreTypes::CastToDouble(GetTextValue(node));
}

tessera::DateTime XercesTreeOperations::CastToDateTime(const DOMNode* node, const MemberInfo&) {
    return CoreTypes::CastToDateTime(GetTextValue(node));
}

tessera::Duration XercesTreeOperations::CastToDuration(const DOMNode* node, const MemberInfo&) {
    return CoreTypes::CastToDuration(GetTextValue(node));
}

std::vector<unsigned char> XercesTreeOperations::CastToBinary(const DOMNode* node, const MemberInfo& member) {
    return GetFormatter(member)->ParseBinary(GetTextValue(node));
}

tessera::QName XercesTreeOperations::CastToQName(const DOMNode* node, const MemberInfo&) {
    const std::string text = GetTextValue(node);
    tessera::QName name({}, text);
    const bool hasPrefix = text.find(':') != std::string::npos;
    name.uri = hasPrefix ? FindNamespaceForPrefix(node, name.prefix) : FindDefaultNamespace(node);
    return name;
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member, bool value) {
    SetValue(node, member, GetFormatter(member)->Format(value));
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member, int value) {
    SetValue(node, member, static_cast<long long>(value));
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member, unsigned int value) {
    SetValue(node, member, static_cast<unsigned long long>(value));
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member, long long value) {
    SetValue(node, member, GetFormatter(member)->Format(value));
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member, unsigned long long value) {
    SetValue(node, member, GetFormatter(member)->Format(value));
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member, double value) {
    SetValue(node, member, GetFormatter(member)->Format(value));
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member, const tessera::DateTime& value) {
    SetValue(node, member, GetFormatter(member)->Format(value));
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member, const tessera::Duration& value) {
    SetValue(node, member, GetFormatter(member)->Format(value));
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member,
                                    const std::vector<unsigned char>& value) {
    SetValue(node, member, GetFormatter(member)->Format(value));
}
