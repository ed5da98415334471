#include "cli/LoadedTemplate.h"

#include <utility>

#include "cli/TemplateFiles.h"
#include "data/partialsBeside.h"
#include "data/templateCheck.h"

namespace quorvane::cli {

std::optional<LoadedTemplate> loadTemplate(const std::string& path, DescriptionText description,
                                           CommandPlatform& platform, RenderReport& report) {
    std::vector<data::TemplateError> errors;
    data::Template source = data::compileTemplate(description.text, description.encoding,
                                                  data::partialsBeside(path, platform), errors);
    LoadedTemplate loaded{path, std::move(description), std::move(source)};
    if (!errors.empty()) {
        reportErrors(loaded, errors, report);
        return std::nullopt;
    }
    return loaded;
}

void reportErrors(const LoadedTemplate& loaded, const std::vector<data::TemplateError>& errors,
                  RenderReport& report) {
    const TemplateFiles files(loaded.source, loaded.path, shownDescription(loaded.path));
    for (const auto& [index, diagnostic] : data::templateDiagnostics(loaded.source, errors)) {
        report.refuse(files.nameOf(index), files.windowOf(index), {diagnostic});
    }
}

}  // namespace quorvane::cli
