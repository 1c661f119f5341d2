// Measures pieces of work over others and prints a table of the ratios.
#ifndef XTTML_BENCH_COMPARISON_H
#define XTTML_BENCH_COMPARISON_H

#include <functional>
#include <string>
#include <vector>

/// Two pieces of work that take turns.
struct Turns {
    std::function<void()> reference; ///< comes first; the other one may go on from what it left
    std::function<void()> work;
};

/// How long a piece of work may take over a reference.
struct Comparison {
    std::string name; ///< as the table has it
    double limit;     ///< the largest ratio that is good enough
    std::function<Turns()> prepare;
    double share = 1;              ///< of the time of the reference, to compare with
    double secondsMore = 0;        ///< on top of it
    int repetitionsOfEachTurn = 1; ///< for work too short to be timed by itself
    double seconds = 1.5;          ///< to take turns for, at least
};

/// Measures in processor time with Google Benchmark, whose options it takes. Neighbouring turns are compared,
/// since a machine's speed drifts; a ratio is the median. Everything goes to standard error: standard output
/// is the library's, and dropped from here on.
/// @return the exit status: EXIT_FAILURE when a limit is passed
int RunComparisons(int argc, char** argv, const std::vector<Comparison>& comparisons);

/// Both sides then work on memory that the process already has. Otherwise each finds the pages that the other
/// left or gave back, and page faults decide the ratio.
void KeepFreedMemory();

/// Prints a row of the table.
/// @return whether the ratio keeps to the limit
bool PrintRow(const std::string& name, double ratio, double limit);

/// 0 for no values.
double Median(std::vector<double> values);

#endif
