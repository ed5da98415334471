#include "quorvane/diagnostics/text/NestedTables.h"

#include <algorithm>
#include <string>

#include "quorvane/diagnostics/rtf/RtfCheck.h"

namespace quorvane {

namespace {

bool isAboutRows(DiagnosticId id) {
    return id == DiagnosticId::CellCount || id == DiagnosticId::UnevenRow ||
           id == DiagnosticId::UnendedRow || id == DiagnosticId::RowWithoutCells;
}

/// True when the rows of the tables within a text are whole.
bool hasWholeRows(std::string_view text) {
    const std::vector<Diagnostic> diagnostics =
        checkRtf("{\\rtf1\\trowd\\cellx9 " + std::string(text) + "\\cell\\row}");
    return std::none_of(diagnostics.begin(), diagnostics.end(),
                        [](const Diagnostic& diagnostic) { return isAboutRows(diagnostic.id); });
}

}  // namespace

bool NestedTables::have(RtfRole role) {
    return role == RtfRole::NestedCell || role == RtfRole::NestedRow || role == RtfRole::Level;
}

void NestedTables::add(RtfRole role, const RtfControl& control, std::string_view shown) {
    controls_.push_back(shown);
    if (role == RtfRole::Level) {
        isInside_ = control.number.value_or(0) > 1;
    }
}

void NestedTables::report(std::string_view text, TextReporter& reporter) const {
    if (controls_.empty() || (!isInside_ && hasWholeRows(text))) {
        return;
    }
    for (const std::string_view control : controls_) {
        reporter.report(
            DiagnosticId::TableControl, control, {control},
            "a nested table needs complete rows, with a definition for each \\nestcell, "
            "and \\itap1 after them");
    }
}

}  // namespace quorvane
