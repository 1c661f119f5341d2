// Media times as people write and read them.
#ifndef XTTML_TOOLS_XTTML_TEXT_MEDIA_TIME_H
#define XTTML_TOOLS_XTTML_TEXT_MEDIA_TIME_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace xttml {

/// ms; 64 bits wide, so that a time and an offset never wrap.
using MediaTime = std::int64_t;

/// A time as a user writes it.
struct WrittenTime {
    MediaTime milliseconds;  ///< 0 to 2147483647; without the frames
    std::int32_t frames = 0; ///< frames of the second; what they last is the document's to say
    bool hasFrames = false;
};

/// Whether a time surely comes before another: by the seconds, within a second by the frames.
bool IsBefore(const WrittenTime& left, const WrittenTime& right);

/// A time from "1500" (ms), "1.5s" (also h, m, ms), "00:00:01.500" or, with frames, "00:00:01:12"; digits
/// below a millisecond are dropped. Nothing for any other text and for times above 2147483647 ms.
std::optional<WrittenTime> ParseTime(std::string_view text);

/// A signed decimal number of 32 bits; nothing for any other text.
std::optional<std::int32_t> ParseInteger(std::string_view text);

/// hours:minutes:seconds.milliseconds with a minus sign in front of a negative time; "-" for an unknown time.
std::string FormatTime(std::optional<MediaTime> time);

/// A time as part of a file's name, whose order is that of the times up to 99 hours: "00-00-01.000";
/// "unknown" for an unknown time.
std::string TimeInFileName(std::optional<MediaTime> time);

} // namespace xttml

#endif
