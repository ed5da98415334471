#include "quorvane/diagnostics/description/DescriptionCheck.h"

#include <utility>

#include "quorvane/diagnostics/description/DescriptionOutline.h"
#include "quorvane/diagnostics/description/TrialPlatform.h"
#include "quorvane/diagnostics/description/descriptionWarnings.h"
#include "quorvane/diagnostics/description/judgement.h"
#include "quorvane/diagnostics/description/misreadCharacters.h"
#include "quorvane/diagnostics/description/nodeErrors.h"
#include "quorvane/diagnostics/description/trialDocument.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/engine/ignoreComments.h"
#include "quorvane/driver/CRtfDriver.h"

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
    driver->setNotifyErrorHandler(
        [&](CRtfDriver&, const RtfError& error) { errors.push_back(error); });
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
