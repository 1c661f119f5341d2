// The lexical forms of dates and times of day.
#ifndef XTTML_RUNTIME_DATE_TIME_TEXT_H
#define XTTML_RUNTIME_DATE_TIME_TEXT_H

#include "runtime/date_time.h"

#include <string>
#include <string_view>

namespace tessera {

// The forms of CoreTypes::DateTimeFormat, in its order.

std::string PrintDateTime(const DateTime& value);
std::string PrintDate(const DateTime& value);
std::string PrintTime(const DateTime& value);
std::string PrintGYear(const DateTime& value);
std::string PrintGYearMonth(const DateTime& value);
std::string PrintGMonth(const DateTime& value);
std::string PrintGMonthDay(const DateTime& value);
std::string PrintGDay(const DateTime& value);
std::string PrintDateSpaceTime(const DateTime& value);
std::string PrintSeconds(const DateTime& value);
std::string PrintDays(const DateTime& value);

/// As CoreTypes::FormatTimezone.
std::string PrintTimezone(std::int16_t minutes);

/// As CoreTypes::TryParseDateTime.
bool TryParseDateTime(std::string_view text, unsigned parts, DateTime& result);

} // namespace tessera

#endif
