#include "cli/TemplateData.h"

#include <utility>

#include "cli/RenderOptions.h"
#include "cli/localeOption.h"
#include "cli/process.h"
#include "data/json.h"
#include "data/jsonDiagnostic.h"

namespace quorvane::cli {

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
    return file;
}

}  // namespace quorvane::cli
