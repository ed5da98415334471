#include "quorvane/diagnostics/description/judgement.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "quorvane/diagnostics/engine/DiagnosticEngine.h"

namespace quorvane {

namespace {

bool isError(const Diagnostic& finding) {
    return finding.severity == Severity::Error;
}

/// The line of an error; the first one for an error of no line.
Place placeOfLine(const SourceText& source, int number) {
    const auto index = static_cast<std::size_t>(std::max(number, 1)) - 1;
    const SourceText::Line line = source.lines().at(std::min(index, source.lines().size() - 1));
    return source.place(line.start, line.end);
}

}  // namespace

std::vector<Diagnostic> judgedFindings(std::vector<Diagnostic> findings,
                                       const std::vector<RtfError>& errors, DiagnosticId otherwise,
                                       const SourceText& source) {
    if (errors.empty()) {
        std::erase_if(findings, isError);
    } else if (std::none_of(findings.begin(), findings.end(), isError)) {
        DiagnosticEngine engine(
            [&](Diagnostic finding) { findings.push_back(std::move(finding)); });
        for (const RtfError& error : errors) {
            engine.report(otherwise, placeOfLine(source, error.line), {error.description});
        }
        sortByPlace(findings);
    }
    return findings;
}

}  // namespace quorvane
