#include "quorvane/diagnostics/engine/DiagnosticEngine.h"

#include <algorithm>
#include <cstddef>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

void DiagnosticEngine::report(DiagnosticId id, const Place& place,
                              std::initializer_list<std::string_view> arguments, Hint hint) {
    reportText(id, place, withArguments(diagnosticRule(id).message, arguments), std::move(hint));
}

void DiagnosticEngine::reportText(DiagnosticId id, const Place& place, std::string message,
                                  Hint hint) {
    const Severity severity = diagnosticRule(id).severity;
    hasErrors_ = hasErrors_ || severity == Severity::Error;
    std::optional<Fix> fix;
    if (hint.replacement) {
        fix = Fix{place, *std::move(hint.replacement)};
    }
    receiver_({id, severity, place, std::move(message), std::move(hint.text), std::move(fix)});
}

std::string withArguments(std::string_view pattern,
                          std::initializer_list<std::string_view> arguments) {
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool isPlace = pattern[i] == '{' && i + 2 < pattern.size() && pattern[i + 1] >= '0' &&
                             pattern[i + 1] <= '9' && pattern[i + 2] == '}';
        if (isPlace) {
            text += arguments.begin()[pattern[i + 1] - '0'];
            i += 2;
        } else {
            text += pattern[i];
        }
    }
    return text;
}

void sortByPlace(std::vector<Diagnostic>& diagnostics) {
    std::stable_sort(
        diagnostics.begin(), diagnostics.end(),
        [](const Diagnostic& a, const Diagnostic& b) { return a.place.offset < b.place.offset; });
}

}  // namespace quorvane
