// Runs benchmarks and prints, after every measurement, the ratios between pairs of them.
#ifndef XTTML_BENCH_RATIO_REPORTER_H
#define XTTML_BENCH_RATIO_REPORTER_H

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

/// Two benchmarks of one run, by name, and the largest ratio that is good enough.
struct Ratio {
    std::string numerator;
    std::string
        denominator; ///< no benchmark's name when the numerator took turns with what it is compared to
    double limit;
};

/// Does two things in turns, in every iteration, for work that lasts long enough for the machine's speed to
/// change under it: the time is that of `work`, the ratio the median of the quotients of neighbours.
void TakeTurns(benchmark::State& state, const std::function<void()>& work,
               const std::function<void()>& reference);

/// Runs the registered benchmarks with Google Benchmark's options. The repetitions of all take turns, so that
/// a drift of the machine's speed falls on both sides of a ratio; a ratio is of the medians. Results go to
/// standard error, since standard output is the library's: it is dropped from here on.
void RunBenchmarks(int argc, char** argv, std::vector<Ratio> ratios);

#endif
