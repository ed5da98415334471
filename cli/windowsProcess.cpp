#include <windows.h>

#include <array>
#include <cstddef>
#include <optional>
#include <utility>

#include "cli/process.h"
#include "quorvane/base/platform/windowsErrorToRunTimeError.h"
#include "quorvane/base/text/utf16.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::cli {

namespace {

constexpr DWORD understandsControlSequences = 0x0004;

constexpr DWORD largestTransfer = 1U << 30;
constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::wstring wide(std::string_view text) {
    return utf16FromUtf8<wchar_t>(text);
}

/// What the system calls an error, without the line break at its end.
std::string messageOf(DWORD code) {
    std::array<wchar_t, 512> text{};
    std::wstring_view message(
        text.data(),
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
                       text.data(), static_cast<DWORD>(text.size()), nullptr));
    while (!message.empty() && (message.back() <= L' ' || message.back() == L'.')) {
        message.remove_suffix(1);
    }
    return message.empty() ? "error " + std::to_string(code) : utf8FromUtf16(message);
}

[[noreturn]] void raiseSystemError(RunTimeError number, DWORD code) {
    RtfError error(number);
    error.cause = std::make_shared<RtfError>(static_cast<std::int32_t>(code), messageOf(code));
    raise(std::move(error));
}

[[noreturn]] void raiseSystemError(DWORD code) {
    raiseSystemError(windowsErrorToRunTimeError(code), code);
}

// The file that an end of the process takes along. Guarded by its lock, which the end keeps: what
// is unfinished then stays so.
std::wstring unfinishedFile;
SRWLOCK unfinishedFileLock = SRWLOCK_INIT;

class UnfinishedFileLocked {
public:
    UnfinishedFileLocked() noexcept { AcquireSRWLockExclusive(&unfinishedFileLock); }
    UnfinishedFileLocked(const UnfinishedFileLocked&) = delete;
    UnfinishedFileLocked& operator=(const UnfinishedFileLocked&) = delete;
    ~UnfinishedFileLocked() { ReleaseSRWLockExclusive(&unfinishedFileLock); }
};

BOOL WINAPI removeUnfinishedFile(DWORD) {
    AcquireSRWLockExclusive(&unfinishedFileLock);
    if (!unfinishedFile.empty()) {
        DeleteFileW(unfinishedFile.c_str());
    }
    return FALSE;  // the process ends as it would have
}

/// Writes to a handle, which it closes.
class HandleFile : public OutputFile {
public:
    explicit HandleFile(HANDLE handle) noexcept : handle_(handle) {}
    HandleFile(const HandleFile&) = delete;
    HandleFile& operator=(const HandleFile&) = delete;
    ~HandleFile() override {
        if (handle_ != INVALID_HANDLE_VALUE) {
            CloseHandle(handle_);
        }
    }

    void write(std::string_view bytes) override {
        while (!bytes.empty()) {
            const auto length =
                static_cast<DWORD>(bytes.size() < largestTransfer ? bytes.size() : largestTransfer);
            DWORD written = 0;
            if (!WriteFile(handle_, bytes.data(), length, &written, nullptr)) {
                raiseSystemError(GetLastError());
            }
            bytes.remove_prefix(written);
        }
    }

    void close() override {
        if (!CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE))) {
            raiseSystemError(GetLastError());
        }
    }

private:
    HANDLE handle_;
};

/// Standard output, by a handle of its own.
class StandardOutputFile : public OutputFile {
public:
    explicit StandardOutputFile(HANDLE handle) noexcept : file_(handle) {}

    void write(std::string_view bytes) override {
        try {
            file_.write(bytes);
        } catch (const RtfError& error) {
            const DWORD code = error.cause ? static_cast<DWORD>(error.cause->number) : NO_ERROR;
            if (code == ERROR_BROKEN_PIPE || code == ERROR_NO_DATA ||
                code == ERROR_PIPE_NOT_CONNECTED) {
                throw ClosedPipe();
            }
            throw;
        }
    }

    void close() override { file_.close(); }

private:
    HandleFile file_;
};

std::wstring folderOf(const std::wstring& path) {
    const std::size_t end = path.find_last_of(L"\\/:");
    return end == std::wstring::npos ? std::wstring() : path.substr(0, end + 1);
}

/// A new file beside another, taken along by an end of the process.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const std::wstring& target) {
        const std::wstring prefix =
            folderOf(target) + L".quorvane-" + std::to_wstring(GetCurrentProcessId()) + L"-";
        const UnfinishedFileLocked locked;
        HANDLE handle = INVALID_HANDLE_VALUE;
        for (int number = 1; handle == INVALID_HANDLE_VALUE; ++number) {
            path_ = prefix + std::to_wstring(number) + L".tmp";
            handle = CreateFileW(path_.c_str(), GENERIC_WRITE, shareAll, nullptr, CREATE_NEW,
                                 FILE_ATTRIBUTE_NORMAL, nullptr);
            const DWORD code = GetLastError();
            if (handle == INVALID_HANDLE_VALUE && code != ERROR_FILE_EXISTS) {
                raiseSystemError(code);
            }
        }
        file_.emplace(handle);
        unfinishedFile = path_;
    }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile() {
        if (!path_.empty()) {
            file_.reset();
            const UnfinishedFileLocked locked;
            DeleteFileW(path_.c_str());
            unfinishedFile.clear();
        }
    }

    HandleFile& file() noexcept { return *file_; }

    void moveTo(const std::wstring& target) {
        const UnfinishedFileLocked locked;
        // Replacing keeps the rights and the attributes of the file that is there.
        const bool isMoved = ReplaceFileW(target.c_str(), path_.c_str(), nullptr,
                                          REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) ||
                             (GetLastError() == ERROR_FILE_NOT_FOUND &&
                              MoveFileExW(path_.c_str(), target.c_str(), 0));
        if (!isMoved) {
            raiseSystemError(GetLastError());
        }
        path_.clear();
        unfinishedFile.clear();
    }

private:
    std::wstring path_;
    std::optional<HandleFile> file_;
};

class ReplacementFile : public OutputFile {
public:
    explicit ReplacementFile(std::wstring target)
        : target_(std::move(target)), unfinished_(target_) {}

    void write(std::string_view bytes) override { unfinished_.file().write(bytes); }

    void close() override {
        unfinished_.file().close();
        unfinished_.moveTo(target_);
    }

private:
    std::wstring target_;
    UnfinishedFile unfinished_;
};

/// Path of an open file, past all links.
std::wstring finalPath(HANDLE file) {
    std::wstring path(MAX_PATH, L'\0');
    while (true) {
        const DWORD length =
            GetFinalPathNameByHandleW(file, path.data(), static_cast<DWORD>(path.size()), 0);
        if (length == 0) {
            raiseSystemError(GetLastError());
        }
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(length);
    }
}

/// A standard stream; an error when it is closed.
HANDLE standardStream(DWORD which) {
    HANDLE stream = GetStdHandle(which);
    if (!stream || stream == INVALID_HANDLE_VALUE) {
        raiseSystemError(ERROR_INVALID_HANDLE);
    }
    return stream;
}

bool isConsole(HANDLE stream) {
    DWORD mode = 0;
    return GetConsoleMode(stream, &mode) != 0;
}

}  // namespace

void prepareProcess() {
    // No dialogue when a drive is empty: it is an error like any other.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    SetConsoleCtrlHandler(removeUnfinishedFile, TRUE);
}

int standardErrorColumns() {
    HANDLE console = GetStdHandle(STD_ERROR_HANDLE);
    DWORD mode = 0;
    CONSOLE_SCREEN_BUFFER_INFO screen{};
    const bool isUsable = GetConsoleMode(console, &mode) &&
                          SetConsoleMode(console, mode | understandsControlSequences) &&
                          GetConsoleScreenBufferInfo(console, &screen);
    return isUsable ? screen.dwSize.X : 0;
}

bool standardOutputIsTerminal() {
    HANDLE console = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    return GetConsoleMode(console, &mode) &&
           SetConsoleMode(console, mode | understandsControlSequences);
}

void writeToStandardError(std::string_view text) noexcept {
    HANDLE stream = GetStdHandle(STD_ERROR_HANDLE);
    try {
        DWORD written = 0;
        if (isConsole(stream)) {
            const std::wstring units = wide(text);
            WriteConsoleW(stream, units.data(), static_cast<DWORD>(units.size()), &written,
                          nullptr);
            return;
        }
    } catch (const std::bad_alloc&) {
        // Written as bytes instead: what is told when memory is short is plain ASCII.
    }
    DWORD written = 0;
    while (!text.empty() &&
           WriteFile(stream, text.data(), static_cast<DWORD>(text.size()), &written, nullptr)) {
        text.remove_prefix(written);
    }
}

std::string readStandardInput() {
    HANDLE stream = standardStream(STD_INPUT_HANDLE);
    std::string bytes;
    std::array<char, 64 * 1024> block;
    while (true) {
        DWORD count = 0;
        if (!ReadFile(stream, block.data(), static_cast<DWORD>(block.size()), &count, nullptr)) {
            const DWORD code = GetLastError();
            if (code != ERROR_BROKEN_PIPE) {
                raiseSystemError(code);
            }
            count = 0;
        }
        if (count == 0) {
            return bytes;
        }
        bytes.append(block.data(), count);
    }
}

std::unique_ptr<OutputFile> openStandardOutput() {
    // A second handle: it can be closed, and the stream stays open.
    HANDLE process = GetCurrentProcess();
    HANDLE copy = nullptr;
    if (!DuplicateHandle(process, standardStream(STD_OUTPUT_HANDLE), process, &copy, 0, FALSE,
                         DUPLICATE_SAME_ACCESS)) {
        raiseSystemError(GetLastError());
    }
    return std::make_unique<StandardOutputFile>(copy);
}

std::unique_ptr<OutputFile> openReplacement(const std::string& path) {
    const std::wstring name = wide(path);
    HANDLE handle = CreateFileW(name.c_str(), GENERIC_WRITE, shareAll, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        const DWORD code = GetLastError();
        if (code != ERROR_FILE_NOT_FOUND) {
            raiseSystemError(code);
        }
        return std::make_unique<ReplacementFile>(name);
    }
    auto there = std::make_unique<HandleFile>(handle);
    SetLastError(NO_ERROR);
    const DWORD type = GetFileType(handle);
    if (type == FILE_TYPE_UNKNOWN && GetLastError() != NO_ERROR) {
        raiseSystemError(GetLastError());
    }
    if (type != FILE_TYPE_DISK) {
        return there;
    }
    std::wstring target = finalPath(handle);
    there->close();
    return std::make_unique<ReplacementFile>(std::move(target));
}

std::filesystem::path systemSpelling(const std::filesystem::path& path) {
    std::wstring name = path.native();
    CharUpperBuffW(name.data(), static_cast<DWORD>(name.size()));
    return name;
}

}  // namespace quorvane::cli
