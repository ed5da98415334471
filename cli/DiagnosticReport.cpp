#include "cli/DiagnosticReport.h"

#include <cstddef>

namespace quorvane::cli {

namespace {

// At most this many causes of one file are held back; then counting starts again.
constexpr std::size_t maxCausesHeld = 10'000;

}  // namespace

void DiagnosticReport::add(const std::string& file, const Diagnostic& diagnostic,
                           const FileWindow& window) {
    if (file != file_ || causes_.count() == maxCausesHeld) {
        end();
        file_ = file;
    }
    if (causes_.add(diagnostic).isFirst) {
        texts_.push_back(
            diagnosticText(file, diagnostic, excerptAt(diagnostic.place, window), colors_));
    }
}

void DiagnosticReport::end() {
    for (std::size_t i = 0; i < texts_.size(); ++i) {
        write_(texts_[i]);
        if (const std::string repeated = causes_.repetitionText(i); !repeated.empty()) {
            write_("    (" + repeated + ")\n");
        }
    }
    texts_.clear();
    causes_ = {};
}

}  // namespace quorvane::cli
