// How much is told.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_DETAIL_H
#define XTTML_TOOLS_XTTML_OUTPUT_DETAIL_H

namespace xttml {

/// How much of an item JSON tells.
enum class Detail {
    ESSENTIAL, ///< without what the library does not use, what is false and what a run has as its item has it
    FULL       ///< every field of the item, of its records and of its runs
};

} // namespace xttml

#endif
