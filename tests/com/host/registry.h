#pragma once

#include <windows.h>

#include <set>
#include <string>
#include <vector>

namespace quorvane::host {

/// The keys and values below a key as texts, as an export has them: "path", and "path|name=value".
std::set<std::string> registryExport(HKEY root, const std::wstring& path);

/// What the second export has more than the first, in order.
std::vector<std::string> added(const std::set<std::string>& before,
                               const std::set<std::string>& after);

/// Everything where classes are registered, for the machine and for the user.
struct ClassRegistry {
    std::set<std::string> machine;
    std::set<std::string> user;

    bool operator==(const ClassRegistry&) const = default;
};

ClassRegistry classRegistry();

}  // namespace quorvane::host
