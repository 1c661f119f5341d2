// Why the library reads no time from a text.
#ifndef XTTML_TOOLS_XTTML_FINDINGS_TIME_FAULTS_H
#define XTTML_TOOLS_XTTML_FINDINGS_TIME_FAULTS_H

#include <cstdint>
#include <string>

namespace xttml {

/// What is wrong with a time expression (TTML 1.0, 10.3.1) that the library does not read; empty when nothing
/// is but that it is too large for 32-bit milliseconds.
/// @param frameRate frames a second; 0 or less: none
std::string FaultOfTime(const std::string& time, std::int32_t frameRate);

/// Whether a text has so many colons that the library takes it for 0.
bool HasColonsOfNoTime(const std::string& time);

} // namespace xttml

#endif
