#pragma once

#include <string>
#include <utility>
#include <vector>

#include "quorvane/diagnostics/Diagnostic.h"

namespace quorvane::cli {

/// The findings of one run as a log in the Static Analysis Results Interchange Format (SARIF)
/// 2.1.0. Its rules are the table of diagnostics.
class SarifLog {
public:
    /// Adds a finding about a file, named as on the command line.
    void add(const std::string& file, quorvane::Diagnostic finding);

    /// The log, which ends with a line break. `isComplete` tells whether all files could be read.
    std::string text(bool isComplete) const;

private:
    std::vector<std::pair<std::string, quorvane::Diagnostic>> findings_;
};

}  // namespace quorvane::cli
