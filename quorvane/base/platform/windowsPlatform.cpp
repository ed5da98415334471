#include <windows.h>

#include <oleauto.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/platform/fileReplacement.h"
#include "quorvane/base/platform/windowsErrorToRunTimeError.h"
#include "quorvane/base/platform/windowsHandleFile.h"
#include "quorvane/base/platform/windowsStringCollection.h"
#include "quorvane/base/platform/windowsSystemError.h"
#include "quorvane/base/text/utf16.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane {

namespace {

constexpr std::size_t bufferForUnknownSize = 64 * 1024;

std::wstring wide(std::string_view text) {
    return utf16FromUtf8<wchar_t>(text);
}

std::string narrow(std::wstring_view text) {
    return utf8FromUtf16(text);
}

[[noreturn]] void raiseLastError() {
    raiseSystemError(GetLastError());
}

/// The system would read such a path only up to the NUL, and so find another file than the one
/// meant.
bool holdsNul(std::string_view path) {
    return path.find('\0') != std::string_view::npos;
}

void throwUnlessUsable(std::string_view path) {
    if (holdsNul(path)) {
        raise(RunTimeError::DeviceIoError);
    }
}

std::wstring widePath(std::string_view path) {
    throwUnlessUsable(path);
    return wide(path);
}

/// True for the errors that a path has which leads nowhere. Others, such as those of a disk that
/// fails, leave open whether something is there.
bool meansAbsence(DWORD code) {
    const RunTimeError error = windowsErrorToRunTimeError(code);
    return error == RunTimeError::FileNotFound || error == RunTimeError::PathNotFound ||
           code == ERROR_ACCESS_DENIED || code == ERROR_NO_MORE_FILES || code == ERROR_NOT_READY;
}

/// Opening a device can have effects, and its name is not that of a file to delete or write.
bool isDevice(HANDLE file) {
    return GetFileType(file) == FILE_TYPE_CHAR;
}

/// A file that is made, or written from its first byte where it is there.
class WindowsOutputFile : public OutputFile {
public:
    explicit WindowsOutputFile(const std::string& path)
        : newPath_(widePath(path)),
          file_(CreateFileW(newPath_.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {
        const DWORD result = GetLastError();
        if (!file_.isOpen()) {
            // The file itself would have been made: what is missing is its folder.
            if (windowsErrorToRunTimeError(result) == RunTimeError::FileNotFound) {
                raiseSystemError(RunTimeError::PathNotFound, result);
            }
            raiseSystemError(result);
        }
        if (result == ERROR_ALREADY_EXISTS) {
            newPath_.clear();
        }
    }
    WindowsOutputFile(const WindowsOutputFile&) = delete;
    WindowsOutputFile& operator=(const WindowsOutputFile&) = delete;
    ~WindowsOutputFile() override {
        if (!newPath_.empty()) {
            file_.abandon();  // an open file cannot be removed
            DeleteFileW(newPath_.c_str());
        }
    }

    void write(std::string_view bytes) override { file_.write(bytes); }

    void close() override {
        file_.close();
        newPath_.clear();
    }

private:
    // Of a file that was made; empty for one that was there.
    std::wstring newPath_;
    HandleFile file_;
};

/// Size of a file; 0 for what has none, such as a pipe.
std::size_t expectedSize(HANDLE file) {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file, &size) || size.QuadPart < 0) {
        return 0;
    }
    if (static_cast<std::uint64_t>(size.QuadPart) > SIZE_MAX / 2) {
        raise(RunTimeError::DeviceIoError);
    }
    return static_cast<std::size_t>(size.QuadPart);
}

std::string readToEnd(HANDLE file) {
    // One byte more than expected, so that the end is seen without growing the buffer.
    const std::size_t expected = expectedSize(file);
    std::string bytes(expected > 0 ? expected + 1 : bufferForUnknownSize, '\0');
    std::size_t length = 0;
    while (true) {
        const std::size_t room = bytes.size() - length;
        const auto wanted = static_cast<DWORD>(room < largestTransfer ? room : largestTransfer);
        DWORD count = 0;
        if (!ReadFile(file, bytes.data() + length, wanted, &count, nullptr)) {
            if (GetLastError() != ERROR_BROKEN_PIPE) {
                raiseLastError();
            }
            count = 0;
        }
        if (count == 0) {
            bytes.resize(length);
            return bytes;
        }
        length += count;
        if (length == bytes.size()) {
            bytes.resize(2 * length);
        }
    }
}

/// The file that this code was linked into: the component or the program.
HMODULE ownModule() {
    static const wchar_t anchor = 0;
    HMODULE module = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        &anchor, &module);
    return module;
}

std::wstring modulePath() {
    std::wstring path(MAX_PATH, L'\0');
    while (true) {
        const DWORD length =
            GetModuleFileNameW(ownModule(), path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(2 * path.size());
    }
}

/// The clipboard, open for a window of its own: contents that no window owns could not be set.
class Clipboard {
public:
    Clipboard()
        : owner_(CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                 nullptr, nullptr)) {
        // Another program may hold it for a moment.
        constexpr int attempts = 10;
        constexpr DWORD pauseInMilliseconds = 20;
        for (int i = 0; i < attempts && !isOpen_; ++i) {
            if (i > 0) {
                Sleep(pauseInMilliseconds);
            }
            isOpen_ = OpenClipboard(owner_) != 0;
        }
    }
    Clipboard(const Clipboard&) = delete;
    Clipboard& operator=(const Clipboard&) = delete;
    ~Clipboard() {
        if (isOpen_) {
            CloseClipboard();
        }
        if (owner_) {
            DestroyWindow(owner_);
        }
    }

    bool isOpen() const noexcept { return isOpen_; }

    void setText(const std::wstring& text) {
        const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
        HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
        if (!memory) {
            return;
        }
        if (void* start = GlobalLock(memory)) {
            CopyMemory(start, text.c_str(), size);
            GlobalUnlock(memory);
            EmptyClipboard();
            if (SetClipboardData(CF_UNICODETEXT, memory)) {
                return;  // the memory is the clipboard's now
            }
        }
        GlobalFree(memory);
    }

private:
    HWND owner_;
    bool isOpen_ = false;
};

/// A value for automation, freed at its end.
class Variant : public VARIANT {
public:
    Variant() { VariantInit(this); }
    explicit Variant(std::int32_t number) : Variant() {
        vt = VT_I4;
        lVal = number;
    }
    explicit Variant(std::string_view text) : Variant() {
        const std::wstring units = wide(text);
        bstrVal = SysAllocStringLen(units.data(), static_cast<UINT>(units.size()));
        if (!bstrVal) {
            throw std::bad_alloc();
        }
        vt = VT_BSTR;
    }
    Variant(Variant&& other) noexcept : VARIANT(other) { VariantInit(&other); }
    Variant& operator=(Variant&&) = delete;
    ~Variant() { VariantClear(this); }

    /// The variable itself, for a procedure that may change it.
    static Variant reference(Variant& variable) {
        Variant reference;
        reference.vt = static_cast<VARTYPE>(variable.vt | VT_BYREF);
        reference.byref = &variable.byref;
        return reference;
    }

    std::string text() const {
        return vt == VT_BSTR ? narrow({bstrVal, SysStringLen(bstrVal)}) : std::string();
    }
};

/// Keeps the components of the system usable on this thread; most hosts have seen to it already.
class ComponentUse {
public:
    ComponentUse() : begun_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ComponentUse(const ComponentUse&) = delete;
    ComponentUse& operator=(const ComponentUse&) = delete;
    ~ComponentUse() {
        if (begun_) {
            CoUninitialize();
        }
    }

private:
    bool begun_;
};

/// The external error collection: an object whose procedures are found by their names.
class WindowsErrorReporter : public ErrorReporter {
public:
    explicit WindowsErrorReporter(const std::string& programId) {
        CLSID classId{};
        if (FAILED(CLSIDFromProgID(wide(programId).c_str(), &classId)) ||
            FAILED(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                    IID_IDispatch, reinterpret_cast<void**>(&object_)))) {
            raise(RunTimeError::CannotCreateObject);
        }
    }
    WindowsErrorReporter(const WindowsErrorReporter&) = delete;
    WindowsErrorReporter& operator=(const WindowsErrorReporter&) = delete;
    ~WindowsErrorReporter() override { object_->Release(); }

    void Create(const std::string& product, std::string& applicationId) override {
        Variant id(applicationId);
        // Arguments stand in reverse order.
        Variant arguments[] = {Variant::reference(id), Variant(product)};
        call(L"Create", arguments, 2);
        applicationId = id.text();
    }

    void sendError(const ErrorReport& report) override {
        Variant extraInfo;
        extraInfo.pdispVal =
            report.extraInfo ? makeWindowsStringCollection(report.extraInfo) : nullptr;
        extraInfo.vt = VT_DISPATCH;
        Variant arguments[] = {Variant::reference(extraInfo), Variant(report.source),
                               Variant(report.version),       Variant(report.procedureName),
                               Variant(report.moduleName),    Variant(report.description),
                               Variant(report.number)};
        call(L"sendError", arguments, 7);
    }

private:
    void call(const wchar_t* name, Variant* arguments, UINT count) {
        auto* names = const_cast<wchar_t*>(name);
        DISPID id = DISPID_UNKNOWN;
        HRESULT result = object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
        if (SUCCEEDED(result)) {
            DISPPARAMS parameters{arguments, nullptr, count, 0};
            result = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                     &parameters, nullptr, nullptr, nullptr);
        }
        if (FAILED(result)) {
            raise(RtfError(result, "The error collection failed."));
        }
    }

    ComponentUse use_;
    IDispatch* object_ = nullptr;
};

class WindowsPlatform : public Platform {
public:
    bool fileExists(const std::string& path) override {
        if (holdsNul(path)) {
            return false;
        }
        WIN32_FIND_DATAW found{};
        HANDLE search = FindFirstFileW(wide(path).c_str(), &found);
        if (search == INVALID_HANDLE_VALUE) {
            return !meansAbsence(GetLastError());
        }
        FindClose(search);
        return true;
    }

    std::string readFile(const std::string& path) override {
        const HandleFile file(CreateFileW(widePath(path).c_str(), GENERIC_READ,
                                          FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                          OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!file.isOpen()) {
            raiseLastError();
        }
        if (isDevice(file.handle())) {
            raise(RunTimeError::PathFileAccessError);
        }
        return readToEnd(file.handle());
    }

    void deleteFile(const std::string& path) override {
        if (!DeleteFileW(widePath(path).c_str())) {
            raiseLastError();
        }
    }

    std::unique_ptr<OutputFile> createFile(const std::string& path) override {
        return std::make_unique<WindowsOutputFile>(path);
    }

    std::unique_ptr<OutputFile> replaceFile(const std::string& path) override {
        throwUnlessUsable(path);
        return openReplacement(path);
    }

    /// A clipboard that another program keeps open is left alone.
    void setClipboardText(const std::string& text) override {
        Clipboard clipboard;
        if (clipboard.isOpen()) {
            clipboard.setText(wide(text));
        }
    }

    void showMessageBox(const std::string& text, int style, const std::string& title) override {
        MessageBoxW(nullptr, wide(text).c_str(), wide(title).c_str(), static_cast<UINT>(style));
    }

    std::optional<std::string> resourceString(int id) override {
        // With no room given, the result is the text in the module itself.
        const wchar_t* text = nullptr;
        const int length =
            LoadStringW(ownModule(), static_cast<UINT>(id), reinterpret_cast<wchar_t*>(&text), 0);
        if (length <= 0) {
            return std::nullopt;
        }
        return narrow({text, static_cast<std::size_t>(length)});
    }

    std::unique_ptr<ErrorReporter> createReporter(const std::string& programId) override {
        return std::make_unique<WindowsErrorReporter>(programId);
    }

    std::string programFolder() override {
        const std::wstring path = modulePath();
        return narrow(std::wstring_view(path).substr(0, path.find_last_of(L'\\')));
    }

    std::string programFileName() override {
        const std::wstring path = modulePath();
        return narrow(std::wstring_view(path).substr(path.find_last_of(L'\\') + 1));
    }

    ProgramVersion programVersion() override {
        return {QUORVANE_VERSION_MAJOR, QUORVANE_VERSION_MINOR, QUORVANE_VERSION_PATCH};
    }
};

}  // namespace

Platform& systemPlatform() {
    static WindowsPlatform platform;
    return platform;
}

}  // namespace quorvane
