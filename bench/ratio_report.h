#pragma once

#include <span>
#include <string>

namespace zeltrona::bench {

/// A promise about speed, measured within one run so that it holds on any machine: the time of one benchmark
/// is at most `limit` times that of another. Both go by their name as registered, arguments included
/// ("loadFrame/1000").
struct Ratio {
    std::string name;
    std::string measured;
    std::string reference;
    double limit = 1.0;
};

/// Runs the benchmarks of the program and prints "ratio <name> <measured> <limit>" for each ratio whose two
/// sides ran, from the quickest of their repetitions. Several interleaved repetitions unless the arguments
/// ask for others. Gives the exit code; a ratio beyond its limit is reported and does not fail.
int runWithRatios(int count, char** arguments, std::span<const Ratio> ratios);

} // namespace zeltrona::bench
