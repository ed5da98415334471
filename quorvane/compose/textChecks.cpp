#include "quorvane/compose/textChecks.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "quorvane/compose/composing.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/diagnostics/textFile.h"

namespace quorvane {

void requireSoundStyleSheet(std::string_view text, const std::string& file) {
    std::vector<Diagnostic> diagnostics = findUnreadable(text);
    if (diagnostics.empty()) {
        diagnostics = checkStyleSheet(text, TextEncoding::Utf8);
    }
    if (haveError(diagnostics)) {
        throw contentError(file, std::move(diagnostics));
    }
}

std::vector<Diagnostic> findUnreadable(std::string_view text) {
    std::vector<Diagnostic> diagnostics;
    if (std::optional<Diagnostic> unreadable = findUnreadableText(text, TextEncoding::Utf8)) {
        diagnostics.push_back(*std::move(unreadable));
    }
    return diagnostics;
}

bool haveError(const std::vector<Diagnostic>& diagnostics) {
    return std::any_of(diagnostics.begin(), diagnostics.end(), [](const Diagnostic& diagnostic) {
        return diagnostic.severity == Severity::Error;
    });
}

}  // namespace quorvane
