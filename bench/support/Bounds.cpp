// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/Bounds.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <optional>

namespace tessaly::bench {

namespace {

/// Prints as usual and keeps every median.
class MedianReporter final : public benchmark::ConsoleReporter {
public:
    MedianReporter() : ConsoleReporter(OO_Tabular) { }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
                m_medians.emplace(run.run_name.function_name, run);
        }
    }

    std::optional<double> median(const std::string &name, const std::string &counter) const
    {
        const auto found = m_medians.find(name);
        if (found == m_medians.end())
            return std::nullopt;
        const Run &run = found->second;
        if (counter.empty())
            return run.real_accumulated_time / benchmark::GetTimeUnitMultiplier(benchmark::kSecond);
        const auto value = run.counters.find(counter);
        return value == run.counters.end() ? std::nullopt : std::optional<double>(value->second.value);
    }

private:
    std::map<std::string, Run> m_medians;
};

bool holds(const Bound &bound, const MedianReporter &reporter)
{
    const std::string what = bound.counter.empty() ? "time" : bound.counter;
    const auto subject = reporter.median(bound.subject, bound.counter);
    const auto baseline = reporter.median(bound.baseline, bound.counter);
    if (!subject || !baseline || *baseline <= 0) {
        std::printf("MISSING  %s of %s or %s\n", what.c_str(), bound.subject.c_str(), bound.baseline.c_str());
        return false;
    }
    const double ratio = *subject / *baseline;
    const bool kept = ratio <= bound.maxRatio;
    std::printf("%s  %-5s %7.3f (at most %.3f)  %s / %s\n", kept ? "kept  " : "BROKEN", what.c_str(), ratio,
        bound.maxRatio, bound.subject.c_str(), bound.baseline.c_str());
    return kept;
}

} // namespace

int runWithBounds(int argc, char **argv, const std::vector<Bound> &bounds)
{
    // The last one given wins, so what the caller passes overrides these.
    std::string defaults[] = { "--benchmark_repetitions=7", "--benchmark_report_aggregates_only=true",
        "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.05" };
    std::vector<char *> arguments { argv[0] };
    for (std::string &argument : defaults)
        arguments.push_back(argument.data());
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;

    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\n");
    int broken = 0;
    for (const Bound &bound : bounds)
        broken += holds(bound, reporter) ? 0 : 1;
    return broken == 0 ? 0 : 1;
}

} // namespace tessaly::bench
