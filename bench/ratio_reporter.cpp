#include "bench/ratio_reporter.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <iostream>
#include <map>
#include <utility>

namespace {

constexpr char ratioCounter[] = "ratio";

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

double ProcessorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

double ProcessorSecondsOf(const std::function<void()>& work) {
    const double start = ProcessorSeconds();
    work();
    return ProcessorSeconds() - start;
}

class RatioReporter : public benchmark::ConsoleReporter {
public:
    explicit RatioReporter(std::vector<Ratio> ratios)
        : ConsoleReporter(OO_None), ratios_(std::move(ratios)) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                Take(run);
        }
    }

    void Finalize() override {
        ConsoleReporter::Finalize();
        for (const Ratio& ratio : ratios_) {
            const double value = ValueOf(ratio);
            if (value > 0)
                GetOutputStream() << "ratio " << ratio.numerator << " : " << ratio.denominator << " = "
                                  << value << " (limit " << ratio.limit << ")\n";
        }
    }

private:
    static std::string NameOf(const Run& run) {
        const std::string& args = run.run_name.args;
        return run.run_name.function_name + (args.empty() ? "" : "/" + args);
    }

    void Take(const Run& run) {
        secondsByName_[NameOf(run)].push_back(run.cpu_accumulated_time / static_cast<double>(run.iterations));
        const auto own = run.counters.find(ratioCounter);
        if (own != run.counters.end())
            ownRatiosByName_[NameOf(run)].push_back(own->second);
    }

    /// 0 when the options left a benchmark out.
    double ValueOf(const Ratio& ratio) {
        const double own = Median(ownRatiosByName_[ratio.numerator]);
        const double denominator = Median(secondsByName_[ratio.denominator]);
        return denominator > 0 ? Median(secondsByName_[ratio.numerator]) / denominator : own;
    }

    std::vector<Ratio> ratios_;
    std::map<std::string, std::vector<double>> secondsByName_;
    std::map<std::string, std::vector<double>> ownRatiosByName_;
};

} // namespace

void TakeTurns(benchmark::State& state, const std::function<void()>& work,
               const std::function<void()>& reference) {
    std::vector<double> ratios;
    for (auto _ : state) {
        const double referenceSeconds = ProcessorSecondsOf(reference);
        const double seconds = ProcessorSecondsOf(work);
        state.SetIterationTime(seconds);
        ratios.push_back(seconds / referenceSeconds);
    }
    state.counters[ratioCounter] = Median(std::move(ratios));
}

void RunBenchmarks(int argc, char** argv, std::vector<Ratio> ratios) {
    if (!std::freopen("/dev/null", "w", stdout))
        std::cerr << "standard output stays open\n";
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    std::string repetitions = "--benchmark_repetitions=9";
    std::vector<char*> arguments = {argv[0], interleave.data(), repetitions.data()};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    RatioReporter reporter(std::move(ratios));
    reporter.SetOutputStream(&std::cerr);
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
