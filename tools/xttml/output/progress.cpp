#include "tools/xttml/output/progress.h"

#include <cstdio>
#include <fmt/format.h>
#include <unistd.h>
#include <utility>

namespace xttml {

namespace {

constexpr std::chrono::milliseconds patience(1000);
constexpr std::chrono::milliseconds interval(200);

} // namespace

Progress::Progress(std::string things, std::size_t total)
    : things_(std::move(things)), total_(total), isTerminal_(::isatty(STDERR_FILENO) == 1),
      next_(Clock::now() + patience) {}

// The carriage return behind the line lets any other message take its place.
void Progress::Step() {
    ++done_;
    if (!isTerminal_ || Clock::now() < next_)
        return;
    next_ = Clock::now() + interval;
    const std::string line = fmt::format("xttml: {} of {} {}", done_, total_, things_);
    shown_ = line.size();
    std::fputs((line + '\r').c_str(), stderr);
}

void Progress::Erase() {
    if (shown_ > 0)
        std::fputs((std::string(shown_, ' ') + '\r').c_str(), stderr);
}

} // namespace xttml
