#include "cli/TemplateFiles.h"

#include <filesystem>

#include "quorvane/base/platform/utf8Path.h"

namespace quorvane::cli {

TemplateFiles::TemplateFiles(const data::Template& source, const std::string& path,
                             const std::string& shownName)
    : source_(source) {
    const std::filesystem::path folder = pathFromUtf8(path).parent_path();
    for (const data::TemplateSource& each : source.sources) {
        names_.push_back(each.name.empty() ? shownName
                                           : utf8FromPath(folder / pathFromUtf8(each.name)));
        bytes_.push_back(encodedText(each.text, each.encoding));
    }
}

FileWindow TemplateFiles::windowOf(std::size_t index) const {
    return cli::windowOf(bytes_[index], source_.sources[index].encoding);
}

}  // namespace quorvane::cli
