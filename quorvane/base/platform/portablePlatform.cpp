#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/platform/errnoToRunTimeError.h"
#include "quorvane/base/platform/fileReplacement.h"
#include "quorvane/base/platform/portableDescriptorFile.h"
#include "quorvane/base/platform/portablePath.h"
#include "quorvane/base/platform/portableSystemError.h"
#include "quorvane/base/text/fileNamePattern.h"

namespace quorvane {

namespace {

constexpr int productNameResource = 8700;
constexpr std::size_t bufferForUnknownSize = std::size_t{64} * 1024;

/// The system would read such a path only up to the NUL, and so find another file than the one
/// meant.
bool holdsNul(std::string_view path) {
    return path.find('\0') != std::string_view::npos;
}

void throwUnlessUsable(std::string_view path) {
    if (holdsNul(path)) {
        raise(RunTimeError::DeviceIoError);
    }
}

[[noreturn]] void raiseForPath(int code, const std::string& path) {
    if (errnoToRunTimeError(code) == RunTimeError::FileNotFound && !statusOf(folderOf(path))) {
        raiseSystemError(RunTimeError::PathNotFound, code);
    }
    raiseSystemError(code);
}

/// True for the errors that mean that a path leads to no file. After any other one a file may be
/// there, which must not be written over.
bool meansAbsence(int code) {
    return code == ENOENT || code == ENOTDIR || code == EACCES || code == ENAMETOOLONG ||
           code == ELOOP;
}

/// A file that is made, or written from its first byte where it is there.
class PortableOutputFile : public OutputFile {
public:
    explicit PortableOutputFile(const std::string& path)
        : newPath_(path), file_(open(path, newPath_)) {
        if (file_.descriptor() == -1) {
            const int code = errno;
            // The file itself would have been made: what is missing is its folder.
            if (errnoToRunTimeError(code) == RunTimeError::FileNotFound) {
                raiseSystemError(RunTimeError::PathNotFound, code);
            }
            raiseSystemError(code);
        }
    }
    PortableOutputFile(const PortableOutputFile&) = delete;
    PortableOutputFile& operator=(const PortableOutputFile&) = delete;
    ~PortableOutputFile() override {
        if (!newPath_.empty()) {
            ::unlink(newPath_.c_str());
        }
    }

    void write(std::string_view bytes) override { file_.write(bytes); }

    void close() override {
        file_.close();
        newPath_.clear();
    }

private:
    static int open(const std::string& path, std::string& newPath) noexcept {
        const int file = openDescriptor(path, O_WRONLY | O_CREAT | O_EXCL);
        if (file != -1 || errno != EEXIST) {
            return file;
        }
        newPath.clear();
        return openDescriptor(path, O_WRONLY | O_CREAT);
    }

    // Of a file that was made; empty for one that was there.
    std::string newPath_;
    DescriptorFile file_;
};

std::string readToEnd(int file, std::size_t expectedSize) {
    // One byte more than expected: a file that has grown is not taken for whole. A pipe, and a file
    // that the system makes up as it is read, have no size.
    std::string bytes(expectedSize > 0 ? expectedSize + 1 : bufferForUnknownSize, '\0');
    std::size_t length = 0;
    while (true) {
        const ssize_t count = whenReady(file, POLLIN, [&] {
            return ::read(file, bytes.data() + length, bytes.size() - length);
        });
        if (count == -1) {
            raiseSystemError(errno);
        }
        if (count == 0) {
            bytes.resize(length);
            return bytes;
        }
        length += static_cast<std::size_t>(count);
        if (length == expectedSize) {
            bytes.resize(length);
            return bytes;
        }
        if (length == bytes.size()) {
            bytes.resize(2 * length);
        }
    }
}

bool anyFileMatches(const std::string& folder, std::string_view pattern) {
    std::error_code failure;
    std::filesystem::directory_iterator entry(folder, failure);
    while (!failure && entry != std::filesystem::directory_iterator()) {
        if (matchesFileNamePattern(pattern, entry->path().filename().native())) {
            return true;
        }
        entry.increment(failure);
    }
    return false;
}

/// Path of the running program; empty where the system does not say.
std::string programPath() {
    std::error_code failure;
    return std::filesystem::read_symlink("/proc/self/exe", failure).native();
}

/// A system with files and standard error only.
class PortablePlatform : public Platform {
public:
    bool fileExists(const std::string& path) override {
        struct stat status {};
        if (holdsNul(path)) {
            return false;
        }
        if (::lstat(path.c_str(), &status) == 0 || !meansAbsence(errno)) {
            return true;
        }
        const std::string folder = folderOf(path);
        const std::string_view name = std::string_view(path).substr(path.rfind('/') + 1);
        return hasWildcard(name) && anyFileMatches(folder, name);
    }

    std::string readFile(const std::string& path) override {
        throwUnlessUsable(path);
        const std::optional<struct stat> status = statusOf(path);
        // Opening a device can do something, and reading one need not come to an end.
        if (status && (S_ISCHR(status->st_mode) || S_ISBLK(status->st_mode))) {
            raise(RunTimeError::PathFileAccessError);
        }
        if (status && S_ISDIR(status->st_mode)) {
            raiseSystemError(EISDIR);
        }
        const DescriptorFile file(openDescriptor(path, O_RDONLY));
        if (file.descriptor() == -1) {
            raiseForPath(errno, path);
        }
        return readToEnd(file.descriptor(), status ? static_cast<std::size_t>(status->st_size) : 0);
    }

    void deleteFile(const std::string& path) override {
        throwUnlessUsable(path);
        // A device or a pipe is not ours to remove, not even by the link that leads to it.
        const std::optional<struct stat> status = statusOf(path);
        if (status && !S_ISREG(status->st_mode)) {
            raise(RunTimeError::PathFileAccessError);
        }
        if (::unlink(path.c_str()) == -1) {
            raiseForPath(errno, path);
        }
    }

    std::unique_ptr<OutputFile> createFile(const std::string& path) override {
        throwUnlessUsable(path);
        return std::make_unique<PortableOutputFile>(path);
    }

    std::unique_ptr<OutputFile> replaceFile(const std::string& path) override {
        throwUnlessUsable(path);
        return openReplacement(path);
    }

    /// Does nothing: there is no clipboard.
    void setClipboardText(const std::string&) override {}

    /// Writes title and text to standard error.
    void showMessageBox(const std::string& text, int, const std::string& title) override {
        std::string lines = title + "\n" + text + "\n";
        std::erase(lines, '\r');
        static_cast<void>(std::fwrite(lines.data(), 1, lines.size(), stderr));
    }

    std::optional<std::string> resourceString(int id) override {
        return id == productNameResource ? std::optional<std::string>("Quorvane") : std::nullopt;
    }

    /// Always error 429: there are no components here.
    std::unique_ptr<ErrorReporter> createReporter(const std::string&) override {
        raise(RunTimeError::CannotCreateObject);
    }

    std::string programFolder() override {
        const std::string path = programPath();
        return path.substr(0, path.find_last_of('/'));
    }

    std::string programFileName() override {
        const std::string path = programPath();
        return path.substr(path.rfind('/') + 1);
    }

    ProgramVersion programVersion() override {
        return {QUORVANE_VERSION_MAJOR, QUORVANE_VERSION_MINOR, QUORVANE_VERSION_PATCH};
    }
};

}  // namespace

Platform& systemPlatform() {
    static PortablePlatform platform;
    return platform;
}

}  // namespace quorvane
