#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// Gathers the diagnostics about one file by their causes: those that say the same, hint included,
/// have one cause.
class RepeatedDiagnostics {
public:
    struct Filed {
        /// Number of the cause: 0, 1 and so on in the order in which causes came first.
        std::size_t cause;
        /// True for the first diagnostic of its cause.
        bool isFirst;
    };

    Filed add(const Diagnostic& diagnostic);

    /// How many causes there are.
    std::size_t count() const { return causes_.size(); }

    /// How often a cause came again, and on which lines: "and 3 more like this: lines 4, 9 and 12".
    /// Of more than ten lines the first ten. Empty for a cause that came once.
    std::string repetitionText(std::size_t cause) const;

private:
    struct Cause {
        std::int64_t repetitions = 0;
        // The first lines on which it came again, one more than are named.
        std::vector<std::int64_t> lines;
    };

    std::vector<Cause> causes_;
    std::unordered_map<std::string, std::size_t> numbers_;
};

}  // namespace quorvane
