// The names of the namespaces of TTML 1.0 (5.1) and of what goes with it.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_NAMESPACE_NAMES_H
#define XTTML_TOOLS_XTTML_DOCUMENT_NAMESPACE_NAMES_H

namespace xttml {

inline constexpr const char* ttmlNamespace = "http://www.w3.org/ns/ttml";
inline constexpr const char* metadataNamespace = "http://www.w3.org/ns/ttml#metadata";
inline constexpr const char* parameterNamespace = "http://www.w3.org/ns/ttml#parameter";
inline constexpr const char* stylingNamespace = "http://www.w3.org/ns/ttml#styling";
inline constexpr const char* imscStylingNamespace = "http://www.w3.org/ns/ttml/profile/imsc1#styling";
inline constexpr const char* imscParameterNamespace = "http://www.w3.org/ns/ttml/profile/imsc1#parameter";
inline constexpr const char* ebuStylingNamespace = "urn:ebu:tt:style";
inline constexpr const char* smpteNamespace = "http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt";
inline constexpr const char* cffNamespace = "http://www.decellc.org/schema/2012/01/cff-tt-meta";
inline constexpr const char* xmlNamespace = "http://www.w3.org/XML/1998/namespace";
inline constexpr const char* noNamespace = "";

} // namespace xttml

#endif
