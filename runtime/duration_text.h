// The lexical forms of durations.
#ifndef XTTML_RUNTIME_DURATION_TEXT_H
#define XTTML_RUNTIME_DURATION_TEXT_H

#include "runtime/duration.h"

#include <string>
#include <string_view>

namespace tessera {

// As CoreTypes::CastToString.

std::string PrintDuration(const YearMonthDuration& value);
std::string PrintDuration(const DayTimeDuration& value);
/// The two parts of a Duration. Throws ValueNotRepresentableException when one is negative and the other
/// positive.
std::string PrintDuration(const YearMonthDuration& yearMonth, const DayTimeDuration& dayTime);

/// Reads the form that CoreTypes::CastToDuration describes. False for any other text and for a length that
/// the fields cannot hold; `result` is then unchanged.
bool TryParseDuration(std::string_view text, Duration& result);

} // namespace tessera

#endif
