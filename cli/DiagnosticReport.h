#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/DiagnosticExcerpt.h"
#include "cli/diagnosticText.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/RepeatedDiagnostics.h"

namespace quorvane::cli {

/// The diagnostics about files as text for a person. In a file, those of one cause are shown once,
/// with a line "(and 3 more like this: lines 4, 9 and 12)".
class DiagnosticReport {
public:
    using Sink = std::function<void(std::string_view text)>;

    DiagnosticReport(Colors colors, Sink write) : colors_(colors), write_(std::move(write)) {}

    /// Adds a diagnostic about a file under its shown name. The diagnostics about one file follow
    /// each other.
    void add(const std::string& file, const Diagnostic& diagnostic, const FileWindow& window);

    /// Writes what is held back about the last file.
    void end();

private:
    Colors colors_;
    Sink write_;
    std::string file_;
    RepeatedDiagnostics causes_;
    // One for each cause.
    std::vector<std::string> texts_;
};

}  // namespace quorvane::cli
