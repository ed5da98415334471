#include "cli/FindingReport.h"

#include <cstddef>

namespace quorvane::cli {

namespace {

// So many causes of one file are held back; what comes later is counted anew.
constexpr std::size_t mostCausesHeld = 10'000;

}  // namespace

void FindingReport::add(const std::string& file, const quorvane::Diagnostic& finding,
                        const FileWindow& window) {
    if (file != file_ || causes_.count() == mostCausesHeld) {
        end();
        file_ = file;
    }
    if (causes_.add(finding).isFirst) {
        texts_.push_back(findingText(file, finding, excerptAt(finding.place, window), colors_));
    }
}

void FindingReport::end() {
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
