#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/CommandPlatform.h"
#include "cli/DescriptionText.h"
#include "cli/RenderReport.h"
#include "data/Template.h"
#include "data/TemplateError.h"

namespace quorvane::cli {

/// A template with its partials, ready to be filled with any number of records.
struct LoadedTemplate {
    std::string path;
    DescriptionText description;
    data::Template source;
};

/// Reads the partials of a template and compiles it. Nothing for one that is wrong, which is
/// reported.
std::optional<LoadedTemplate> loadTemplate(const std::string& path, DescriptionText description,
                                           CommandPlatform& platform, RenderReport& report);

/// Reports what is wrong with a template, or with the data for it.
void reportErrors(const LoadedTemplate& loaded, const std::vector<data::TemplateError>& errors,
                  RenderReport& report);

}  // namespace quorvane::cli
