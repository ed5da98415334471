#pragma once

#include <windows.h>

#include <string>

namespace quorvane::com {

/// An open key of the registry, closed at its end.
class RegistryKey {
public:
    RegistryKey() = default;
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    ~RegistryKey() {
        if (key_) {
            RegCloseKey(key_);
        }
    }

    /// Opens a key for reading. `view` chooses the classes of 32-bit or 64-bit programs.
    LSTATUS open(HKEY parent, const std::wstring& path, REGSAM view = 0) noexcept {
        return RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ | view, &key_);
    }
    /// Opens a key, which is made when it is missing.
    LSTATUS create(HKEY parent, const std::wstring& path, REGSAM access) noexcept {
        return RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, access, nullptr, &key_,
                               nullptr);
    }

    HKEY get() const noexcept { return key_; }

    /// The key's own value, with the environment's variables in it replaced; empty when it is not
    /// a text, or not there.
    std::wstring text() const;

private:
    HKEY key_ = nullptr;
};

/// The key's own value; empty also when there is no such key.
std::wstring registryText(HKEY parent, const std::wstring& path, REGSAM view = 0);

bool registryKeyExists(HKEY parent, const std::wstring& path, REGSAM view = 0) noexcept;

/// Writes a value; an empty name is the key's own value.
LSTATUS writeRegistryText(HKEY parent, const std::wstring& path, const std::wstring& name,
                          const std::wstring& text) noexcept;

/// Deletes a key and all below it. It is not an error when it does not exist.
LSTATUS deleteRegistryTree(HKEY parent, const std::wstring& path) noexcept;

/// Deletes a key that holds nothing.
void deleteEmptyRegistryKey(HKEY parent, const std::wstring& path) noexcept;

}  // namespace quorvane::com
