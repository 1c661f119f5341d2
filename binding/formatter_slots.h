// The places where the type table finds its lexical formatters.
#ifndef XTTML_BINDING_FORMATTER_SLOTS_H
#define XTTML_BINDING_FORMATTER_SLOTS_H

#include "runtime/formatters.h"

#include <cstdint>

namespace ttaf1_dfxp {

/// The slot of each formatter.
enum FormatterSlot : std::uint32_t {
    TIME,
    DATE,
    DATE_TIME,
    G_YEAR,
    G_MONTH,
    G_DAY,
    G_YEAR_MONTH,
    G_MONTH_DAY,
    INTEGER,
    DECIMAL,
    ANY_SIMPLE_TYPE,
    DURATION,
    DOUBLE,
    BASE64_BINARY,
    HEX_BINARY,
    FORMATTER_SLOT_COUNT
};

/// Filled by static initialisation, never null after it.
extern const tessera::XmlFormatter* const formatterSlots[FORMATTER_SLOT_COUNT];

} // namespace ttaf1_dfxp

#endif
