#include "cli/TemplateData.h"

#include <string_view>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/localeOption.h"
#include "cli/process.h"
#include "data/json.h"
#include "data/jsonDiagnostic.h"
#include "data/letterCase.h"

namespace quorvane::cli {

namespace {

/// True for JSON Lines, where an object begins after another one has ended, and for CSV.
bool areRecords(const std::string& path, std::string_view bytes, const data::JsonError& error) {
    const std::string name = data::lowerCaseText(path);
    const bool isAnotherObject = error.position > 0 &&
                                 bytes.substr(error.position).starts_with('{') &&
                                 error.message.find("expected end of input") != std::string::npos;
    return isAnotherObject || name.ends_with(".csv") || name.ends_with(".tsv");
}

}  // namespace

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
    file.diagnostics.push_back(data::jsonDiagnostic(file.bytes, error));
    if (areRecords(path, file.bytes, error)) {
        file.diagnostics.back().hint =
            "render it with --each for a document of each record, or with --each and --join for "
            "one document of all";
    }
    return file;
}

}  // namespace quorvane::cli
