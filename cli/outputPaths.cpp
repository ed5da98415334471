#include "cli/outputPaths.h"

#include <filesystem>
#include <map>

#include "cli/OutputGuard.h"
#include "cli/UsageError.h"
#include "quorvane/base/platform/utf8Path.h"

namespace quorvane::cli {

namespace {

namespace fs = std::filesystem;

std::string outputBeside(const std::string& description) {
    if (description == standardStream) {
        return standardStream;
    }
    return utf8FromPath(pathFromUtf8(description).replace_extension("rtf"));
}

std::string outputIn(const std::string& folder, const std::string& description) {
    const fs::path name = description == standardStream ? fs::path("stdin.rtf")
                                                        : pathFromUtf8(description).filename();
    return utf8FromPath(pathFromUtf8(folder) / fs::path(name).replace_extension("rtf"));
}

std::string outputOf(const std::string& description, const RenderOptions& options) {
    if (options.output) {
        return *options.output;
    }
    return options.outputFolder ? outputIn(*options.outputFolder, description)
                                : outputBeside(description);
}

UsageError bothWouldGoTo(const std::string& output, const std::string& first,
                         const std::string& second) {
    return UsageError("the documents of " + first + " and " + second +
                      " would both be written to " + output);
}

}  // namespace

std::vector<Assignment> assignOutputs(const RenderOptions& options) {
    if (options.output && options.descriptions.size() > 1) {
        throw UsageError("--output takes one description; use --output-dir for several");
    }
    if (options.output && options.output->empty()) {
        throw UsageError("--output needs the name of a file");
    }
    OutputGuard guard(options);
    std::map<std::string, std::string> descriptionsByOutput;
    std::vector<Assignment> assignments;
    for (const std::string& description : options.descriptions) {
        const std::string output = outputOf(description, options);
        const std::string file = guard.require(output, "the document of " + description);
        const auto [other, isNew] = descriptionsByOutput.emplace(file, description);
        if (!isNew) {
            throw bothWouldGoTo(output, other->second, description);
        }
        assignments.push_back({description, output});
    }
    return assignments;
}

}  // namespace quorvane::cli
