# What an untrusted document may have (xmltree/untrusted_limits.h), each an option of the build:
# XTTML_UNTRUSTED_MAX_<name>. XTTML_UNTRUSTED_LIMITS lists them as definitions for a compiler.
set(XTTML_UNTRUSTED_LIMITS "")

macro(xttml_untrusted_limit name value words)
  set(XTTML_UNTRUSTED_MAX_${name} ${value} CACHE STRING "Of an untrusted document: ${words}")
  list(APPEND XTTML_UNTRUSTED_LIMITS XTTML_UNTRUSTED_MAX_${name}=${XTTML_UNTRUSTED_MAX_${name}})
endmacro()

xttml_untrusted_limit(BYTES 2097152 "bytes")
xttml_untrusted_limit(DEPTH 256 "levels of elements")
xttml_untrusted_limit(NODES 262144 "elements, attributes, texts, comments and processing instructions")
xttml_untrusted_limit(ATTRIBUTES 256 "attributes of an element")
xttml_untrusted_limit(VALUE 1024 "characters of an attribute value")
xttml_untrusted_limit(STYLING_VALUE 128 "characters of the value of a tts: attribute")
xttml_untrusted_limit(NAMES 512 "different names of elements and attributes")
xttml_untrusted_limit(NAME 64 "characters of a name with its prefix")
xttml_untrusted_limit(NAMESPACES 64 "different namespaces")
xttml_untrusted_limit(NAMESPACE 256 "characters of a namespace")
xttml_untrusted_limit(DECLARATIONS 256 "namespace declarations in scope")
