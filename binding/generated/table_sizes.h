// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// The sizes of the tables.
// clang-format off
#ifndef XTTML_BINDING_GENERATED_TABLE_SIZES_H
#define XTTML_BINDING_GENERATED_TABLE_SIZES_H

#include <cstdint>

namespace ttaf1_dfxp {

inline constexpr std::uint32_t NAMESPACE_COUNT = 10; ///< records of `namespaces` before its end
inline constexpr std::uint32_t TYPE_COUNT = 144; ///< records of `types` before its end
inline constexpr std::uint32_t MEMBER_COUNT = 490; ///< records of `members` before its end
inline constexpr std::uint32_t FACET_COUNT = 259; ///< records of `facets`, the ends of the lists included

} // namespace ttaf1_dfxp

#endif
