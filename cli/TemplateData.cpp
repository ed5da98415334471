#include "cli/TemplateData.h"

#include <utility>

#include "cli/RenderOptions.h"
#include "cli/localeOption.h"
#include "cli/process.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"

namespace quorvane::cli {

Diagnostic wrongJson(const std::string& bytes, const data::JsonError& error) {
    std::vector<Diagnostic> diagnostics;
    DiagnosticEngine engine(
        [&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });
    engine.reportText(
        DiagnosticId::WrongJson,
        SourceText(bytes, TextEncoding::Utf8).place(error.position, error.position + 1),
        error.message + ".");
    return diagnostics.front();
}

TemplateDataFile readTemplateData(const std::string& path,
                                  const std::optional<std::string>& localeName,
                                  Platform& platform) {
    data::Locale locale = localeOf(localeName);
    const bool isStream = path == standardStream;
    TemplateDataFile file{.shownName = isStream ? "<stdin>" : path,
                          .bytes = isStream ? readStandardInput() : platform.readFile(path)};
    data::JsonError error;
    if (std::optional<data::DataValue> record = data::readJson(file.bytes, error)) {
        file.data.emplace(TemplateData{*std::move(record), std::move(locale)});
        return file;
    }
    file.diagnostics.push_back(wrongJson(file.bytes, error));
    return file;
}

}  // namespace quorvane::cli
