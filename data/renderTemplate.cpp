#include "data/renderTemplate.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "data/TemplateFilling.h"
#include "data/json.h"
#include "data/jsonDiagnostic.h"
#include "data/refuse.h"
#include "data/templateCheck.h"
#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/compose/composing.h"
#include "quorvane/compose/renderRead.h"
#include "quorvane/compose/textChecks.h"
#include "quorvane/driver/parseFilled.h"

namespace quorvane::data {

namespace {

DataValue recordOf(std::string_view json) {
    JsonError error;
    if (std::optional<DataValue> record = readJson(json, error)) {
        return *std::move(record);
    }
    throw contentError({}, {jsonDiagnostic(json, error)});
}

std::string refusePartial(const std::string&) {
    refuse("a text has no folder with partials; write its lines here");
}

void requireNone(const Template& source, const std::vector<TemplateError>& errors,
                 const std::string& file) {
    if (errors.empty()) {
        return;
    }
    std::vector<Diagnostic> diagnostics;
    for (TemplateDiagnostic& each : templateDiagnostics(source, errors)) {
        diagnostics.push_back(std::move(each.diagnostic));
    }
    throw contentError(file, std::move(diagnostics));
}

}  // namespace

Rendering renderTemplate(std::string_view description, std::string_view json, const Locale& locale,
                         const RenderOptions& options, Platform& platform) {
    const std::string_view text = afterByteOrderMark(description);
    if (std::vector<Diagnostic> unreadable = findUnreadable(text); !unreadable.empty()) {
        throw contentError(options.path, std::move(unreadable));
    }
    const DataValue record = recordOf(json);
    std::vector<TemplateError> errors;
    const Template source =
        compileTemplate(std::string(text), TextEncoding::Utf8, refusePartial, errors);
    requireNone(source, errors, options.path);
    TemplateFilling filling(source, locale);
    const std::vector<SourceLine>& lines = filling.fill(record, errors);
    requireNone(source, errors, options.path);
    const DescriptionReading reading{
        .parse = [&](CRtfDriver& driver) { parseFilled(driver, lines); },
        .check =
            [&](KnownStyles* styles, const PictureSource& pictures) {
                return checkFilled(source, {lines}, styles, pictures);
            },
    };
    return renderRead(text, reading, options, platform);
}

}  // namespace quorvane::data
