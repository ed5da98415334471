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
#include <utility>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/platform/errnoToRunTimeError.h"
#include "quorvane/base/text/fileNamePattern.h"

namespace quorvane {

namespace {

constexpr int productNameResource = 8700;
constexpr std::size_t bufferForUnknownSize = std::size_t{64} * 1024;

/// An open file's descriptor, closed when nobody did.
class Descriptor {
public:
    explicit Descriptor(int number) noexcept : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(other.release()) {}
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() {
        if (number_ != -1) {
            ::close(number_);
        }
    }

    int number() const noexcept { return number_; }
    int release() noexcept { return std::exchange(number_, -1); }

private:
    int number_;
};

/// Makes a system call again for as long as a signal interrupts it.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

/// What a path leads to, past all links; nothing when it leads nowhere.
std::optional<struct stat> statusOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == -1) {
        return std::nullopt;
    }
    return status;
}

/// The folder part of a path with its "/", or the current folder.
std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

/// The system would read such a path only up to the NUL, and so find another file than the one that
/// is asked for.
bool holdsNul(std::string_view path) {
    return path.find('\0') != std::string_view::npos;
}

void requireNoNul(std::string_view path) {
    if (holdsNul(path)) {
        raise(RunTimeError::DeviceIoError);
    }
}

[[noreturn]] void raiseForPath(int code, const std::string& path) {
    const RunTimeError error = errnoToRunTimeError(code);
    if (error == RunTimeError::FileNotFound && !statusOf(folderOf(path))) {
        raise(RunTimeError::PathNotFound);
    }
    raise(error);
}

/// What the system says of a path that leads to no file. Of any other failure it is not known, and
/// a file that may be there is not one to write over.
bool meansAbsence(int code) {
    return code == ENOENT || code == ENOTDIR || code == EACCES || code == ENAMETOOLONG ||
           code == ELOOP;
}

int openFile(const std::string& path, int flags) {
    constexpr mode_t readAndWriteForAll = 0666;
    return uninterrupted(
        [&] { return ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, readAndWriteForAll); });
}

/// A file written without a buffer of its own: what is written comes in large blocks.
class PortableOutputFile : public OutputFile {
public:
    /// Opens the file, which is made where there is none.
    explicit PortableOutputFile(const std::string& path)
        : newPath_(path), file_(open(path, newPath_)) {
        if (file_.number() == -1) {
            const RunTimeError error = errnoToRunTimeError(errno);
            // The file itself would have been made: what is missing is its folder.
            raise(error == RunTimeError::FileNotFound ? RunTimeError::PathNotFound : error);
        }
    }
    PortableOutputFile(const PortableOutputFile&) = delete;
    PortableOutputFile& operator=(const PortableOutputFile&) = delete;
    ~PortableOutputFile() override {
        if (!newPath_.empty()) {
            ::unlink(newPath_.c_str());
        }
    }

    void write(std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t written =
                uninterrupted([&] { return ::write(file_.number(), bytes.data(), bytes.size()); });
            if (written == -1) {
                raise(errnoToRunTimeError(errno));
            }
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    void close() override {
        // Not tried again: the descriptor is gone even when a signal interrupts the call.
        if (::close(file_.release()) == -1 && errno != EINTR) {
            raise(errnoToRunTimeError(errno));
        }
        newPath_.clear();
    }

private:
    static int open(const std::string& path, std::string& newPath) noexcept {
        const int file = openFile(path, O_WRONLY | O_CREAT | O_EXCL);
        if (file != -1 || errno != EEXIST) {
            return file;
        }
        newPath.clear();
        return openFile(path, O_WRONLY | O_CREAT);
    }

    // Of a file that was made; empty for one that was there.
    std::string newPath_;
    Descriptor file_;
};

std::string readToEnd(int file, std::size_t expectedSize) {
    // One byte more than expected: a file that has grown is not taken for whole. A pipe, and a file
    // that the system makes up as it is read, tell no size.
    std::string bytes(expectedSize > 0 ? expectedSize + 1 : bufferForUnknownSize, '\0');
    std::size_t length = 0;
    while (true) {
        const ssize_t count = uninterrupted(
            [&] { return ::read(file, bytes.data() + length, bytes.size() - length); });
        if (count == -1) {
            raise(errnoToRunTimeError(errno));
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

/// Path of the running program; empty where the system does not tell it.
std::string programPath() {
    std::error_code failure;
    return std::filesystem::read_symlink("/proc/self/exe", failure).native();
}

/// A system that offers files and a standard error stream, and nothing else that is asked for.
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
        requireNoNul(path);
        const std::optional<struct stat> status = statusOf(path);
        // Opening a device can do something, and reading one need not come to an end.
        if (status &&
            (S_ISDIR(status->st_mode) || S_ISCHR(status->st_mode) || S_ISBLK(status->st_mode))) {
            raise(RunTimeError::PathFileAccessError);
        }
        const Descriptor file(openFile(path, O_RDONLY));
        if (file.number() == -1) {
            raiseForPath(errno, path);
        }
        return readToEnd(file.number(), status ? static_cast<std::size_t>(status->st_size) : 0);
    }

    void deleteFile(const std::string& path) override {
        requireNoNul(path);
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
        requireNoNul(path);
        return std::make_unique<PortableOutputFile>(path);
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
