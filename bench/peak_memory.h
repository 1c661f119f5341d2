// The peak memory of a piece of work, each in a process of its own.
#ifndef XTTML_BENCH_PEAK_MEMORY_H
#define XTTML_BENCH_PEAK_MEMORY_H

#include <string>

/// Runs this program again with two arguments and returns the largest resident size that it had, in KiB;
/// -1 when it could not be run.
long PeakMemoryOf(const std::string& task, int paragraphs);

#endif
