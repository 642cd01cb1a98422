#include "benchmarks/RatioReporter.h"

#include <cstdio>

namespace Korvex::Meridane::Benchmarks {

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        const std::string name =
            run.run_name.function_name + (run.run_name.args.empty() ? "" : "/" + run.run_name.args);
        const bool isMedian = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
        if (isMedian || (run.run_type == Run::RT_Iteration && !m_seconds.count(name)))
            m_seconds[name] = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
    }
}

void RatioReporter::Finalize()
{
    ConsoleReporter::Finalize();
    std::printf("\nRatios within this run\n");
    for (const Ratio& ratio : m_ratios) {
        const auto numerator = m_seconds.find(ratio.numerator);
        const auto denominator = m_seconds.find(ratio.denominator);
        if (numerator == m_seconds.end() || denominator == m_seconds.end() || denominator->second <= 0)
            continue;
        std::printf("%-70s %8.2f\n", ratio.title.c_str(),
                    numerator->second / ratio.numeratorPer / (denominator->second / ratio.denominatorPer));
    }
}

} // namespace Korvex::Meridane::Benchmarks
