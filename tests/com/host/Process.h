#pragma once

#include <windows.h>

#include <string>

namespace quorvane::host {

/// How a program ended and what it wrote.
struct ProcessResult {
    DWORD status = 0;
    std::string output;
    std::string errors;
};

/// Another program, started with a command line in a folder. It is ended when this is destroyed.
class Process {
public:
    /// When the program cannot be started, the test ends with an exception.
    Process(const std::wstring& commandLine, const std::wstring& folder);
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process();

    /// Waits for the program's end, at most a minute.
    ProcessResult wait();

private:
    std::wstring outputFile_;
    std::wstring errorsFile_;
    PROCESS_INFORMATION process_{};
};

/// A new name for a file in the folder of temporary files.
std::wstring temporaryFile(const std::wstring& name);
/// All bytes of a file; empty when there is none.
std::string bytesOfFile(const std::wstring& file);
void writeFile(const std::wstring& file, const std::string& bytes);

/// A program that was built with the tests.
std::wstring testProgram(const std::wstring& name);
/// A file or folder of the tests' sources, with backslashes.
std::wstring testSource(const std::wstring& name);

}  // namespace quorvane::host
