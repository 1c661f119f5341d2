// The tables of the TTML document model: TTML 1.0 DFXP with the SMPTE-TT and CFF-TT additions.
//
// Generated code and the accessors refer to a namespace, type, member or facet by its index. Each table but
// the facets ends with one more record that is all zero; the facets of a type end with such a record each.
#ifndef XTTML_BINDING_TABLES_H
#define XTTML_BINDING_TABLES_H

#include "binding/generated/table_sizes.h"
#include "runtime/export.h"
#include "runtime/info.h"

namespace ttaf1_dfxp {

/// In the order of the types that they own.
extern XTTML_API const tessera::NamespaceInfo namespaces[NAMESPACE_COUNT + 1];
/// One for each wrapper class.
extern XTTML_API const tessera::TypeInfo types[TYPE_COUNT + 1];
/// Those of one type stand together: text content, attributes, child elements.
extern XTTML_API const tessera::MemberInfo members[MEMBER_COUNT + 1];
/// In the order of the types that they restrict. None carries a check.
extern XTTML_API const tessera::FacetInfo facets[FACET_COUNT];

/// The four tables; every namespace, type and member record leads here.
extern XTTML_API const tessera::InfoBinder binder;

} // namespace ttaf1_dfxp

#endif
