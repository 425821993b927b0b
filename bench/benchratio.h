// Shared by the benchmarks: a console reporter that keeps each benchmark's CPU time
// per iteration, and the best of the rounds of one benchmark.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <unistd.h>
#include <vector>

class RatioReporter : public benchmark::ConsoleReporter
{
public:
    RatioReporter() : ConsoleReporter(isatty(STDOUT_FILENO) ? OO_Defaults : OO_Tabular) {}
    std::map<std::string, double> cpuNs;
    void ReportRuns(std::vector<Run> const& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (Run const& run : runs) {
            if (run.error_occurred || run.iterations == 0)
                continue;
            cpuNs[run.run_name.function_name] = run.GetAdjustedCPUTime(); // ns per iteration
        }
    }
    // The best CPU time of the benchmarks named "<prefix>/round<N>"; 0 if none ran.
    double best(std::string const& prefix) const
    {
        double v = 0.0;
        for (auto const& [name, ns] : cpuNs)
            if (name.compare(0, prefix.size(), prefix) == 0 && name.find('/', prefix.size()) == prefix.size()
                && (v == 0.0 || ns < v))
                v = ns;
        return v;
    }
};
