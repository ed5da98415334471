#include "quorvane/diagnostics/DescriptionCheck.h"

#include <utility>

#include "quorvane/diagnostics/DescriptionOutline.h"
#include "quorvane/diagnostics/DiagnosticEngine.h"
#include "quorvane/diagnostics/SourceText.h"
#include "quorvane/diagnostics/TrialPlatform.h"
#include "quorvane/diagnostics/descriptionWarnings.h"
#include "quorvane/diagnostics/ignoreComments.h"
#include "quorvane/diagnostics/judgement.h"
#include "quorvane/diagnostics/misreadCharacters.h"
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
    findWrongIgnoreComments(source, CheckedLanguage::Description, engine);
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

}  // namespace

std::vector<Diagnostic> findingsWithoutDriver(std::string_view text, KnownStyles* styles) {
    std::vector<Diagnostic> findings;
    const SourceText source(text);
    DiagnosticEngine engine([&](Diagnostic finding) { findings.push_back(std::move(finding)); });
    findAll(source, styles, engine);
    sortByPlace(findings);
    keepFirstMisreadCharacters(findings);
    return findings;
}

std::vector<Diagnostic> checkDescription(std::string_view text, KnownStyles* styles) {
    return judgedFindings(findingsWithoutDriver(text, styles), driverErrorsOf(text),
                          DiagnosticId::Rejected, SourceText(text));
}

}  // namespace quorvane
