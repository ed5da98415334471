#include "tests/com/host/imports.h"

#include <cstring>

namespace quorvane::host {

namespace {

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

}  // namespace

bool redirectImport(HMODULE module, const char* name, void* function) {
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

}  // namespace quorvane::host
