#include "bench/ratio_report.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string_view>
#include <vector>

namespace zeltrona::bench {
namespace {

// Shows the runs as usual and keeps the quickest time of each.
class QuickestTimes : public benchmark::ConsoleReporter {
public:
    QuickestTimes() : ConsoleReporter(::isatty(STDOUT_FILENO) == 1 ? OO_ColorTabular : OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred && run.iterations > 0) {
                const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
                const std::string name =
                    run.run_name.function_name + (run.run_name.args.empty() ? "" : "/" + run.run_name.args);
                const auto kept = m_seconds.try_emplace(name, seconds).first;
                kept->second = std::min(kept->second, seconds);
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    const std::map<std::string, double>& seconds() const { return m_seconds; }

private:
    std::map<std::string, double> m_seconds;
};

bool isGiven(int count, char** arguments, std::string_view option) {
    return std::any_of(arguments, arguments + count,
                       [option](std::string_view argument) { return argument.starts_with(option); });
}

} // namespace

int runWithRatios(int count, char** arguments, std::span<const Ratio> ratios) {
    std::string repeat = "--benchmark_repetitions=5";
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> all(arguments, arguments + count);
    if (!isGiven(count, arguments, "--benchmark_repetitions")) {
        all.push_back(repeat.data());
        all.push_back(interleave.data());
    }
    int allCount = static_cast<int>(all.size());
    benchmark::Initialize(&allCount, all.data());
    if (benchmark::ReportUnrecognizedArguments(allCount, all.data())) {
        return 1;
    }
    QuickestTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    benchmark::Shutdown();
    for (const Ratio& ratio : ratios) {
        const auto measured = times.seconds().find(ratio.measured);
        const auto reference = times.seconds().find(ratio.reference);
        if (measured != times.seconds().end() && reference != times.seconds().end()) {
            std::printf("ratio %s %.3f %.3f\n", ratio.name.c_str(), measured->second / reference->second,
                        ratio.limit);
        }
    }
    return 0;
}

} // namespace zeltrona::bench
