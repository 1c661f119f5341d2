// The lexical forms of durations.
#ifndef XTTML_RUNTIME_DURATION_TEXT_H
#define XTTML_RUNTIME_DURATION_TEXT_H

#include "runtime/duration.h"

#include <string>
#include <string_view>

namespace tessera {

/// "P1Y2M", "-P3M"; "P0M" for zero.
std::string PrintDuration(const YearMonthDuration& value);

/// "P1DT2H3M4.5S", "-PT1M"; "PT0S" for zero.
std::string PrintDuration(const DayTimeDuration& value);

/// Both parts after one sign and one "P"; "PT0S" for zero. Throws ValueNotRepresentableException when one
/// part is negative and the other positive.
std::string PrintDuration(const YearMonthDuration& yearMonth, const DayTimeDuration& dayTime);

/// Reads the form that CoreTypes::CastToDuration describes. False for any other text and for a length that
/// the fields cannot hold; `result` is then unchanged.
bool TryParseDuration(std::string_view text, Duration& result);

} // namespace tessera

#endif
