#include "quorvane/compose/renderRead.h"

#include <optional>
#include <string>
#include <utility>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/compose/composing.h"
#include "quorvane/compose/readWholeFile.h"
#include "quorvane/compose/textChecks.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/engine/withoutIgnored.h"
#include "quorvane/driver/picturesBeside.h"

namespace quorvane {

namespace {

PictureSource picturesOf(const RenderOptions& options, Platform& platform) {
    return options.pictures || options.path.empty() ? options.pictures
                                                    : picturesBeside(options.path, platform);
}

std::string styleSheetOf(const RenderOptions& options, Platform& platform) {
    return options.styleSheetFile.empty() ? options.styleSheet
                                          : readWholeText(options.styleSheetFile, platform);
}

/// What would break the document is an error where it is checked.
void raiseCorruptions(std::vector<Diagnostic>& diagnostics) {
    for (Diagnostic& diagnostic : diagnostics) {
        if (diagnosticRule(diagnostic.id).corruptsDocument) {
            diagnostic.severity = Severity::Error;
        }
    }
}

/// An error that the driver reports and the check does not find.
Error errorOfDriver(const RtfError& error, const std::string& file) {
    const Error composed = composedError(error);
    return Error({.message = composed.message(),
                  .identifier = composed.identifier(),
                  .file = file,
                  .line = error.line});
}

/// Builds the document of a driver. Returns the first error.
std::optional<RtfError> parse(CRtfDriver& driver, const DescriptionReading& reading,
                              const RenderOptions& options, const PictureSource& pictures) {
    std::optional<RtfError> failure;
    driver.setErroneousInput(options.check);
    driver.setUnicodeTexts(true);
    driver.setReadsExtended(true);
    driver.setPictureSource(pictures);
    driver.setNotifyErrorHandler([&failure](CRtfDriver&, const RtfError& error) {
        if (!failure) {
            failure = error;
        }
    });
    reading.parse(driver);
    return failure;
}

}  // namespace

Rendering renderRead(std::string_view text, const DescriptionReading& reading,
                     const RenderOptions& options, Platform& platform) {
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    Rendering rendering{.document = Document(driver->RtfObject(), platform)};
    if (!options.styleSheetFile.empty()) {
        rendering.document.setStyleSheetFile(options.styleSheetFile);
    } else if (!options.styleSheet.empty()) {
        rendering.document.setStyleSheet(options.styleSheet);
    }
    const std::optional<RtfError> failure =
        composing([&] { return parse(*driver, reading, options, picturesOf(options, platform)); });
    if (options.check || failure) {
        rendering.diagnostics = checkRead(text, reading, options, platform);
        if (options.check) {
            raiseCorruptions(rendering.diagnostics);
        }
    }
    if (haveError(rendering.diagnostics)) {
        throw contentError(options.path, std::move(rendering.diagnostics));
    }
    if (failure) {
        throw errorOfDriver(*failure, options.path);
    }
    return rendering;
}

std::vector<Diagnostic> checkRead(std::string_view text, const DescriptionReading& reading,
                                  const RenderOptions& options, Platform& platform) {
    std::optional<KnownStyles> styles;
    if (std::string styleSheet = styleSheetOf(options, platform); !styleSheet.empty()) {
        styles.emplace(styleSheet, TextEncoding::Utf8);
    }
    return composing([&] {
        return withoutIgnored(
            reading.check(styles ? &*styles : nullptr, picturesOf(options, platform)), text,
            CheckedLanguage::Description);
    });
}

}  // namespace quorvane
