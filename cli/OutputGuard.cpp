#include "cli/OutputGuard.h"

#include <system_error>
#include <utility>

#include "cli/UsageError.h"
#include "cli/process.h"
#include "cli/sourceFile.h"
#include "data/Template.h"
#include "quorvane/base/platform/followLinks.h"
#include "quorvane/base/platform/throwUnlessAbsent.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/text/textCase.h"

namespace quorvane::cli {

namespace {

namespace fs = std::filesystem;

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

/// The input whose file has another name, which no path shows.
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

/// What the file is if it is a source; empty otherwise.
std::string sourceKindOf(const std::string& file) {
    // The beginning of a partial can be any line.
    if (lowerCase(utf8FromPath(pathFromUtf8(file).extension())) == data::partialExtension) {
        return "partial";
    }
    const std::optional<CheckedLanguage> language = languageOfSourceFile(file);
    if (!language) {
        return {};
    }
    return *language == CheckedLanguage::StyleSheet ? "stylesheet" : "description";
}

void requireNoSource(const std::string& output, const std::string& what) {
    if (const std::string kind = sourceKindOf(output); !kind.empty()) {
        throw UsageError(what + " would replace " + output + ", which is a " + kind +
                         "; name another file, or move that one away");
    }
}

UsageError wouldReplace(const std::string& what, const std::string& input) {
    return UsageError(what + " would replace " + input);
}

}  // namespace

std::string FileIdentities::of(const fs::path& file) {
    std::error_code failure;
    const fs::path whole = fs::absolute(currentFolder() / file, failure);
    throwUnlessAbsent(failure);
    const fs::path spelled = systemSpelling(failure ? file : withCanonicalFolder(whole));
    const std::u8string identity = spelled.generic_u8string();
    return {identity.begin(), identity.end()};
}

// The system is asked once, not for each file.
const fs::path& FileIdentities::currentFolder() {
    if (!currentFolder_) {
        std::error_code failure;
        currentFolder_ = fs::current_path(failure);
        throwUnlessAbsent(failure);
    }
    return *currentFolder_;
}

fs::path FileIdentities::withCanonicalFolder(const fs::path& path) {
    const fs::path name = path.filename();
    if (name.empty() || name == "." || name == "..") {
        return canonicalPath(path);
    }
    constexpr std::size_t mostFolders = 10'000;
    if (folders_.size() > mostFolders) {
        folders_.clear();
    }
    const auto [folder, isNew] = folders_.try_emplace(path.parent_path());
    if (isNew) {
        folder->second = canonicalPath(folder->first);
    }
    return folder->second / name;
}

std::string OutputGuard::require(const std::string& output, const std::string& what) {
    if (output == standardStream) {
        return output;
    }
    const Target target = targetOf(output);
    std::string file = identities_.of(target.path);
    // Devices and pipes are written to, not replaced.
    if (fs::is_regular_file(target.status)) {
        requireNoInput(output, file, what);
        if (!options_.replacesSources) {
            requireNoSource(output, what);
        }
    }
    return file;
}

void OutputGuard::requireNoInput(const std::string& output, const std::string& file,
                                 const std::string& what) {
    if (!inputs_) {
        findInputs();
    }
    if (const auto input = inputs_->find(file); input != inputs_->end()) {
        throw wouldReplace(what, input->second);
    }
    if (const std::string* input = linkedInput(output, *inputs_)) {
        throw wouldReplace(what, *input);
    }
}

void OutputGuard::findInputs() {
    inputs_.emplace();
    const auto add = [&](const std::string& input) {
        if (input != standardStream) {
            inputs_->emplace(identities_.of(followLinks(pathFromUtf8(input))), input);
        }
    };
    for (const std::string& description : options_.descriptions) {
        add(description);
    }
    for (const std::optional<std::string>& input :
         {options_.styleSheet, options_.data, options_.schema}) {
        if (input) {
            add(*input);
        }
    }
}

}  // namespace quorvane::cli
