#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/DiagnosticExcerpt.h"
#include "data/Template.h"

namespace quorvane::cli {

/// The files of a template: its own and those of its partials.
class TemplateFiles {
public:
    /// The template must outlive the files. `path` is that of its file, `shownName` the name that
    /// it is reported under.
    TemplateFiles(const data::Template& source, const std::string& path,
                  const std::string& shownName);

    const std::string& nameOf(std::size_t index) const { return names_[index]; }
    /// The window is valid as long as this.
    FileWindow windowOf(std::size_t index) const;

private:
    const data::Template& source_;
    std::vector<std::string> names_;
    std::vector<std::string> bytes_;
};

}  // namespace quorvane::cli
