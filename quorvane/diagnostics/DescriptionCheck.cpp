#include "quorvane/diagnostics/DescriptionCheck.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "quorvane/diagnostics/DescriptionOutline.h"
#include "quorvane/diagnostics/DiagnosticEngine.h"
#include "quorvane/diagnostics/SourceText.h"
#include "quorvane/diagnostics/TrialPlatform.h"
#include "quorvane/diagnostics/descriptionWarnings.h"
#include "quorvane/diagnostics/nodeErrors.h"
#include "quorvane/diagnostics/trialDocument.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/support/currentError.h"

namespace quorvane {

namespace {

void findAll(const SourceText& source, KnownStyles* styles, DiagnosticEngine& engine) {
    const Vocabulary vocabulary;
    DescriptionOutline outline = readOutline(source, vocabulary, engine);
    findNodeErrors(outline, source, vocabulary, engine);
    TrialPlatform platform;
    const Ref<CRtfDoc> document =
        buildTrialDocument(outline, source, vocabulary, styles, platform, engine);
    findDescriptionWarnings(outline, document.get(), styles, source, engine);
}

/// The errors that a driver that checks reports.
std::vector<RtfError> driverErrorsOf(std::string_view text) {
    TrialPlatform platform;
    std::vector<RtfError> errors;
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    driver->setErroneousInput(true);
    driver->setNotifyErrorHandler([&](CRtfDriver&) { errors.push_back(*currentError()); });
    driver->ParseFromMemmory(text);
    driver->setNotifyErrorHandler({});
    return errors;
}

Place placeOfLine(const SourceText& source, int number) {
    const auto index = static_cast<std::size_t>(std::max(number, 1)) - 1;
    const SourceText::Line line = source.lines().at(std::min(index, source.lines().size() - 1));
    return source.place(line.start, line.end);
}

}  // namespace

std::vector<Diagnostic> findingsWithoutDriver(std::string_view text, KnownStyles* styles) {
    std::vector<Diagnostic> findings;
    const SourceText source(text);
    DiagnosticEngine engine([&](Diagnostic finding) { findings.push_back(std::move(finding)); });
    findAll(source, styles, engine);
    sortByPlace(findings);
    return findings;
}

std::vector<Diagnostic> checkDescription(std::string_view text, KnownStyles* styles) {
    std::vector<Diagnostic> findings = findingsWithoutDriver(text, styles);
    const std::vector<RtfError> errors = driverErrorsOf(text);
    const auto isError = [](const Diagnostic& finding) {
        return finding.severity == Severity::Error;
    };
    if (errors.empty()) {
        std::erase_if(findings, isError);
    } else if (std::none_of(findings.begin(), findings.end(), isError)) {
        const SourceText source(text);
        DiagnosticEngine engine(
            [&](Diagnostic finding) { findings.push_back(std::move(finding)); });
        for (const RtfError& error : errors) {
            engine.report(DiagnosticId::Rejected, placeOfLine(source, error.line),
                          {error.description});
        }
        sortByPlace(findings);
    }
    return findings;
}

}  // namespace quorvane
