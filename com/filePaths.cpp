#include "com/filePaths.h"

#include <windows.h>

#include <string_view>

namespace quorvane::com {

namespace {

/// The text that a function of the system writes when it is given a buffer and its size, and that
/// returns the size it needs when that is too small. Empty when the function fails.
template <class Write>
std::wstring textFrom(Write write) {
    std::wstring text(MAX_PATH, L'\0');
    while (true) {
        const DWORD length = write(text.data(), static_cast<DWORD>(text.size()));
        if (length < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(length + 1);
    }
}

/// A path in full and with the long names of what is there.
std::wstring longPath(const std::wstring& path) {
    const std::wstring full = textFrom([&path](wchar_t* buffer, DWORD size) {
        return GetFullPathNameW(path.c_str(), size, buffer, nullptr);
    });
    const std::wstring longNames = textFrom([&full](wchar_t* buffer, DWORD size) {
        return GetLongPathNameW(full.c_str(), buffer, size);
    });
    return longNames.empty() ? full : longNames;
}

/// The path to which links lead in the end; empty when nothing is there.
std::wstring finalPath(const std::wstring& path) {
    const HANDLE file =
        CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return {};
    }
    std::wstring final = textFrom([file](wchar_t* buffer, DWORD size) {
        return GetFinalPathNameByHandleW(file, buffer, size, FILE_NAME_NORMALIZED);
    });
    CloseHandle(file);
    return final;
}

/// A path without what makes the system take it as it is.
std::wstring plain(const std::wstring& path) {
    constexpr std::wstring_view verbatim = L"\\\\?\\";
    constexpr std::wstring_view verbatimShare = L"\\\\?\\UNC\\";
    if (path.starts_with(verbatimShare)) {
        return L"\\\\" + path.substr(verbatimShare.size());
    }
    return path.starts_with(verbatim) ? path.substr(verbatim.size()) : path;
}

bool areEqual(const std::wstring& a, const std::wstring& b) {
    const std::wstring left = plain(a);
    const std::wstring right = plain(b);
    return !left.empty() &&
           CompareStringOrdinal(left.c_str(), static_cast<int>(left.size()), right.c_str(),
                                static_cast<int>(right.size()), TRUE) == CSTR_EQUAL;
}

/// True for a path that begins with a drive and its root, or with a share.
bool isFull(const std::wstring& path) {
    const bool hasDrive =
        path.size() > 2 && path[1] == L':' && (path[2] == L'\\' || path[2] == L'/');
    return hasDrive || path.starts_with(L"\\\\");
}

}  // namespace

bool areSamePath(const std::wstring& a, const std::wstring& b) {
    if (!isFull(a) || !isFull(b)) {
        return false;
    }
    return areEqual(longPath(a), longPath(b)) || areEqual(finalPath(a), finalPath(b));
}

std::wstring withoutQuotes(const std::wstring& path) {
    const bool isQuoted = path.size() > 1 && path.front() == L'"' && path.back() == L'"';
    return isQuoted ? path.substr(1, path.size() - 2) : path;
}

}  // namespace quorvane::com
