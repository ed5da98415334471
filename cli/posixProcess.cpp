#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "cli/StandardOutputFile.h"
#include "cli/UnfinishedFileList.h"
#include "cli/process.h"
#include "quorvane/base/platform/portableDescriptorFile.h"
#include "quorvane/base/platform/portableSystemError.h"

namespace quorvane::cli {

namespace {

constexpr std::array endingSignals = {SIGHUP, SIGINT, SIGQUIT, SIGTERM};

// The files that a signal takes along.
constinit UnfinishedFileList unfinishedFiles;

// How many threads hold the end off; a signal that ends the process adds `isEnding`.
constinit std::atomic<unsigned> holders = 0;
constexpr unsigned isEnding = 1U << 31U;
constinit std::atomic<int> endingSignal = 0;
static_assert(std::atomic<unsigned>::is_always_lock_free && std::atomic<int>::is_always_lock_free);

/// Called where nobody holds the end off; from then on nobody can.
void removeUnfinishedFilesAndEnd() {
    unfinishedFiles.forEach([](const std::filesystem::path& path) { ::unlink(path.c_str()); });
    const int number = endingSignal;
    static_cast<void>(::signal(number, SIG_DFL));
    static_cast<void>(::raise(number));
}

/// Ends the process, or leaves this to the last thread that holds the end off, which may be the one
/// that was interrupted.
extern "C" void endOnSignal(int number) {
    int none = 0;
    if (endingSignal.compare_exchange_strong(none, number) && holders.fetch_or(isEnding) == 0) {
        removeUnfinishedFilesAndEnd();
    }
}

/// Holds the end of the process off while a file is made, moved or removed.
class SignalWatch : public UnfinishedFileWatch {
public:
    void hold() noexcept override {
        if ((holders.fetch_add(1) & isEnding) != 0) {
            resume();
            waitForTheEnd();
        }
    }
    void resume() noexcept override {
        if (holders.fetch_sub(1) == isEnding + 1) {
            removeUnfinishedFilesAndEnd();
        }
    }
    void begin(UnfinishedPath& file) noexcept override { unfinishedFiles.add(file); }
    void end(UnfinishedPath& file) noexcept override { unfinishedFiles.remove(file); }

private:
    [[noreturn]] static void waitForTheEnd() noexcept {
        while (true) {
            ::pause();
        }
    }
};

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
    action.sa_handler = endOnSignal;
    // A thread that goes on for a moment does so as if nothing had happened.
    action.sa_flags = SA_RESTART;
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

std::size_t readStandardInput(std::span<char> block) {
    const ssize_t count = whenReady(
        STDIN_FILENO, POLLIN, [block] { return ::read(STDIN_FILENO, block.data(), block.size()); });
    if (count == -1) {
        raiseSystemError(errno);
    }
    return static_cast<std::size_t>(count);
}

std::FILE* openTemporaryFile(const std::filesystem::path& folder) {
    std::string name = (folder / "quorvane-XXXXXX").native();
    const int descriptor = ::mkostemp(name.data(), O_CLOEXEC);
    if (descriptor == -1) {
        return nullptr;
    }
    ::unlink(name.c_str());
    std::FILE* const file = ::fdopen(descriptor, "w+b");
    if (!file) {
        ::close(descriptor);
    }
    return file;
}

std::unique_ptr<OutputFile> openStandardOutput() {
    // A second descriptor: closing it shows whether all was written, and the stream stays open.
    const int descriptor = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    if (descriptor == -1) {
        raiseSystemError(errno);
    }
    return std::make_unique<StandardOutputFile>(std::make_unique<DescriptorFile>(descriptor),
                                                [](int code) { return code == EPIPE; });
}

UnfinishedFileWatch& unfinishedFileWatch() {
    static SignalWatch watch;
    return watch;
}

std::filesystem::path systemSpelling(const std::filesystem::path& path) {
    return path;
}

}  // namespace quorvane::cli
