#include "tools/xttml/output/progress.h"

#include <cstdio>
#include <fmt/format.h>
#include <unistd.h>
#include <utility>

namespace xttml {

namespace {

constexpr std::chrono::milliseconds patience(1000);
constexpr std::chrono::milliseconds interval(200);

bool isShown = false;

} // namespace

Progress::Progress(std::string things, std::size_t total)
    : things_(std::move(things)), total_(total), isTerminal_(::isatty(STDERR_FILENO) == 1),
      next_(Clock::now() + patience) {}

Progress::~Progress() {
    EraseProgress();
}

void Progress::Step() {
    ++done_;
    if (!isTerminal_ || done_ == total_ || Clock::now() < next_)
        return;
    next_ = Clock::now() + interval;
    EraseProgress();
    std::fputs(fmt::format("xttml: {} of {} {}", done_, total_, things_).c_str(), stderr);
    isShown = true;
}

void EraseProgress() {
    if (std::exchange(isShown, false))
        std::fputs("\r\x1B[K", stderr); // ECMA-48: erase to the end of the line
}

} // namespace xttml
