#include "bench/Turns.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>

namespace quorvane::bench {

namespace {

namespace fs = std::filesystem;

std::string freshFolder(const fs::path& folder) {
    static int count = 0;
    const fs::path fresh = folder / ("turn" + std::to_string(++count));
    fs::create_directory(fresh);
    return fresh.string();
}

Median medianOf(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const auto at = [&](std::size_t quarters) {
        return values[(values.size() - 1) * quarters / 4];
    };
    return {at(2), at(1), at(3)};
}

double medianOf(const std::vector<Run>& runs, double Run::*measure) {
    std::vector<double> values(runs.size());
    std::transform(runs.begin(), runs.end(), values.begin(),
                   [measure](const Run& run) { return run.*measure; });
    return medianOf(std::move(values)).value;
}

}  // namespace

Turns::Turns(const fs::path& folder, int times, const MakeCommand& ours,
             const MakeCommand& theirs) {
    for (int i = 0; i < times; ++i) {
        ours_.push_back(timedRun(ours(freshFolder(folder))));
        theirs_.push_back(timedRun(theirs(freshFolder(folder))));
    }
}

Median Turns::ratio(double Run::*measure) const {
    std::vector<double> ratios;
    for (std::size_t i = 0; i < ours_.size(); ++i) {
        ratios.push_back(ours_[i].*measure / theirs_[i].*measure);
    }
    return medianOf(std::move(ratios));
}

double Turns::ours(double Run::*measure) const {
    return medianOf(ours_, measure);
}

double Turns::theirs(double Run::*measure) const {
    return medianOf(theirs_, measure);
}

std::string Turns::text() const {
    const auto part = [this](double Run::*measure, const char* unit) {
        const Median median = ratio(measure);
        char text[160];
        static_cast<void>(std::snprintf(
            text, sizeof text, "%.2f %s (%.2f to %.2f; %.2f and %.2f ms)", median.value, unit,
            median.low, median.high, ours(measure), theirs(measure)));
        return std::string(text);
    };
    return part(&Run::work, "in processor time") + ", " + part(&Run::elapsed, "on the clock");
}

}  // namespace quorvane::bench
