#include "com/registration.h"

#include <windows.h>

#include <oleauto.h>
#include <olectl.h>

#include <cstddef>
#include <new>
#include <string>
#include <vector>

#include "com/ComPtr.h"
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

/// An open key of the registry.
class Key {
public:
    explicit Key(HKEY key = nullptr) noexcept : key_(key) {}
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    ~Key() {
        if (key_) {
            RegCloseKey(key_);
        }
    }

    HKEY get() const noexcept { return key_; }
    HKEY* out() noexcept { return &key_; }

private:
    HKEY key_;
};

bool write(const Entry& entry) {
    Key key;
    if (RegCreateKeyExW(HKEY_CLASSES_ROOT, entry.key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                        key.out(), nullptr) != ERROR_SUCCESS) {
        return false;
    }
    const std::size_t size = (entry.value.size() + 1) * sizeof(wchar_t);
    return RegSetValueExW(key.get(), entry.name.empty() ? nullptr : entry.name.c_str(), 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(entry.value.c_str()),
                          static_cast<DWORD>(size)) == ERROR_SUCCESS;
}

bool remove(const std::wstring& key) {
    const LSTATUS status = RegDeleteTreeW(HKEY_CLASSES_ROOT, key.c_str());
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
}

HRESULT registerClasses(const std::wstring& path) {
    for (const CreatableClass& each : creatableClasses) {
        for (const Entry& entry : entriesOf(each, path)) {
            if (!write(entry)) {
                return SELFREG_E_CLASS;
            }
        }
    }
    return S_OK;
}

constexpr bool is32Bit = sizeof(void*) == 4;

bool isThere(const std::wstring& key, REGSAM view = 0) {
    Key found;
    return RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ | view, found.out()) ==
           ERROR_SUCCESS;
}

/// 32-bit and 64-bit programs have classes of their own, but the programs' identifiers in common:
/// those of a class go with its last registration.
HRESULT unregisterClasses() {
    constexpr REGSAM otherKind = is32Bit ? KEY_WOW64_64KEY : KEY_WOW64_32KEY;
    bool allRemoved = true;
    for (const CreatableClass& each : creatableClasses) {
        allRemoved = remove(classKey(each)) && allRemoved;
        if (!isThere(classKey(each), otherKind)) {
            const std::wstring programId = each.programId;
            allRemoved = remove(programId) && allRemoved;
            allRemoved = remove(programId + programIdVersion) && allRemoved;
        }
    }
    return allRemoved ? S_OK : SELFREG_E_CLASS;
}

HRESULT registerTypeLibrary(const std::wstring& path) {
    ComPtr<ITypeLib> library;
    std::wstring writable = path;
    const bool isRegistered = SUCCEEDED(typeLibrary(library.out())) &&
                              SUCCEEDED(RegisterTypeLib(library.get(), writable.data(), nullptr));
    return isRegistered ? S_OK : SELFREG_E_TYPELIB;
}

HRESULT unregisterTypeLibrary() {
    UnRegisterTypeLib(LIBID_Quorvane, 1, 0, LOCALE_NEUTRAL, is32Bit ? SYS_WIN32 : SYS_WIN64);
    const std::wstring key =
        L"TypeLib\\" + textOf(LIBID_Quorvane) + L"\\1.0\\0\\" + (is32Bit ? L"win32" : L"win64");
    return isThere(key) ? SELFREG_E_TYPELIB : S_OK;
}

/// A user's part of the registry may have had no classes before ours.
void removeWhenEmpty(HKEY parent, const wchar_t* name) {
    Key key;
    DWORD keys = 0;
    DWORD values = 0;
    if (RegOpenKeyExW(parent, name, 0, KEY_READ, key.out()) == ERROR_SUCCESS &&
        RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values,
                         nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS &&
        keys == 0 && values == 0) {
        RegDeleteKeyW(parent, name);
    }
}

/// As long as it lives, what is registered goes to the machine's part of the registry, which takes
/// an administrator's rights, or to the current user's part, which needs none. Without it, it would
/// go to the user's part where there is something already, and to the machine's elsewhere.
class RedirectedClasses {
public:
    explicit RedirectedClasses(RegisteredFor whom) : whom_(whom) {
        const HKEY part = whom == RegisteredFor::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
        isRedirected_ = RegCreateKeyExW(part, classesOfAPart, 0, nullptr, 0, KEY_ALL_ACCESS,
                                        nullptr, classes_.out(), nullptr) == ERROR_SUCCESS &&
                        RegOverridePredefKey(HKEY_CLASSES_ROOT, classes_.get()) == ERROR_SUCCESS;
        if (whom == RegisteredFor::User) {
            registerTypeLibrariesForTheUser();
        }
    }
    RedirectedClasses(const RedirectedClasses&) = delete;
    RedirectedClasses& operator=(const RedirectedClasses&) = delete;
    ~RedirectedClasses() {
        if (isRedirected_) {
            RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
        }
        if (whom_ == RegisteredFor::User) {
            removeWhenEmpty(HKEY_CURRENT_USER, classesOfAPart);
        }
    }

    bool isRedirected() const noexcept { return isRedirected_; }

private:
    /// Systems that do not need to be told lack the function.
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
    Key classes_;
    bool isRedirected_ = false;
};

/// Runs the body in the part of the registry that is meant.
template <class Body>
HRESULT inRegistry(RegisteredFor whom, Body body) noexcept {
    try {
        const RedirectedClasses classes(whom);
        return classes.isRedirected() ? body() : SELFREG_E_CLASS;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
}

HRESULT removeAll() {
    const HRESULT library = unregisterTypeLibrary();
    const HRESULT classes = unregisterClasses();
    for (const wchar_t* name : {L"CLSID", L"Interface", L"TypeLib"}) {
        removeWhenEmpty(HKEY_CLASSES_ROOT, name);
    }
    return FAILED(library) ? library : classes;
}

}  // namespace

HRESULT registerServer(RegisteredFor whom) noexcept {
    return inRegistry(whom, [] {
        const std::wstring path = modulePath();
        HRESULT result = registerClasses(path);
        if (SUCCEEDED(result)) {
            result = registerTypeLibrary(path);
        }
        if (FAILED(result)) {
            removeAll();
        }
        return result;
    });
}

HRESULT unregisterServer(RegisteredFor whom) noexcept {
    return inRegistry(whom, removeAll);
}

}  // namespace quorvane::com
