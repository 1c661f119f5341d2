// How far long work has come.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_PROGRESS_H
#define XTTML_TOOLS_XTTML_OUTPUT_PROGRESS_H

#include <chrono>
#include <cstddef>
#include <string>

namespace xttml {

/// A line on standard error, when that is a terminal and the work takes longer than a second. It disappears
/// with the object, and before anything else is written.
class Progress {
public:
    /// @param things what is counted: "pictures"
    Progress(std::string things, std::size_t total);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// One more is done.
    void Step();

private:
    using Clock = std::chrono::steady_clock;

    std::string things_;
    std::size_t total_;
    std::size_t done_ = 0;
    bool isTerminal_;
    Clock::time_point next_;
};

/// Takes the line away, for what is about to be written to the terminal.
void EraseProgress();

} // namespace xttml

#endif
