#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "cli/RenderOptions.h"

namespace quorvane::cli {

/// One name for all ways in which a file can be named.
class FileIdentities {
public:
    /// The file is no link.
    std::string of(const std::filesystem::path& file);

private:
    const std::filesystem::path& currentFolder();
    std::filesystem::path withCanonicalFolder(const std::filesystem::path& path);

    std::optional<std::filesystem::path> currentFolder_;
    // Many files are in few folders; each of these is looked up once.
    std::map<std::filesystem::path, std::filesystem::path> folders_;
};

/// Keeps what is written from taking the place of what is read.
class OutputGuard {
public:
    /// The options must outlive the guard.
    explicit OutputGuard(const RenderOptions& options) : options_(options) {}

    /// Throws a `UsageError` when the file is one of those that the options name to be read or,
    /// unless they allow that, any other description, stylesheet or partial. `what` would be
    /// written to it. Returns one name for all ways in which the file can be named. Raises an error
    /// when it cannot be seen what stands there.
    std::string require(const std::string& output, const std::string& what);

private:
    void requireNoInput(const std::string& output, const std::string& file,
                        const std::string& what);
    void findInputs();

    const RenderOptions& options_;
    FileIdentities identities_;
    // By their names; looked for only when there is a file that would be replaced.
    std::optional<std::map<std::string, std::string>> inputs_;
};

}  // namespace quorvane::cli
