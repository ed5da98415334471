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

// Upper and lower case make no difference, and Wine is not of one mind about this key.
std::string keyName(std::wstring_view name) {
    return name == L"Typelib" ? "TypeLib" : utf8Text(name);
}

/// Exports keys. The registry has many, and each call takes a while: none is made for what a key
/// does not have.
class RegistryReader {
public:
    explicit RegistryReader(std::set<std::string>& texts) : texts_(texts) {}

    void exportKey(HKEY key, const std::string& path) {
        texts_.insert(path);
        DWORD children = 0;
        DWORD values = 0;
        RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &children, nullptr, nullptr, &values,
                         nullptr, nullptr, nullptr, nullptr);
        for (DWORD i = 0; i < values; ++i) {
            exportValue(key, i, path);
        }
        for (DWORD i = 0; i < children; ++i) {
            exportChild(key, i, path);
        }
    }

private:
    void exportValue(HKEY key, DWORD index, const std::string& path) {
        DWORD length = longestName;
        DWORD type = 0;
        DWORD size = static_cast<DWORD>(data_.size());
        const LSTATUS status =
            RegEnumValueW(key, index, name_.data(), &length, nullptr, &type, data_.data(), &size);
        if (status == ERROR_MORE_DATA) {
            data_.resize(size);
            exportValue(key, index, path);
        } else if (status == ERROR_SUCCESS) {
            texts_.insert(path + "|" + utf8Text({name_.data(), length}) + "=" +
                          valueText(type, {data_.begin(), data_.begin() + size}));
        }
    }

    void exportChild(HKEY key, DWORD index, const std::string& path) {
        wchar_t name[256];
        DWORD length = 256;
        HKEY child = nullptr;
        if (RegEnumKeyExW(key, index, name, &length, nullptr, nullptr, nullptr, nullptr) ==
                ERROR_SUCCESS &&
            RegOpenKeyExW(key, name, 0, KEY_READ, &child) == ERROR_SUCCESS) {
            exportKey(child, path + "\\" + keyName({name, length}));
            RegCloseKey(child);
        }
    }

    std::set<std::string>& texts_;
    std::vector<wchar_t> name_ = std::vector<wchar_t>(longestName);
    std::vector<BYTE> data_ = std::vector<BYTE>(usualSize);
};

}  // namespace

std::set<std::string> registryExport(HKEY root, const std::wstring& path) {
    std::set<std::string> texts;
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) == ERROR_SUCCESS) {
        RegistryReader(texts).exportKey(key, utf8Text(path));
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
