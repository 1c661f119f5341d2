#include "bench/ratio_reporter.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <map>
#include <utility>

namespace {

class RatioReporter : public benchmark::ConsoleReporter {
public:
    explicit RatioReporter(std::vector<Ratio> ratios)
        : ConsoleReporter(OO_None), ratios_(std::move(ratios)) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                secondsByName_[NameOf(run)].push_back(run.cpu_accumulated_time /
                                                      static_cast<double>(run.iterations));
        }
    }

    void Finalize() override {
        ConsoleReporter::Finalize();
        for (const Ratio& ratio : ratios_) {
            const double denominator = MedianOf(ratio.denominator);
            if (denominator > 0)
                GetOutputStream() << "ratio " << ratio.numerator << " : " << ratio.denominator << " = "
                                  << MedianOf(ratio.numerator) / denominator << " (limit " << ratio.limit
                                  << ")\n";
        }
    }

private:
    static std::string NameOf(const Run& run) {
        const std::string& args = run.run_name.args;
        return run.run_name.function_name + (args.empty() ? "" : "/" + args);
    }

    double MedianOf(const std::string& name) const {
        const auto found = secondsByName_.find(name);
        if (found == secondsByName_.end())
            return 0;
        std::vector<double> seconds = found->second;
        std::sort(seconds.begin(), seconds.end());
        return seconds[seconds.size() / 2];
    }

    std::vector<Ratio> ratios_;
    std::map<std::string, std::vector<double>> secondsByName_;
};

} // namespace

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
