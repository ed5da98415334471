#include "cli/outputPaths.h"

#include <filesystem>
#include <map>
#include <optional>
#include <system_error>

#include "cli/UsageError.h"
#include "cli/process.h"
#include "cli/sourceFile.h"
#include "quorvane/base/platform/followLinks.h"
#include "quorvane/base/platform/throwUnlessAbsent.h"
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

fs::path canonicalPath(const fs::path& path) {
    std::error_code failure;
    fs::path whole = fs::weakly_canonical(path, failure);
    throwUnlessAbsent(failure);
    return failure ? path : whole;
}

/// What a path leads to, past all links.
struct Target {
    fs::path path;
    fs::file_status status;
};

Target targetOf(const std::string& name) {
    const fs::path path = pathFromUtf8(name);
    std::error_code failure;
    const fs::file_status own = fs::symlink_status(path, failure);
    throwUnlessAbsent(failure);
    if (!fs::is_symlink(own)) {
        return {path, own};
    }
    const fs::file_status status = fs::status(path, failure);
    throwUnlessAbsent(failure);
    return {followLinks(path), status};
}

/// One name for all ways in which a file can be named.
class Identities {
public:
    /// The file is no link.
    std::string of(const fs::path& file) {
        std::error_code failure;
        const fs::path whole = fs::absolute(currentFolder() / file, failure);
        throwUnlessAbsent(failure);
        const fs::path spelled = systemSpelling(failure ? file : withCanonicalFolder(whole));
        const std::u8string identity = spelled.generic_u8string();
        return {identity.begin(), identity.end()};
    }

private:
    // The system is asked once, not for each file.
    const fs::path& currentFolder() {
        if (!currentFolder_) {
            std::error_code failure;
            currentFolder_ = fs::current_path(failure);
            throwUnlessAbsent(failure);
        }
        return *currentFolder_;
    }

    // Many files are in few folders; each of these is looked up once.
    fs::path withCanonicalFolder(const fs::path& path) {
        const fs::path name = path.filename();
        if (name.empty() || name == "." || name == "..") {
            return canonicalPath(path);
        }
        const auto [folder, isNew] = folders_.try_emplace(path.parent_path());
        if (isNew) {
            folder->second = canonicalPath(folder->first);
        }
        return folder->second / name;
    }

    std::optional<fs::path> currentFolder_;
    std::map<fs::path, fs::path> folders_;
};

/// The files that are read; no document may take the place of one.
std::map<std::string, std::string> inputsOf(const RenderOptions& options, Identities& identities) {
    std::map<std::string, std::string> inputs;
    for (const std::string& description : options.descriptions) {
        if (description != standardStream) {
            inputs.emplace(identities.of(followLinks(pathFromUtf8(description))), description);
        }
    }
    if (options.styleSheet) {
        inputs.emplace(identities.of(followLinks(pathFromUtf8(*options.styleSheet))),
                       *options.styleSheet);
    }
    return inputs;
}

/// The description or the stylesheet whose file has another name, which no path shows.
const std::string* linkedInput(const std::string& output,
                               const std::map<std::string, std::string>& inputs) {
    std::error_code failure;
    const fs::path path = pathFromUtf8(output);
    const bool hasOtherNames = fs::hard_link_count(path, failure) > 1;
    throwUnlessAbsent(failure);
    if (failure || !hasOtherNames) {
        return nullptr;
    }
    for (const auto& [identity, input] : inputs) {
        const bool isSame = fs::equivalent(path, pathFromUtf8(input), failure);
        throwUnlessAbsent(failure);
        if (isSame) {
            return &input;
        }
    }
    return nullptr;
}

void requireNoSource(const std::string& description, const std::string& output) {
    if (const std::optional<CheckedLanguage> language = languageOfSourceFile(output)) {
        throw UsageError("the document of " + description + " would replace " + output +
                         ", which is a " +
                         (*language == CheckedLanguage::StyleSheet ? "stylesheet" : "description") +
                         "; name another file for the document, or move that one away");
    }
}

UsageError wouldReplaceInput(const std::string& description, const std::string& input) {
    return UsageError("the document of " + description + " would replace " + input);
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
    Identities identities;
    // Looked for only when there is a document that would replace something.
    std::optional<std::map<std::string, std::string>> inputs;
    std::map<std::string, std::string> descriptionsByOutput;
    std::vector<Assignment> assignments;
    for (const std::string& description : options.descriptions) {
        const std::string output = outputOf(description, options);
        const bool isStream = output == standardStream;
        const Target target = isStream ? Target() : targetOf(output);
        const std::string file = isStream ? output : identities.of(target.path);
        // Devices and pipes are written to, not replaced.
        if (fs::is_regular_file(target.status)) {
            if (!inputs) {
                inputs = inputsOf(options, identities);
            }
            if (const auto input = inputs->find(file); input != inputs->end()) {
                throw wouldReplaceInput(description, input->second);
            }
            if (const std::string* input = linkedInput(output, *inputs)) {
                throw wouldReplaceInput(description, *input);
            }
            if (!options.replacesSources) {
                requireNoSource(description, output);
            }
        }
        const auto [other, isNew] = descriptionsByOutput.emplace(file, description);
        if (!isNew) {
            throw bothWouldGoTo(output, other->second, description);
        }
        assignments.push_back({description, output});
    }
    return assignments;
}

}  // namespace quorvane::cli
