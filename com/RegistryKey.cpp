#include "com/RegistryKey.h"

#include <cstddef>

namespace quorvane::com {

std::wstring RegistryKey::text() const {
    std::wstring text(MAX_PATH, L'\0');
    while (true) {
        const std::size_t bytes = text.size() * sizeof(wchar_t);
        auto size = static_cast<DWORD>(bytes);
        const LSTATUS status =
            RegGetValueW(key_, nullptr, nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &size);
        if (status == ERROR_MORE_DATA) {
            text.resize(2 * text.size());
            continue;
        }
        // The size counts the NUL.
        const std::size_t units = size / sizeof(wchar_t);
        text.resize(status == ERROR_SUCCESS && units > 0 ? units - 1 : 0);
        return text;
    }
}

std::wstring registryText(HKEY parent, const std::wstring& path, REGSAM view) {
    RegistryKey key;
    return key.open(parent, path, view) == ERROR_SUCCESS ? key.text() : std::wstring();
}

bool registryKeyExists(HKEY parent, const std::wstring& path, REGSAM view) noexcept {
    RegistryKey key;
    return key.open(parent, path, view) == ERROR_SUCCESS;
}

LSTATUS writeRegistryText(HKEY parent, const std::wstring& path, const std::wstring& name,
                          const std::wstring& text) noexcept {
    RegistryKey key;
    const LSTATUS status = key.create(parent, path, KEY_WRITE);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    return RegSetValueExW(key.get(), name.empty() ? nullptr : name.c_str(), 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(text.c_str()), static_cast<DWORD>(size));
}

LSTATUS deleteRegistryTree(HKEY parent, const std::wstring& path) noexcept {
    const LSTATUS status = RegDeleteTreeW(parent, path.c_str());
    return status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status;
}

void deleteEmptyRegistryKey(HKEY parent, const std::wstring& path) noexcept {
    DWORD keys = 0;
    DWORD values = 0;
    bool isEmpty = false;
    {
        RegistryKey key;
        isEmpty = key.open(parent, path) == ERROR_SUCCESS &&
                  RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr,
                                   &values, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS &&
                  keys == 0 && values == 0;
    }
    if (isEmpty) {
        RegDeleteKeyW(parent, path.c_str());
    }
}

}  // namespace quorvane::com
