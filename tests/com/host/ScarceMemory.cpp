#include "tests/com/host/ScarceMemory.h"

#include <oleauto.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

namespace quorvane::host {

namespace {

// How many allocations succeed until one fails, and how many fail then.
int succeeding = 0;
int failing = 0;
bool hasFailed = false;

bool fails() {
    if (failing == 0) {
        return false;
    }
    if (succeeding > 0) {
        --succeeding;
        return false;
    }
    --failing;
    hasFailed = true;
    return true;
}

int failuresOf(Shortage shortage) {
    switch (shortage) {
        case Shortage::Once:
            return 1;
        case Shortage::Twice:
            return 2;
        default:
            return INT_MAX;
    }
}

void* scarceMalloc(std::size_t size) {
    return fails() ? nullptr : std::malloc(size);
}

void* scarceCalloc(std::size_t count, std::size_t size) {
    return fails() ? nullptr : std::calloc(count, size);
}

void* scarceRealloc(void* block, std::size_t size) {
    return fails() ? nullptr : std::realloc(block, size);
}

BSTR WINAPI scarceText(const OLECHAR* text, UINT length) {
    return fails() ? nullptr : SysAllocStringLen(text, length);
}

struct Replacement {
    const char* name;
    void* usual;
    void* scarce;
};

template <class Function>
void* address(Function* function) {
    return reinterpret_cast<void*>(function);
}

const Replacement replacements[] = {
    {"malloc", address(&std::malloc), address(&scarceMalloc)},
    {"calloc", address(&std::calloc), address(&scarceCalloc)},
    {"realloc", address(&std::realloc), address(&scarceRealloc)},
    {"SysAllocStringLen", address(&SysAllocStringLen), address(&scarceText)},
};

template <class T>
T* at(HMODULE module, ULONG_PTR offset) {
    return reinterpret_cast<T*>(reinterpret_cast<BYTE*>(module) + offset);
}

void setImport(IMAGE_THUNK_DATA& import, void* function) {
    DWORD protection = 0;
    VirtualProtect(&import, sizeof import, PAGE_READWRITE, &protection);
    import.u1.Function = reinterpret_cast<ULONG_PTR>(function);
    VirtualProtect(&import, sizeof import, protection, &protection);
}

// Lets the module's imports of that name lead to the function; tells whether there was one.
bool redirect(HMODULE module, const char* name, void* function) {
    const auto* dos = at<IMAGE_DOS_HEADER>(module, 0);
    const auto* headers = at<IMAGE_NT_HEADERS>(module, static_cast<ULONG_PTR>(dos->e_lfanew));
    const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    bool found = false;
    for (const auto* library = at<IMAGE_IMPORT_DESCRIPTOR>(module, directory.VirtualAddress);
         library->Name != 0; ++library) {
        const auto* names = at<IMAGE_THUNK_DATA>(module, library->OriginalFirstThunk);
        auto* imports = at<IMAGE_THUNK_DATA>(module, library->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++imports) {
            const bool hasName = !IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal);
            if (hasName &&
                std::strcmp(at<IMAGE_IMPORT_BY_NAME>(module, names->u1.AddressOfData)->Name,
                            name) == 0) {
                setImport(*imports, function);
                found = true;
            }
        }
    }
    return found;
}

}  // namespace

ScarceMemory::ScarceMemory(HMODULE module) : module_(module) {
    for (const Replacement& each : replacements) {
        if (!redirect(module, each.name, each.scarce)) {
            throw std::runtime_error(std::string("the module does not use ") + each.name);
        }
    }
}

ScarceMemory::~ScarceMemory() {
    for (const Replacement& each : replacements) {
        redirect(module_, each.name, each.usual);
    }
}

void ScarceMemory::begin(int number, Shortage shortage) {
    succeeding = number - 1;
    failing = failuresOf(shortage);
    hasFailed = false;
}

bool ScarceMemory::end() {
    failing = 0;
    return hasFailed;
}

}  // namespace quorvane::host
