#include "quorvane/diagnostics/engine/DiagnosticEngine.h"

#include <algorithm>

#include "quorvane/base/text/placeholders.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

namespace {

Diagnostic diagnosticOf(DiagnosticId id, const Place& place, std::string message, Hint hint) {
    std::optional<Fix> fix;
    if (hint.replacement) {
        fix = Fix{place, *std::move(hint.replacement)};
    }
    return {id,
            diagnosticRule(id).severity,
            place,
            std::move(message),
            std::move(hint.text),
            std::move(fix)};
}

}  // namespace

void DiagnosticEngine::report(DiagnosticId id, const Place& place,
                              std::initializer_list<std::string_view> arguments, Hint hint) {
    reportText(id, place, withArguments(diagnosticRule(id).message, arguments), std::move(hint));
}

void DiagnosticEngine::reportMojibake(DiagnosticId id, const Place& place,
                                      std::initializer_list<std::string_view> arguments,
                                      Hint hint) {
    Diagnostic diagnostic = diagnosticOf(
        id, place, withArguments(diagnosticRule(id).message, arguments), std::move(hint));
    diagnostic.isMojibake = true;
    receiver_(std::move(diagnostic));
}

void DiagnosticEngine::reportText(DiagnosticId id, const Place& place, std::string message,
                                  Hint hint) {
    receiver_(diagnosticOf(id, place, std::move(message), std::move(hint)));
}

void sortByPlace(std::vector<Diagnostic>& diagnostics) {
    std::stable_sort(
        diagnostics.begin(), diagnostics.end(),
        [](const Diagnostic& a, const Diagnostic& b) { return a.place.offset < b.place.offset; });
}

}  // namespace quorvane
