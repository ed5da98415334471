#include "quorvane/diagnostics/rtf/RtfCheck.h"

#include <utility>

#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/rtf/RtfChecker.h"

namespace quorvane {

RtfCheck::RtfCheck(DiagnosticReceiver receiver)
    : checker_(std::make_unique<RtfChecker>(std::move(receiver))) {}

RtfCheck::~RtfCheck() = default;

void RtfCheck::feed(std::string_view bytes) {
    checker_->feed(bytes);
}

void RtfCheck::finish() {
    checker_->finish();
}

std::vector<Diagnostic> checkRtf(std::string_view bytes) {
    std::vector<Diagnostic> diagnostics;
    RtfCheck check([&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });
    check.feed(bytes);
    check.finish();
    sortByPlace(diagnostics);
    return diagnostics;
}

}  // namespace quorvane
