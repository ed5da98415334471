#include "com/serverModule.h"

#include <atomic>

namespace quorvane::com {

namespace {

std::atomic<long> uses = 0;

HMODULE ownModule() noexcept {
    HMODULE module = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<const wchar_t*>(&uses), &module);
    return module;
}

}  // namespace

ModuleUse::ModuleUse() noexcept {
    ++uses;
}

ModuleUse::~ModuleUse() {
    --uses;
}

void lockModule(bool lock) noexcept {
    uses += lock ? 1 : -1;
}

bool moduleIsUnused() noexcept {
    return uses == 0;
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

}  // namespace quorvane::com
