#include <fcntl.h>
#include <limits.h>
#include <poll.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <optional>
#include <system_error>
#include <utility>

#include "cli/followLinks.h"
#include "cli/process.h"
#include "quorvane/base/platform/errnoToRunTimeError.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::cli {

namespace {

constexpr std::array endingSignals = {SIGHUP, SIGINT, SIGQUIT, SIGTERM};

// The file that a signal takes along. Set and read while the ending signals are held back, or by
// their handler.
std::array<char, PATH_MAX> unfinishedFile{};

[[noreturn]] void raiseSystemError(RunTimeError number, int code) {
    RtfError error(number);
    error.cause = std::make_shared<RtfError>(code, std::generic_category().message(code));
    raise(std::move(error));
}

[[noreturn]] void raiseSystemError(int code) {
    raiseSystemError(errnoToRunTimeError(code), code);
}

/// Holds the ending signals back while it lives.
class EndingSignalsHeld {
public:
    EndingSignalsHeld() noexcept {
        sigset_t held;
        ::sigemptyset(&held);
        for (const int number : endingSignals) {
            ::sigaddset(&held, number);
        }
        ::pthread_sigmask(SIG_BLOCK, &held, &before_);
    }
    EndingSignalsHeld(const EndingSignalsHeld&) = delete;
    EndingSignalsHeld& operator=(const EndingSignalsHeld&) = delete;
    ~EndingSignalsHeld() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

private:
    sigset_t before_{};
};

extern "C" void removeUnfinishedFileAndEnd(int number) {
    if (unfinishedFile.front() != '\0') {
        ::unlink(unfinishedFile.data());
    }
    static_cast<void>(::signal(number, SIG_DFL));
    static_cast<void>(::raise(number));
}

void ignoreSignal(int number) {
    struct sigaction action {};
    action.sa_handler = SIG_IGN;
    ::sigaction(number, &action, nullptr);
}

void handleEndingSignal(int number) {
    struct sigaction action {};
    ::sigaction(number, nullptr, &action);
    // Who started the process may want it to go on, as nohup does.
    if (action.sa_handler == SIG_IGN) {
        return;
    }
    action = {};
    action.sa_handler = removeUnfinishedFileAndEnd;
    ::sigaction(number, &action, nullptr);
}

/// A closed standard stream stays one that can neither be read nor written.
void occupyStandardStreams() {
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        const bool isClosed = ::fcntl(number, F_GETFD) == -1 && errno == EBADF;
        if (isClosed) {
            ::open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

/// Makes a system call on a descriptor again for as long as a signal interrupts it, or the other
/// side of a pipe that does not block is not ready.
template <class Call>
ssize_t whenReady(int descriptor, short event, Call call) {
    while (true) {
        const ssize_t result = call();
        if (result != -1 || (errno != EINTR && errno != EAGAIN)) {
            return result;
        }
        if (errno == EAGAIN) {
            pollfd waiting{descriptor, event, 0};
            ::poll(&waiting, 1, -1);
        }
    }
}

int openUninterrupted(const std::string& path, int flags, mode_t mode = 0) {
    int descriptor = -1;
    do {
        descriptor = ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode);
    } while (descriptor == -1 && errno == EINTR);
    return descriptor;
}

/// Writes to a descriptor, which it closes.
class DescriptorFile : public OutputFile {
public:
    explicit DescriptorFile(int descriptor) noexcept : descriptor_(descriptor) {}
    DescriptorFile(const DescriptorFile&) = delete;
    DescriptorFile& operator=(const DescriptorFile&) = delete;
    ~DescriptorFile() override {
        if (descriptor_ != -1) {
            ::close(descriptor_);
        }
    }

    int descriptor() const noexcept { return descriptor_; }

    void write(std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t written = whenReady(descriptor_, POLLOUT, [&] {
                return ::write(descriptor_, bytes.data(), bytes.size());
            });
            if (written == -1) {
                raiseSystemError(errno);
            }
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    void close() override {
        // Not tried again: the descriptor is gone even when a signal interrupts the call.
        if (::close(std::exchange(descriptor_, -1)) == -1 && errno != EINTR) {
            raiseSystemError(errno);
        }
    }

private:
    int descriptor_;
};

/// Standard output, by a descriptor of its own.
class StandardOutputFile : public OutputFile {
public:
    explicit StandardOutputFile(int descriptor) noexcept : file_(descriptor) {}

    void write(std::string_view bytes) override {
        try {
            file_.write(bytes);
        } catch (const RtfError& error) {
            if (error.cause && error.cause->number == EPIPE) {
                throw ClosedPipe();
            }
            throw;
        }
    }

    void close() override { file_.close(); }

private:
    DescriptorFile file_;
};

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

/// A new file beside another, taken along by a signal that ends the process.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const std::string& target) {
        constexpr mode_t readAndWriteForAll = 0666;
        const std::string prefix =
            folderOf(target) + ".quorvane-" + std::to_string(::getpid()) + "-";
        int descriptor = -1;
        const EndingSignalsHeld held;
        for (int number = 1; descriptor == -1; ++number) {
            path_ = prefix + std::to_string(number) + ".tmp";
            descriptor = openUninterrupted(path_, O_WRONLY | O_CREAT | O_EXCL, readAndWriteForAll);
            if (descriptor == -1 && errno == ENOENT) {
                raiseSystemError(RunTimeError::PathNotFound, ENOENT);
            }
            if (descriptor == -1 && errno != EEXIST) {
                raiseSystemError(errno);
            }
        }
        file_.emplace(descriptor);
        path_.copy(unfinishedFile.data(), unfinishedFile.size() - 1);
    }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile() {
        if (!path_.empty()) {
            const EndingSignalsHeld held;
            ::unlink(path_.c_str());
            unfinishedFile.fill('\0');
        }
    }

    DescriptorFile& file() noexcept { return *file_; }

    void moveTo(const std::string& target) {
        const EndingSignalsHeld held;
        if (::rename(path_.c_str(), target.c_str()) == -1) {
            raiseSystemError(errno);
        }
        path_.clear();
        unfinishedFile.fill('\0');
    }

private:
    std::string path_;
    std::optional<DescriptorFile> file_;
};

class ReplacementFile : public OutputFile {
public:
    ReplacementFile(std::string target, std::optional<mode_t> permissions)
        : target_(std::move(target)), unfinished_(target_) {
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

/// What a path leads to, past all links; nothing when nothing is there.
std::optional<struct stat> statusOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) {
        return status;
    }
    if (errno != ENOENT) {
        raiseSystemError(errno);
    }
    return std::nullopt;
}

}  // namespace

void prepareProcess() {
    occupyStandardStreams();
    ignoreSignal(SIGPIPE);
    ignoreSignal(SIGXFSZ);
    for (const int number : endingSignals) {
        handleEndingSignal(number);
    }
}

int standardErrorColumns() {
    constexpr int usualColumns = 80;
    winsize size{};
    if (::isatty(STDERR_FILENO) != 1) {
        return 0;
    }
    const bool isKnown = ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : usualColumns;
}

bool standardOutputIsTerminal() {
    return ::isatty(STDOUT_FILENO) == 1;
}

void writeToStandardError(std::string_view text) noexcept {
    while (!text.empty()) {
        const ssize_t written = whenReady(STDERR_FILENO, POLLOUT, [text] {
            return ::write(STDERR_FILENO, text.data(), text.size());
        });
        if (written == -1) {
            return;
        }
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

std::string readStandardInput() {
    std::string bytes;
    std::array<char, std::size_t{64} * 1024> block;
    while (true) {
        const ssize_t count = whenReady(STDIN_FILENO, POLLIN, [&block] {
            return ::read(STDIN_FILENO, block.data(), block.size());
        });
        if (count == -1) {
            raiseSystemError(errno);
        }
        if (count == 0) {
            return bytes;
        }
        bytes.append(block.data(), static_cast<std::size_t>(count));
    }
}

std::unique_ptr<OutputFile> openStandardOutput() {
    // A second descriptor: closing it shows whether all was written, and the stream stays open.
    const int descriptor = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    if (descriptor == -1) {
        raiseSystemError(errno);
    }
    return std::make_unique<StandardOutputFile>(descriptor);
}

std::unique_ptr<OutputFile> openReplacement(const std::string& path) {
    struct stat own {};
    if (::lstat(path.c_str(), &own) == -1 && errno == ENOENT) {
        return std::make_unique<ReplacementFile>(path, std::nullopt);
    }
    const std::optional<struct stat> status = statusOf(path);
    if (!status) {
        return std::make_unique<ReplacementFile>(followLinks(path).native(), std::nullopt);
    }
    if (S_ISDIR(status->st_mode)) {
        raiseSystemError(EISDIR);
    }
    if (!S_ISREG(status->st_mode)) {
        const int descriptor = openUninterrupted(path, O_WRONLY);
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
                                             status->st_mode & permissionBits);
}

std::filesystem::path systemSpelling(const std::filesystem::path& path) {
    return path;
}

}  // namespace quorvane::cli
