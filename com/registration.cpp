#include "com/registration.h"

#include <windows.h>

#include <oleauto.h>
#include <olectl.h>

#include <cstddef>
#include <new>
#include <string>
#include <vector>

#include "com/ComPtr.h"
#include "com/RegistryKey.h"
#include "com/filePaths.h"
#include "com/serverModule.h"
#include "com/typeLibrary.h"
#include "quorvaneInterfaces.h"

namespace quorvane::com {

namespace {

/// A class that hosts can create.
struct CreatableClass {
    const GUID& id;
    const wchar_t* programId;
    const wchar_t* description;
};

const CreatableClass creatableClasses[] = {
    {CLSID_CRtfDoc, L"Quorvane.CRtfDoc", L"Quorvane document"},
    {CLSID_CRtfDriver, L"Quorvane.CRtfDriver", L"Quorvane driver"},
    {CLSID_Document, L"Quorvane.Document", L"Quorvane document for scripts"},
};

constexpr const wchar_t* programIdVersion = L".1";
constexpr const wchar_t* classesOfAPart = L"Software\\Classes";

/// A value of the registry; an empty name is the key's own value.
struct Entry {
    std::wstring key;
    std::wstring name;
    std::wstring value;
};

std::wstring textOf(REFGUID id) {
    constexpr int length = 39;  // with the NUL
    wchar_t text[length];
    StringFromGUID2(id, text, length);
    return text;
}

std::wstring classKey(const CreatableClass& each) {
    return L"CLSID\\" + textOf(each.id);
}

std::vector<Entry> entriesOf(const CreatableClass& each, const std::wstring& path) {
    const std::wstring id = textOf(each.id);
    const std::wstring key = classKey(each);
    const std::wstring programId = each.programId;
    const std::wstring versioned = programId + programIdVersion;
    return {
        {programId, L"", each.description},
        {programId + L"\\CLSID", L"", id},
        {programId + L"\\CurVer", L"", versioned},
        {versioned, L"", each.description},
        {versioned + L"\\CLSID", L"", id},
        {key, L"", each.description},
        {key + L"\\InprocServer32", L"", path},
        {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
        {key + L"\\ProgID", L"", versioned},
        {key + L"\\VersionIndependentProgID", L"", programId},
        {key + L"\\Programmable", L"", L""},
        {key + L"\\TypeLib", L"", textOf(LIBID_Quorvane)},
        {key + L"\\Version", L"", L"1.0"},
    };
}

constexpr bool is32Bit = sizeof(void*) == 4;
constexpr REGSAM otherKind = is32Bit ? KEY_WOW64_64KEY : KEY_WOW64_32KEY;

/// The result of a registration for an error of the system: E_ACCESSDENIED for a lack of rights.
HRESULT resultOf(LSTATUS status, HRESULT otherwise) noexcept {
    switch (status) {
        case ERROR_SUCCESS:
            return S_OK;
        case ERROR_ACCESS_DENIED:
            return E_ACCESSDENIED;
        case ERROR_OUTOFMEMORY:
        case ERROR_NOT_ENOUGH_MEMORY:
            return E_OUTOFMEMORY;
        default:
            return otherwise;
    }
}

/// The first failure of several steps that are all taken.
void note(HRESULT& first, HRESULT result) noexcept {
    if (SUCCEEDED(first)) {
        first = result;
    }
}

/// True for the entry of a file that names this one. An entry that names no file is of no use.
bool isOwn(const std::wstring& entry, const std::wstring& path) {
    const std::wstring file = withoutQuotes(entry);
    return file.empty() || areSamePath(file, path);
}

HRESULT registerClasses(const std::wstring& path) {
    for (const CreatableClass& each : creatableClasses) {
        for (const Entry& entry : entriesOf(each, path)) {
            const LSTATUS status =
                writeRegistryText(HKEY_CLASSES_ROOT, entry.key, entry.name, entry.value);
            if (status != ERROR_SUCCESS) {
                return resultOf(status, SELFREG_E_CLASS);
            }
        }
    }
    return S_OK;
}

HRESULT remove(const std::wstring& key) noexcept {
    return resultOf(deleteRegistryTree(HKEY_CLASSES_ROOT, key), SELFREG_E_CLASS);
}

/// A class that has been registered for another file since stays as it is. 32-bit and 64-bit
/// programs have classes of their own, but the programs' identifiers in common: those of a class go
/// with its last registration.
HRESULT unregisterClasses(const std::wstring& path) {
    HRESULT result = S_OK;
    for (const CreatableClass& each : creatableClasses) {
        const std::wstring key = classKey(each);
        if (isOwn(registryText(HKEY_CLASSES_ROOT, key + L"\\InprocServer32"), path)) {
            note(result, remove(key));
        }
        if (!registryKeyExists(HKEY_CLASSES_ROOT, key) &&
            !registryKeyExists(HKEY_CLASSES_ROOT, key, otherKind)) {
            note(result, remove(each.programId));
            note(result, remove(each.programId + std::wstring(programIdVersion)));
        }
    }
    return result;
}

/// The part of a path before the file's name.
std::wstring folderOf(const std::wstring& path) {
    const std::size_t end = path.find_last_of(L"\\/");
    return end == std::wstring::npos ? std::wstring() : path.substr(0, end);
}

HRESULT registerTypeLibrary(const std::wstring& path) {
    ComPtr<ITypeLib> library;
    std::wstring file = path;
    std::wstring helpFolder = folderOf(path);
    HRESULT result = typeLibrary(library.out());
    if (SUCCEEDED(result)) {
        result = RegisterTypeLib(library.get(), file.data(), helpFolder.data());
    }
    switch (result) {
        case TYPE_E_REGISTRYACCESS:
            return E_ACCESSDENIED;
        case E_ACCESSDENIED:
        case E_OUTOFMEMORY:
            return result;
        default:
            return FAILED(result) ? SELFREG_E_TYPELIB : S_OK;
    }
}

/// The type library of the other kind of programs needs the interfaces, which the system would
/// remove together with ours: only our own entry goes, and the folder that comes from it.
HRESULT removeEntryOfTypeLibrary(const std::wstring& version, const std::wstring& entry,
                                 const std::wstring& others) {
    const std::wstring helpFolder = version + L"\\HELPDIR";
    const std::wstring ourFolder = folderOf(withoutQuotes(registryText(HKEY_CLASSES_ROOT, entry)));
    const HRESULT result =
        resultOf(deleteRegistryTree(HKEY_CLASSES_ROOT, entry), SELFREG_E_TYPELIB);
    if (SUCCEEDED(result) && registryText(HKEY_CLASSES_ROOT, helpFolder) == ourFolder) {
        return resultOf(
            writeRegistryText(HKEY_CLASSES_ROOT, helpFolder, L"", folderOf(withoutQuotes(others))),
            SELFREG_E_TYPELIB);
    }
    return result;
}

HRESULT unregisterTypeLibrary(const std::wstring& path) {
    const std::wstring version = L"TypeLib\\" + textOf(LIBID_Quorvane) + L"\\1.0";
    const std::wstring ours = version + (is32Bit ? L"\\0\\win32" : L"\\0\\win64");
    const std::wstring others = version + (is32Bit ? L"\\0\\win64" : L"\\0\\win32");
    if (!isOwn(registryText(HKEY_CLASSES_ROOT, ours), path)) {
        return S_OK;
    }
    const std::wstring otherFile = registryText(HKEY_CLASSES_ROOT, others);
    if (!otherFile.empty()) {
        return removeEntryOfTypeLibrary(version, ours, otherFile);
    }
    const HRESULT result =
        UnRegisterTypeLib(LIBID_Quorvane, 1, 0, LOCALE_NEUTRAL, is32Bit ? SYS_WIN32 : SYS_WIN64);
    if (!registryKeyExists(HKEY_CLASSES_ROOT, ours)) {
        return S_OK;
    }
    return result == E_ACCESSDENIED || result == TYPE_E_REGISTRYACCESS ? E_ACCESSDENIED
                                                                       : SELFREG_E_TYPELIB;
}

/// As long as it lives, what is registered goes to the machine's part of the registry, which takes
/// an administrator's rights, or to the current user's part, which needs none. Without it, it would
/// go to the user's part where there is something already, and to the machine's elsewhere.
class RedirectedClasses {
public:
    explicit RedirectedClasses(RegisteredFor whom) : whom_(whom) {
        const HKEY part = whom == RegisteredFor::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
        status_ = classes_.create(part, classesOfAPart, KEY_ALL_ACCESS);
        if (status_ == ERROR_SUCCESS) {
            status_ = RegOverridePredefKey(HKEY_CLASSES_ROOT, classes_.get());
        }
        if (whom == RegisteredFor::User) {
            registerTypeLibrariesForTheUser();
        }
    }
    RedirectedClasses(const RedirectedClasses&) = delete;
    RedirectedClasses& operator=(const RedirectedClasses&) = delete;
    ~RedirectedClasses() {
        if (status_ == ERROR_SUCCESS) {
            RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
        }
        if (whom_ == RegisteredFor::User) {
            // A user's part may have had no classes before ours.
            deleteEmptyRegistryKey(HKEY_CURRENT_USER, classesOfAPart);
        }
    }

    /// Whether it was possible.
    HRESULT result() const noexcept { return resultOf(status_, SELFREG_E_CLASS); }

private:
    /// Systems that do not need this lack the function.
    static void registerTypeLibrariesForTheUser() noexcept {
        using Enable = void(STDAPICALLTYPE*)();
        const HMODULE automation = GetModuleHandleW(L"oleaut32.dll");
        const auto address =
            automation ? GetProcAddress(automation, "OaEnablePerUserTLibRegistration") : nullptr;
        if (address) {
            reinterpret_cast<Enable>(reinterpret_cast<void*>(address))();
        }
    }

    RegisteredFor whom_;
    RegistryKey classes_;
    LSTATUS status_ = ERROR_SUCCESS;
};

/// Runs the body, with the DLL's path, in the part of the registry that is meant.
template <class Body>
HRESULT inRegistry(RegisteredFor whom, Body body) noexcept {
    try {
        const RedirectedClasses classes(whom);
        return FAILED(classes.result()) ? classes.result() : body(modulePath());
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
}

HRESULT removeAll(const std::wstring& path) {
    HRESULT result = unregisterTypeLibrary(path);
    note(result, unregisterClasses(path));
    for (const wchar_t* name : {L"CLSID", L"Interface", L"TypeLib"}) {
        deleteEmptyRegistryKey(HKEY_CLASSES_ROOT, name);
    }
    return result;
}

}  // namespace

HRESULT registerServer(RegisteredFor whom) noexcept {
    return inRegistry(whom, [](const std::wstring& path) {
        HRESULT result = registerClasses(path);
        if (SUCCEEDED(result)) {
            result = registerTypeLibrary(path);
        }
        if (FAILED(result)) {
            removeAll(path);
        }
        return result;
    });
}

HRESULT unregisterServer(RegisteredFor whom) noexcept {
    return inRegistry(whom, removeAll);
}

}  // namespace quorvane::com
