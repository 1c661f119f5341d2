// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// The types of xml:lang, xml:space and cff:forcedDisplayMode.
// The class of a simple type holds a node and nothing else.
// clang-format off
#ifndef XTTML_BINDING_GENERATED_CORE_H
#define XTTML_BINDING_GENERATED_CORE_H

#include "binding/type_base.h"

namespace ttaf1_dfxp::tt {

struct ClangType : TypeBase { using TypeBase::TypeBase; };
struct ClangType2 : TypeBase { using TypeBase::TypeBase; };
struct CspaceType : TypeBase { using TypeBase::TypeBase; };
struct CforcedDisplayModeType : TypeBase { using TypeBase::TypeBase; };

} // namespace ttaf1_dfxp::tt

#endif
