#include "data/jsonDiagnostic.h"

#include <utility>

#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"

namespace quorvane::data {

Diagnostic jsonDiagnostic(std::string_view text, const JsonError& error) {
    Diagnostic result;
    DiagnosticEngine engine([&](Diagnostic diagnostic) { result = std::move(diagnostic); });
    engine.reportText(
        DiagnosticId::WrongJson,
        SourceText(text, TextEncoding::Utf8).place(error.position, error.position + 1),
        error.message + ".");
    return result;
}

}  // namespace quorvane::data
