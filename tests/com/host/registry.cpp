#include "tests/com/host/registry.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "tests/com/host/text.h"

namespace quorvane::host {

namespace {

constexpr DWORD longestName = 16384;
constexpr DWORD usualSize = 65536;

std::string valueText(DWORD type, const std::vector<BYTE>& data) {
    if (type == REG_SZ || type == REG_EXPAND_SZ) {
        std::wstring text(reinterpret_cast<const wchar_t*>(data.data()),
                          data.size() / sizeof(wchar_t));
        text.resize(std::min(text.size(), text.find(L'\0')));
        return utf8Text(text);
    }
    std::string text = "type " + std::to_string(type) + ":";
    for (const BYTE byte : data) {
        text += " " + std::to_string(byte);
    }
    return text;
}

void exportValues(HKEY key, const std::string& path, std::set<std::string>& texts) {
    std::vector<wchar_t> name(longestName);
    std::vector<BYTE> data(usualSize);
    for (DWORD i = 0;; ++i) {
        DWORD length = longestName;
        DWORD type = 0;
        DWORD size = static_cast<DWORD>(data.size());
        const LSTATUS status =
            RegEnumValueW(key, i, name.data(), &length, nullptr, &type, data.data(), &size);
        if (status == ERROR_MORE_DATA) {
            data.resize(size);
            --i;
            continue;
        }
        if (status != ERROR_SUCCESS) {
            return;
        }
        texts.insert(path + "|" + utf8Text({name.data(), length}) + "=" +
                     valueText(type, {data.begin(), data.begin() + size}));
    }
}

// Upper and lower case make no difference, and Wine is not of one mind about this key.
std::string keyName(std::wstring_view name) {
    return name == L"Typelib" ? "TypeLib" : utf8Text(name);
}

void exportKey(HKEY key, const std::string& path, std::set<std::string>& texts) {
    texts.insert(path);
    exportValues(key, path, texts);
    wchar_t name[256];
    for (DWORD i = 0;; ++i) {
        DWORD length = 256;
        HKEY child = nullptr;
        if (RegEnumKeyExW(key, i, name, &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS) {
            return;
        }
        if (RegOpenKeyExW(key, name, 0, KEY_READ, &child) == ERROR_SUCCESS) {
            exportKey(child, path + "\\" + keyName({name, length}), texts);
            RegCloseKey(child);
        }
    }
}

}  // namespace

std::set<std::string> registryExport(HKEY root, const std::wstring& path) {
    std::set<std::string> texts;
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) == ERROR_SUCCESS) {
        exportKey(key, utf8Text(path), texts);
        RegCloseKey(key);
    }
    return texts;
}

std::vector<std::string> added(const std::set<std::string>& before,
                               const std::set<std::string>& after) {
    std::vector<std::string> texts;
    std::set_difference(after.begin(), after.end(), before.begin(), before.end(),
                        std::back_inserter(texts));
    return texts;
}

ClassRegistry classRegistry() {
    return {registryExport(HKEY_LOCAL_MACHINE, L"Software\\Classes"),
            registryExport(HKEY_CURRENT_USER, L"Software")};
}

}  // namespace quorvane::host
