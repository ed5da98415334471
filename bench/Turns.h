#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "bench/timedRun.h"

namespace quorvane::bench {

/// A median, and the quartiles below and above it.
struct Median {
    double value;
    double low;
    double high;
};

/// Makes the command of a run. It is given a folder in which nothing was written before, since to
/// replace or remove many files is work that others still pay for afterwards.
using MakeCommand = std::function<Command(const std::string& freshFolder)>;

/// Two programs that were run by turns. A ratio is that of a turn, so whatever else the machine did
/// meanwhile concerns both.
class Turns {
public:
    /// Runs them in fresh folders of the folder.
    Turns(const std::filesystem::path& folder, int times, const MakeCommand& ours,
          const MakeCommand& theirs);

    Median ratio(double Run::*measure) const;
    double ours(double Run::*measure) const;
    double theirs(double Run::*measure) const;

    /// "1.29 in processor time (1.27 to 1.31; 0.65 and 0.50 ms)" and the same on the clock.
    std::string text() const;

private:
    std::vector<Run> ours_;
    std::vector<Run> theirs_;
};

}  // namespace quorvane::bench
