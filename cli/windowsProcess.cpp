#include <windows.h>

#include <cstddef>
#include <cstdio>
#include <new>
#include <string>

#include "cli/StandardOutputFile.h"
#include "cli/UnfinishedFileList.h"
#include "cli/process.h"
#include "quorvane/base/platform/windowsHandleFile.h"
#include "quorvane/base/platform/windowsSystemError.h"
#include "quorvane/base/text/utf16.h"

namespace quorvane::cli {

namespace {

constexpr DWORD understandsControlSequences = 0x0004;

std::wstring wide(std::string_view text) {
    return utf16FromUtf8<wchar_t>(text);
}

// The files that an end of the process takes along. Every thread that makes, moves or removes one
// shares the lock; the end takes it for itself and keeps it: what is unfinished then stays so.
UnfinishedFileList unfinishedFiles;
SRWLOCK endLock = SRWLOCK_INIT;

/// Holds the end of the process off while a file is made, moved or removed.
class EndWatch : public UnfinishedFileWatch {
public:
    void hold() noexcept override { AcquireSRWLockShared(&endLock); }
    void resume() noexcept override { ReleaseSRWLockShared(&endLock); }
    void begin(UnfinishedPath& file) noexcept override { unfinishedFiles.add(file); }
    void end(UnfinishedPath& file) noexcept override { unfinishedFiles.remove(file); }
};

BOOL WINAPI removeUnfinishedFiles(DWORD) {
    AcquireSRWLockExclusive(&endLock);
    unfinishedFiles.forEach([](const std::filesystem::path& path) { DeleteFileW(path.c_str()); });
    return FALSE;  // the process ends as it would have
}

bool meansClosedPipe(int code) {
    return code == ERROR_BROKEN_PIPE || code == ERROR_NO_DATA || code == ERROR_PIPE_NOT_CONNECTED;
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
    SetConsoleCtrlHandler(removeUnfinishedFiles, TRUE);
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
        // Written as bytes instead: what is reported when memory is short is plain ASCII.
    }
    DWORD written = 0;
    while (!text.empty() &&
           WriteFile(stream, text.data(), static_cast<DWORD>(text.size()), &written, nullptr)) {
        text.remove_prefix(written);
    }
}

std::size_t readStandardInput(std::span<char> block) {
    HANDLE stream = standardStream(STD_INPUT_HANDLE);
    DWORD count = 0;
    if (!ReadFile(stream, block.data(), static_cast<DWORD>(block.size()), &count, nullptr)) {
        const DWORD code = GetLastError();
        if (code != ERROR_BROKEN_PIPE) {
            raiseSystemError(code);
        }
        count = 0;
    }
    return count;
}

std::FILE* openTemporaryFile(const std::filesystem::path& folder) {
    const std::wstring name = L"quorvane-" + std::to_wstring(GetCurrentProcessId()) + L".tmp";
    // D: the system removes the file when it is closed. N: no program started later inherits it.
    return ::_wfopen((folder / name).c_str(), L"w+bDN");
}

std::unique_ptr<OutputFile> openStandardOutput() {
    // A second handle: it can be closed, and the stream stays open.
    HANDLE process = GetCurrentProcess();
    HANDLE copy = nullptr;
    if (!DuplicateHandle(process, standardStream(STD_OUTPUT_HANDLE), process, &copy, 0, FALSE,
                         DUPLICATE_SAME_ACCESS)) {
        raiseSystemError(GetLastError());
    }
    return std::make_unique<StandardOutputFile>(std::make_unique<HandleFile>(copy),
                                                meansClosedPipe);
}

UnfinishedFileWatch& unfinishedFileWatch() {
    static EndWatch watch;
    return watch;
}

std::filesystem::path systemSpelling(const std::filesystem::path& path) {
    std::wstring name = path.native();
    CharUpperBuffW(name.data(), static_cast<DWORD>(name.size()));
    return name;
}

}  // namespace quorvane::cli
