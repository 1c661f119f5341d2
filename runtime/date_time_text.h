// The lexical forms of dates and times of day.
#ifndef XTTML_RUNTIME_DATE_TIME_TEXT_H
#define XTTML_RUNTIME_DATE_TIME_TEXT_H

#include "runtime/date_time.h"

#include <string>
#include <string_view>

namespace tessera {

// Every form ends with the timezone when the value has one. Years have at least four digits and a "-" before
// 0000; months, days, hours, minutes and seconds have two digits; the fraction of a second has up to seven.

std::string PrintDateTime(const DateTime& value);      ///< date "T" time
std::string PrintDate(const DateTime& value);          ///< yyyy-mm-dd
std::string PrintTime(const DateTime& value);          ///< hh:mm:ss, fraction
std::string PrintGYear(const DateTime& value);         ///< yyyy
std::string PrintGYearMonth(const DateTime& value);    ///< yyyy-mm
std::string PrintGMonth(const DateTime& value);        ///< --mm
std::string PrintGMonthDay(const DateTime& value);     ///< --mm-dd
std::string PrintGDay(const DateTime& value);          ///< ---dd
std::string PrintDateSpaceTime(const DateTime& value); ///< date " " time
std::string PrintSeconds(const DateTime& value);       ///< the tick count in seconds
std::string PrintDays(const DateTime& value);          ///< the tick count in days, up to seven decimals

/// "Z" for 0, else the sign, hours and minutes of an offset in minutes: "+05:30"; empty for NO_TIMEZONE.
std::string PrintTimezone(std::int16_t minutes);

/// As CoreTypes::TryParseDateTime.
bool TryParseDateTime(std::string_view text, unsigned parts, DateTime& result);

} // namespace tessera

#endif
