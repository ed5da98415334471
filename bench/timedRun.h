#pragma once

#include <string>
#include <vector>

namespace quorvane::bench {

/// A program with its arguments.
using Command = std::vector<std::string>;

/// What a process cost.
struct Run {
    /// Milliseconds of the processor, the system's share included.
    double work;
    /// Milliseconds on the clock.
    double elapsed;
    double peakMegabytes;
};

/// Runs a program to its end, with its standard output thrown away. Throws when it cannot run or
/// fails.
Run timedRun(const Command& command);

/// Whether a program runs without failing.
bool succeeds(const Command& command);

}  // namespace quorvane::bench
