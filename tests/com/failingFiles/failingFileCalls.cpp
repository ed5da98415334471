#include "tests/com/failingFiles/failingFileCalls.h"

#include <stdexcept>
#include <utility>

#include "tests/com/host/imports.h"

namespace quorvane::host {

namespace {

struct Plan {
    bool isRunning = false;
    std::size_t number = 0;
    Failure failure{};
    std::vector<std::string> calls;

    /// Notes the call; true when it is one that fails.
    bool fails(const char* name) {
        if (!isRunning) {
            return false;
        }
        calls.emplace_back(name);
        return failure.isForGood ? calls.size() > number : calls.size() == number + 1;
    }
};

Plan plan;

/// What a call returns: when it is one that fails, `failed`, and otherwise what the system does.
/// The system's function is asked for by its name, since this program's own import leads here.
template <class Function, class Result, class... Arguments>
Result answer(const char* name, Function*, Result failed, Arguments... arguments) {
    if (plan.fails(name)) {
        SetLastError(plan.failure.error);
        return failed;
    }
    const HMODULE system = GetModuleHandleW(L"kernel32.dll");
    const auto address = reinterpret_cast<void*>(GetProcAddress(system, name));
    return reinterpret_cast<Function*>(address)(arguments...);
}

HANDLE WINAPI createFile(LPCWSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                         DWORD disposition, DWORD attributes, HANDLE pattern) {
    return answer("CreateFileW", &CreateFileW, INVALID_HANDLE_VALUE, name, access, share, security,
                  disposition, attributes, pattern);
}

BOOL WINAPI readFile(HANDLE file, LPVOID bytes, DWORD size, LPDWORD count, LPOVERLAPPED later) {
    return answer("ReadFile", &ReadFile, FALSE, file, bytes, size, count, later);
}

BOOL WINAPI writeFile(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD count, LPOVERLAPPED later) {
    return answer("WriteFile", &WriteFile, FALSE, file, bytes, size, count, later);
}

// A handle whose closing fails is gone all the same.
BOOL WINAPI closeHandle(HANDLE handle) {
    const bool isRunning = std::exchange(plan.isRunning, false);
    const BOOL isClosed = answer("CloseHandle", &CloseHandle, FALSE, handle);
    plan.isRunning = isRunning;
    if (plan.fails("CloseHandle")) {
        SetLastError(plan.failure.error);
        return FALSE;
    }
    return isClosed;
}

BOOL WINAPI replaceFile(LPCWSTR target, LPCWSTR source, LPCWSTR backup, DWORD flags, LPVOID first,
                        LPVOID second) {
    return answer("ReplaceFileW", &ReplaceFileW, FALSE, target, source, backup, flags, first,
                  second);
}

BOOL WINAPI moveFile(LPCWSTR from, LPCWSTR to, DWORD flags) {
    return answer("MoveFileExW", &MoveFileExW, FALSE, from, to, flags);
}

BOOL WINAPI deleteFile(LPCWSTR name) {
    return answer("DeleteFileW", &DeleteFileW, FALSE, name);
}

HANDLE WINAPI findFirstFile(LPCWSTR name, LPWIN32_FIND_DATAW found) {
    return answer("FindFirstFileW", &FindFirstFileW, INVALID_HANDLE_VALUE, name, found);
}

BOOL WINAPI getFileSize(HANDLE file, PLARGE_INTEGER size) {
    return answer("GetFileSizeEx", &GetFileSizeEx, FALSE, file, size);
}

DWORD WINAPI getFileType(HANDLE file) {
    return answer("GetFileType", &GetFileType, DWORD{FILE_TYPE_UNKNOWN}, file);
}

DWORD WINAPI getFinalPathName(HANDLE file, LPWSTR path, DWORD size, DWORD flags) {
    return answer("GetFinalPathNameByHandleW", &GetFinalPathNameByHandleW, DWORD{0}, file, path,
                  size, flags);
}

template <class Function>
void redirect(const char* name, Function* function) {
    if (!redirectImport(GetModuleHandleW(nullptr), name, reinterpret_cast<void*>(function))) {
        throw std::runtime_error(std::string("the program does not use ") + name);
    }
}

}  // namespace

std::vector<std::string> withFailingCall(std::size_t number, const Failure& failure,
                                         const std::function<void()>& action) {
    static const bool isRedirected = [] {
        redirect("CreateFileW", &createFile);
        redirect("ReadFile", &readFile);
        redirect("WriteFile", &writeFile);
        redirect("CloseHandle", &closeHandle);
        redirect("ReplaceFileW", &replaceFile);
        redirect("MoveFileExW", &moveFile);
        redirect("DeleteFileW", &deleteFile);
        redirect("FindFirstFileW", &findFirstFile);
        redirect("GetFileSizeEx", &getFileSize);
        redirect("GetFileType", &getFileType);
        redirect("GetFinalPathNameByHandleW", &getFinalPathName);
        return true;
    }();
    plan = {isRedirected, number, failure, {}};
    try {
        action();
    } catch (...) {
        plan.isRunning = false;
        throw;
    }
    plan.isRunning = false;
    return plan.calls;
}

}  // namespace quorvane::host
