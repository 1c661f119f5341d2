#include "bench/comparison.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <utility>

#include <malloc.h>

namespace {

double ProcessorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

double SecondsOf(const std::function<void()>& work, int repetitions) {
    const double start = ProcessorSeconds();
    for (int i = 0; i < repetitions; ++i)
        work();
    return (ProcessorSeconds() - start) / repetitions;
}

/// What is being measured. Google Benchmark asks for it several times, with more and more turns.
struct Current {
    const Comparison* comparison = nullptr;
    Turns turns;

    void Prepare(const Comparison& next) {
        if (comparison != &next) {
            turns = {}; // before the memory of both is needed
            turns = next.prepare();
            comparison = &next;
        }
    }
};

/// The ratio of the latest run, which has the most turns.
void Measure(benchmark::State& state, const Comparison& comparison, Current& current, double& ratio) {
    current.Prepare(comparison);
    const int repetitions = comparison.repetitionsOfEachTurn;
    std::vector<double> ratios;
    for (auto _ : state) {
        const double reference = SecondsOf(current.turns.reference, repetitions);
        const double seconds = SecondsOf(current.turns.work, repetitions);
        state.SetIterationTime((reference + seconds) * repetitions);
        ratios.push_back(seconds / (comparison.share * reference + comparison.secondsMore));
    }
    ratio = Median(std::move(ratios));
    state.counters["ratio"] = ratio;
}

} // namespace

void KeepFreedMemory() {
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

bool PrintRow(const std::string& name, double ratio, double limit) {
    const bool isKept = ratio <= limit;
    char numbers[64];
    std::snprintf(numbers, sizeof numbers, " | %.3f | %.2f | ", ratio, limit);
    std::cerr << "| " << name << numbers << (isKept ? "" : "over it ") << "|\n";
    return isKept;
}

int RunComparisons(int argc, char** argv, const std::vector<Comparison>& comparisons) {
    if (!std::freopen("/dev/null", "w", stdout))
        std::cerr << "standard output stays open\n";
    benchmark::Initialize(&argc, argv);
    Current current;
    std::vector<double> ratios(comparisons.size());
    for (std::size_t i = 0; i < comparisons.size(); ++i)
        benchmark::RegisterBenchmark(comparisons[i].name.c_str(), Measure, std::cref(comparisons[i]),
                                     std::ref(current), std::ref(ratios[i]))
            ->UseManualTime()
            ->MinTime(comparisons[i].seconds)
            ->Unit(benchmark::kMicrosecond);
    benchmark::ConsoleReporter reporter(benchmark::ConsoleReporter::OO_None);
    reporter.SetOutputStream(&std::cerr);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    bool isKept = true;
    for (std::size_t i = 0; i < comparisons.size(); ++i) {
        const bool isMeasured = ratios[i] > 0; // or left out by an option
        isKept = (!isMeasured || PrintRow(comparisons[i].name, ratios[i], comparisons[i].limit)) && isKept;
    }
    return isKept ? EXIT_SUCCESS : EXIT_FAILURE;
}
