#pragma once

#include <windows.h>

#include <string>

#include "tests/com/host/Process.h"

namespace quorvane::host {

// How the examples are run, as their readers run them.

std::wstring inQuotes(const std::wstring& text);

/// The command that runs a script of the examples.
std::wstring script(const std::string& file);
/// The command that runs an example that was built.
std::wstring builtProgram(const std::string& file);

/// Registers the component, or unregisters it with "/s /u".
void registerComponent(const std::wstring& arguments);

/// Runs a command with arguments; line ends are LF.
ProcessResult run(const std::wstring& program, const std::wstring& arguments);

/// A file that an example writes, in the folder of temporary files.
class WrittenFile {
public:
    explicit WrittenFile(const std::wstring& name) : path_(temporaryFile(name)) {}
    WrittenFile(const WrittenFile&) = delete;
    WrittenFile& operator=(const WrittenFile&) = delete;
    ~WrittenFile() { DeleteFileW(path_.c_str()); }

    const std::wstring& path() const { return path_; }
    std::string bytes() const { return bytesOfFile(path_); }

private:
    std::wstring path_;
};

}  // namespace quorvane::host
