#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace quorvane::bench {

/// Collects what the benchmarks measure and prints it as a table: nanoseconds of processor time,
/// the system's included, per element at each size, and how they grow from the second size to the
/// last.
class SizeTable : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;

    /// The table in Markdown.
    std::string text() const;

    /// Nanoseconds per element of a benchmark at a size; 0 when it was not run.
    double nanoseconds(const std::string& name, std::int64_t size) const;

private:
    std::vector<std::string> names_;
    std::map<std::string, std::map<std::int64_t, double>> times_;
};

}  // namespace quorvane::bench
