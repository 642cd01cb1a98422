#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace Korvex::Meridane::Benchmarks {

/// Prints Google Benchmark's table and, below it, ratios of benchmarks of the same run: the machine's own speed and its
/// load cancel out in them.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    /// The ratio of the times of two benchmarks, by their full names ("load/1000"), each divided by its \a per.
    struct Ratio
    {
        std::string title;
        std::string numerator;
        double numeratorPer;
        std::string denominator;
        double denominatorPer;
    };

    void addRatio(const Ratio& ratio) { m_ratios.push_back(ratio); }
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    std::vector<Ratio> m_ratios;
    std::map<std::string, double> m_seconds; // the median where there are repetitions
};

} // namespace Korvex::Meridane::Benchmarks
