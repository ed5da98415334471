#include "quorvane/diagnostics/engine/DiagnosticEngine.h"

#include <algorithm>

#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/engine/placeholders.h"

namespace quorvane {

void DiagnosticEngine::report(DiagnosticId id, const Place& place,
                              std::initializer_list<std::string_view> arguments, Hint hint) {
    reportText(id, place, withArguments(diagnosticRule(id).message, arguments), std::move(hint));
}

void DiagnosticEngine::reportText(DiagnosticId id, const Place& place, std::string message,
                                  Hint hint) {
    const Severity severity = diagnosticRule(id).severity;
    std::optional<Fix> fix;
    if (hint.replacement) {
        fix = Fix{place, *std::move(hint.replacement)};
    }
    receiver_({id, severity, place, std::move(message), std::move(hint.text), std::move(fix)});
}

void sortByPlace(std::vector<Diagnostic>& diagnostics) {
    std::stable_sort(
        diagnostics.begin(), diagnostics.end(),
        [](const Diagnostic& a, const Diagnostic& b) { return a.place.offset < b.place.offset; });
}

}  // namespace quorvane
