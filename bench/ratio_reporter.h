// Prints every measurement and, at the end, the ratios between pairs of them.
#ifndef XTTML_BENCH_RATIO_REPORTER_H
#define XTTML_BENCH_RATIO_REPORTER_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Two benchmarks of one run, by name, and the largest ratio that is good enough.
struct Ratio {
    std::string numerator;
    std::string denominator;
    double limit;
};

class RatioReporter : public benchmark::ConsoleReporter {
public:
    explicit RatioReporter(std::vector<Ratio> ratios);

    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    double MedianOf(const std::string& name) const;

    std::vector<Ratio> ratios_;
    std::map<std::string, std::vector<double>> secondsByName_;
};

#endif
