#include "bench/SizeTable.h"

#include <cstdio>
#include <cstdlib>
#include <set>

namespace quorvane::bench {

namespace {

std::string fixed(double value, int digits) {
    char text[32];
    static_cast<void>(std::snprintf(text, sizeof text, "%.*f", digits, value));
    return text;
}

}  // namespace

void SizeTable::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        const auto elements = run.counters.find("elements");
        if (run.error_occurred || run.run_type == Run::RT_Aggregate ||
            elements == run.counters.end()) {
            continue;
        }
        const std::string& name = run.run_name.function_name;
        const auto size = std::int64_t{std::strtoll(run.run_name.args.c_str(), nullptr, 10)};
        if (times_.find(name) == times_.end()) {
            names_.push_back(name);
        }
        const double time = run.GetAdjustedCPUTime() * 1e9 /
                            benchmark::GetTimeUnitMultiplier(run.time_unit) /
                            static_cast<double>(elements->second);
        double& best = times_[name][size];
        best = best == 0 || time < best ? time : best;
    }
}

double SizeTable::nanoseconds(const std::string& name, std::int64_t size) const {
    const auto times = times_.find(name);
    if (times == times_.end()) {
        return 0;
    }
    const auto time = times->second.find(size);
    return time == times->second.end() ? 0 : time->second;
}

std::string SizeTable::text() const {
    std::set<std::int64_t> sizes;
    for (const auto& [name, times] : times_) {
        for (const auto& [size, time] : times) {
            sizes.insert(size);
        }
    }
    std::string table = "| ns per element |";
    std::string line = "|---|";
    for (const std::int64_t size : sizes) {
        table += " " + std::to_string(size) + " |";
        line += "---:|";
    }
    table += " growth |\n" + line + "---:|\n";
    for (const std::string& name : names_) {
        const auto& times = times_.at(name);
        table += "| " + name + " |";
        for (const std::int64_t size : sizes) {
            const auto time = times.find(size);
            table += time == times.end() ? " |" : " " + fixed(time->second, 1) + " |";
        }
        // The smallest size is mostly what a call costs in itself.
        const auto first = times.size() > 2 ? std::next(times.begin()) : times.begin();
        table += times.size() > 1 ? " " + fixed(times.rbegin()->second / first->second, 2) + " |\n"
                                  : " |\n";
    }
    return table;
}

}  // namespace quorvane::bench
