// Media times as people write and read them.
#ifndef XTTML_TOOLS_XTTML_MEDIA_TIME_H
#define XTTML_TOOLS_XTTML_MEDIA_TIME_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace xttml {

/// A time in ms from "1500" (ms), "1.5s" (also h, m, ms) or "00:00:01.500"; digits below a millisecond are
/// dropped. Nothing for any other text and for times above 2147483647 ms.
std::optional<std::int32_t> ParseTime(std::string_view text);

/// A signed decimal number of 32 bits; nothing for any other text.
std::optional<std::int32_t> ParseInteger(std::string_view text);

/// hours:minutes:seconds.milliseconds with a minus sign in front of a negative time; "-" for -1, the
/// unknown time.
std::string FormatTime(std::int32_t milliseconds);

} // namespace xttml

#endif
