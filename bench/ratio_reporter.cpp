#include "bench/ratio_reporter.h"

#include <algorithm>
#include <ostream>
#include <utility>

RatioReporter::RatioReporter(std::vector<Ratio> ratios)
    : ConsoleReporter(OO_None), ratios_(std::move(ratios)) {}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Iteration && !run.error_occurred)
            secondsByName_[run.run_name.function_name + "/" + run.run_name.args].push_back(
                run.cpu_accumulated_time / static_cast<double>(run.iterations));
    }
}

void RatioReporter::Finalize() {
    ConsoleReporter::Finalize();
    for (const Ratio& ratio : ratios_) {
        const double denominator = MedianOf(ratio.denominator);
        if (denominator <= 0)
            continue;
        GetOutputStream() << "ratio " << ratio.numerator << " : " << ratio.denominator << " = "
                          << MedianOf(ratio.numerator) / denominator << " (limit " << ratio.limit << ")\n";
    }
}

double RatioReporter::MedianOf(const std::string& name) const {
    const auto found = secondsByName_.find(name);
    if (found == secondsByName_.end())
        return 0;
    std::vector<double> seconds = found->second;
    std::sort(seconds.begin(), seconds.end());
    return seconds[seconds.size() / 2];
}
