#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

#include "quorvane/diagnostics/rtf/RtfCheck.h"

namespace quorvane::cli {

/// A folder that is there as long as the object lives, with everything in it. In the end every
/// document in it that the test did not write itself must be a sound RTF file.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "quorvane-XXXXXX").string();
        if (!::mkdtemp(pattern.data())) {
            throw std::runtime_error("cannot make the folder " + pattern);
        }
        path_ = pattern;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code failure;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(path_, failure)) {
            expectSound(entry);
        }
        std::filesystem::remove_all(path_, failure);
    }

    /// From now on documents in it may be broken.
    void acceptBrokenDocuments() { acceptsBrokenDocuments_ = true; }

    const std::filesystem::path& path() const { return path_; }

    /// Path of a file of the folder.
    std::string operator/(std::string_view name) const { return (path_ / name).string(); }

    /// Writes a file of the folder and returns its path.
    std::string write(std::string_view name, std::string_view bytes) const {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
        written_.insert(path_ / name);
        return *this / name;
    }

    /// All bytes of a file of the folder.
    std::string read(std::string_view name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        if (!file) {
            throw std::runtime_error("cannot read " + *this / name);
        }
        return {std::istreambuf_iterator<char>(file), {}};
    }

    bool has(std::string_view name) const {
        return std::filesystem::exists(std::filesystem::symlink_status(path_ / name));
    }

    /// Names of all that is in the folder, hidden files too.
    std::set<std::string> names() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

private:
    void expectSound(const std::filesystem::directory_entry& entry) const {
        std::error_code failure;
        if (acceptsBrokenDocuments_ || !entry.is_regular_file(failure) ||
            written_.contains(entry.path())) {
            return;
        }
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        if (bytes.starts_with("{\\rtf")) {
            for (const Diagnostic& diagnostic : checkRtf(bytes)) {
                ADD_FAILURE() << entry.path() << ":" << diagnostic.place.line << ": "
                              << diagnostic.message;
            }
        }
    }

    std::filesystem::path path_;
    bool acceptsBrokenDocuments_ = false;
    mutable std::set<std::filesystem::path> written_;
};

}  // namespace quorvane::cli
