#include "tests/com/host/Process.h"

#include <atomic>
#include <stdexcept>

#include "tests/com/host/text.h"

namespace quorvane::host {

namespace {

constexpr DWORD longestWait = 60000;

HANDLE inheritedFile(const std::wstring& file) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                       CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

std::wstring fullPath(const std::wstring& path) {
    wchar_t full[MAX_PATH];
    GetFullPathNameW(path.c_str(), MAX_PATH, full, nullptr);
    return full;
}

}  // namespace

Process::Process(const std::wstring& commandLine, const std::wstring& folder)
    : outputFile_(temporaryFile(L"output")), errorsFile_(temporaryFile(L"errors")) {
    const HANDLE output = inheritedFile(outputFile_);
    const HANDLE errors = inheritedFile(errorsFile_);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output;
    startup.hStdError = errors;
    std::wstring line = commandLine;
    const BOOL started = CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                        folder.c_str(), &startup, &process_);
    CloseHandle(output);
    CloseHandle(errors);
    if (!started) {
        throw std::runtime_error("cannot start " + utf8Text(commandLine));
    }
}

Process::~Process() {
    TerminateProcess(process_.hProcess, 1);
    WaitForSingleObject(process_.hProcess, longestWait);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
    DeleteFileW(outputFile_.c_str());
    DeleteFileW(errorsFile_.c_str());
}

ProcessResult Process::wait() {
    if (WaitForSingleObject(process_.hProcess, longestWait) != WAIT_OBJECT_0) {
        throw std::runtime_error("a program that does not end");
    }
    ProcessResult result;
    GetExitCodeProcess(process_.hProcess, &result.status);
    result.output = bytesOfFile(outputFile_);
    result.errors = bytesOfFile(errorsFile_);
    return result;
}

std::wstring temporaryFile(const std::wstring& name) {
    static std::atomic<int> count = 0;
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    return folder + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count) +
           L"-" + name;
}

std::string bytesOfFile(const std::wstring& file) {
    std::string bytes;
    const HANDLE handle = CreateFileW(file.c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
        DWORD read = 0;
        bytes.resize(GetFileSize(handle, nullptr));
        ReadFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
        bytes.resize(read);
        CloseHandle(handle);
    }
    return bytes;
}

void writeFile(const std::wstring& file, const std::string& bytes) {
    DWORD written = 0;
    const HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        throw std::runtime_error("cannot write " + utf8Text(file));
    }
    WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(handle);
}

std::wstring testProgram(const std::wstring& name) {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring self = path;
    return self.substr(0, self.find_last_of(L"\\/") + 1) + name;
}

std::wstring testSource(const std::wstring& name) {
    return fullPath(wideText(QUORVANE_COM_TESTS) + L"/" + name);
}

}  // namespace quorvane::host
