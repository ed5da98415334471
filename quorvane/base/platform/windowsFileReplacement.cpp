#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "quorvane/base/platform/fileReplacement.h"
#include "quorvane/base/platform/windowsHandleFile.h"
#include "quorvane/base/platform/windowsSystemError.h"
#include "quorvane/base/text/utf16.h"

namespace quorvane {

namespace {

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::wstring folderOf(const std::wstring& path) {
    const std::size_t end = path.find_last_of(L"\\/:");
    return end == std::wstring::npos ? std::wstring() : path.substr(0, end + 1);
}

/// A new file beside another.
class UnfinishedFile {
public:
    UnfinishedFile(const std::wstring& target, UnfinishedFileWatch& watch) : watch_(watch) {
        const std::wstring prefix =
            folderOf(target) + L".quorvane-" + std::to_wstring(GetCurrentProcessId()) + L"-";
        const EndHeld held(watch_);
        HANDLE handle = INVALID_HANDLE_VALUE;
        for (int number = 1; handle == INVALID_HANDLE_VALUE; ++number) {
            own_.path = prefix + std::to_wstring(number) + L".tmp";
            handle = CreateFileW(own_.path.c_str(), GENERIC_WRITE, shareAll, nullptr, CREATE_NEW,
                                 FILE_ATTRIBUTE_NORMAL, nullptr);
            const DWORD code = GetLastError();
            if (handle == INVALID_HANDLE_VALUE && code != ERROR_FILE_EXISTS) {
                raiseSystemError(code);
            }
        }
        file_.emplace(handle);
        watch_.begin(own_);
    }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile() {
        if (isThere_) {
            file_.reset();
            const EndHeld held(watch_);
            DeleteFileW(own_.path.c_str());
            watch_.end(own_);
        }
    }

    HandleFile& file() noexcept { return *file_; }

    void moveTo(const std::wstring& target) {
        const EndHeld held(watch_);
        // Replacing keeps the rights and the attributes of the file that is there.
        const bool isMoved = ReplaceFileW(target.c_str(), own_.path.c_str(), nullptr,
                                          REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) ||
                             (GetLastError() == ERROR_FILE_NOT_FOUND &&
                              MoveFileExW(own_.path.c_str(), target.c_str(), 0));
        if (!isMoved) {
            raiseSystemError(GetLastError());
        }
        isThere_ = false;
        watch_.end(own_);
    }

private:
    UnfinishedFileWatch& watch_;
    UnfinishedPath own_;
    bool isThere_ = true;
    std::optional<HandleFile> file_;
};

class ReplacementFile : public OutputFile {
public:
    ReplacementFile(std::wstring target, UnfinishedFileWatch& watch)
        : target_(std::move(target)), unfinished_(target_, watch) {}

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

}  // namespace

std::unique_ptr<OutputFile> openReplacement(const std::string& path, UnfinishedFileWatch& watch) {
    const std::wstring name = utf16FromUtf8<wchar_t>(path);
    HANDLE handle = CreateFileW(name.c_str(), GENERIC_WRITE, shareAll, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        const DWORD code = GetLastError();
        if (code != ERROR_FILE_NOT_FOUND) {
            raiseSystemError(code);
        }
        return std::make_unique<ReplacementFile>(name, watch);
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
    return std::make_unique<ReplacementFile>(std::move(target), watch);
}

}  // namespace quorvane
