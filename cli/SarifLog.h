#pragma once

#include <cstddef>
#include <map>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <utility>
#include <vector>

#include "cli/DiagnosticExcerpt.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::cli {

/// The diagnostics of one run as a log in the Static Analysis Results Interchange Format (SARIF)
/// 2.1.0, with what code scanning of GitHub requires. Its rules are the table of diagnostics.
class SarifLog {
public:
    /// Adds a diagnostic about a file, named as on the command line, with the file's window.
    void add(const std::string& file, Diagnostic diagnostic, const FileWindow& window);

    /// The log, which ends with a line break. `isComplete` is true if all files could be read.
    std::string text(bool isComplete) const;

private:
    struct Result {
        std::string file;
        Diagnostic diagnostic;
        // Stays the same when the line moves.
        std::string fingerprint;
        TextEncoding encoding = TextEncoding::Windows1252;
    };

    nlohmann::ordered_json artifactsInUtf8() const;

    std::vector<Result> results_;
    // How often a line's content has had the same diagnostic, by file and hash.
    std::map<std::pair<std::string, std::string>, int> occurrences_;
};

}  // namespace quorvane::cli
