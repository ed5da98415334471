#pragma once

#include <quorvane.h>

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::capi {

/// The diagnostics of a job, as C sees them.
class DiagnosticList {
public:
    void clear() noexcept;
    /// Appends diagnostics about a file.
    void add(const std::string& file, const std::vector<Diagnostic>& diagnostics);
    /// Appends one with an identifier of its own, a literal.
    void add(const std::string& file, const char* identifier, const Diagnostic& diagnostic);

    std::size_t size() const noexcept { return seen_.size(); }
    const quorvane_diagnostic& operator[](std::size_t index) const { return seen_[index]; }

private:
    struct Texts {
        std::string file;
        Diagnostic diagnostic;
    };

    // What is seen points into the texts, which do not move.
    std::deque<Texts> texts_;
    std::vector<quorvane_diagnostic> seen_;
};

}  // namespace quorvane::capi
