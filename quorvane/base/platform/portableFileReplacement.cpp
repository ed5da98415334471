#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <utility>

#include "quorvane/base/platform/fileReplacement.h"
#include "quorvane/base/platform/followLinks.h"
#include "quorvane/base/platform/portableDescriptorFile.h"
#include "quorvane/base/platform/portablePath.h"
#include "quorvane/base/platform/portableSystemError.h"

namespace quorvane {

namespace {

/// A new file beside another.
class UnfinishedFile {
public:
    UnfinishedFile(const std::string& target, UnfinishedFileWatch& watch) : watch_(watch) {
        const std::string prefix =
            folderOf(target) + ".quorvane-" + std::to_string(::getpid()) + "-";
        int descriptor = -1;
        const EndHeld held(watch_);
        for (int number = 1; descriptor == -1; ++number) {
            own_.path = prefix + std::to_string(number) + ".tmp";
            descriptor = openDescriptor(own_.path.native(), O_WRONLY | O_CREAT | O_EXCL);
            if (descriptor == -1 && errno == ENOENT) {
                raiseSystemError(RunTimeError::PathNotFound, ENOENT);
            }
            if (descriptor == -1 && errno != EEXIST) {
                raiseSystemError(errno);
            }
        }
        file_.emplace(descriptor);
        watch_.begin(own_);
    }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile() {
        if (isThere_) {
            const EndHeld held(watch_);
            ::unlink(own_.path.c_str());
            watch_.end(own_);
        }
    }

    DescriptorFile& file() noexcept { return *file_; }

    void moveTo(const std::string& target) {
        const EndHeld held(watch_);
        if (::rename(own_.path.c_str(), target.c_str()) == -1) {
            raiseSystemError(errno);
        }
        isThere_ = false;
        watch_.end(own_);
    }

private:
    UnfinishedFileWatch& watch_;
    UnfinishedPath own_;
    bool isThere_ = true;
    std::optional<DescriptorFile> file_;
};

class ReplacementFile : public OutputFile {
public:
    ReplacementFile(std::string target, std::optional<mode_t> permissions,
                    UnfinishedFileWatch& watch)
        : target_(std::move(target)), unfinished_(target_, watch) {
        if (permissions && ::fchmod(unfinished_.file().descriptor(), *permissions) == -1) {
            raiseSystemError(errno);
        }
    }

    void write(std::string_view bytes) override { unfinished_.file().write(bytes); }

    void close() override {
        unfinished_.file().close();
        unfinished_.moveTo(target_);
    }

private:
    std::string target_;
    UnfinishedFile unfinished_;
};

}  // namespace

std::unique_ptr<OutputFile> openReplacement(const std::string& path, UnfinishedFileWatch& watch) {
    if (path.empty()) {
        // There would be a file beside it, which could not take its name.
        raiseSystemError(RunTimeError::PathNotFound, ENOENT);
    }
    struct stat own {};
    if (::lstat(path.c_str(), &own) == -1 && errno == ENOENT) {
        return std::make_unique<ReplacementFile>(path, std::nullopt, watch);
    }
    const std::optional<struct stat> status = statusOf(path);
    if (!status && errno != ENOENT) {
        raiseSystemError(errno);
    }
    if (!status) {
        return std::make_unique<ReplacementFile>(followLinks(path).native(), std::nullopt, watch);
    }
    if (S_ISDIR(status->st_mode)) {
        raiseSystemError(EISDIR);
    }
    if (!S_ISREG(status->st_mode)) {
        const int descriptor = openDescriptor(path, O_WRONLY);
        if (descriptor == -1) {
            raiseSystemError(errno);
        }
        return std::make_unique<DescriptorFile>(descriptor);
    }
    if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == -1) {
        raiseSystemError(errno);
    }
    constexpr mode_t permissionBits = 07777;
    return std::make_unique<ReplacementFile>(followLinks(path).native(),
                                             status->st_mode & permissionBits, watch);
}

}  // namespace quorvane
