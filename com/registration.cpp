#include "com/registration.h"

#include <windows.h>

#include <oleauto.h>
#include <olectl.h>

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
constexpr const wchar_t* userClasses = L"Software\\Classes";

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
    const auto size = static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t));
    return RegSetValueExW(key.get(), entry.name.empty() ? nullptr : entry.name.c_str(), 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(entry.value.c_str()),
                          size) == ERROR_SUCCESS;
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

HRESULT unregisterClasses() {
    bool allRemoved = true;
    for (const CreatableClass& each : creatableClasses) {
        const std::wstring programId = each.programId;
        for (const std::wstring& key : {programId, programId + programIdVersion, classKey(each)}) {
            allRemoved = remove(key) && allRemoved;
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

bool isThere(const std::wstring& key) {
    Key found;
    return RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ, found.out()) == ERROR_SUCCESS;
}

HRESULT unregisterTypeLibrary() {
    constexpr bool is32Bit = sizeof(void*) == 4;
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

/// As long as it lives, what is registered for the machine goes to the current user's part of the
/// registry, which needs no rights.
class UserClasses {
public:
    UserClasses() {
        isRedirected_ =
            RegCreateKeyExW(HKEY_CURRENT_USER, userClasses, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                            classes_.out(), nullptr) == ERROR_SUCCESS &&
            RegOverridePredefKey(HKEY_CLASSES_ROOT, classes_.get()) == ERROR_SUCCESS;
        // Makes the system register type libraries there too; systems that do not need it lack it.
        using Enable = void(STDAPICALLTYPE*)();
        const HMODULE automation = GetModuleHandleW(L"oleaut32.dll");
        const auto address =
            automation ? GetProcAddress(automation, "OaEnablePerUserTLibRegistration") : nullptr;
        if (address) {
            reinterpret_cast<Enable>(reinterpret_cast<void*>(address))();
        }
    }
    UserClasses(const UserClasses&) = delete;
    UserClasses& operator=(const UserClasses&) = delete;
    ~UserClasses() {
        if (isRedirected_) {
            RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
        }
        removeWhenEmpty(HKEY_CURRENT_USER, userClasses);
    }

    bool isRedirected() const noexcept { return isRedirected_; }

private:
    Key classes_;
    bool isRedirected_ = false;
};

/// Runs the body in the part of the registry that is meant.
template <class Body>
HRESULT inRegistry(RegisteredFor whom, Body body) noexcept {
    try {
        if (whom == RegisteredFor::Machine) {
            return body();
        }
        const UserClasses user;
        return user.isRedirected() ? body() : SELFREG_E_CLASS;
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
