#include "com/typeLibrary.h"

#include <new>
#include <string>

#include "com/ComPtr.h"
#include "com/Lock.h"
#include "com/serverModule.h"

namespace quorvane::com {

namespace {

SRWLOCK loading = SRWLOCK_INIT;
// Never released: the DLL stays loaded, and the system may end before it.
ITypeLib* loaded = nullptr;

}  // namespace

HRESULT typeLibrary(ITypeLib** library) noexcept {
    try {
        const Lock lock(loading);
        if (!loaded) {
            const std::wstring path = modulePath();
            const HRESULT result = LoadTypeLibEx(path.c_str(), REGKIND_NONE, &loaded);
            if (FAILED(result)) {
                return result;
            }
        }
        *library = loaded;
        loaded->AddRef();
        return S_OK;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
}

HRESULT typeInfo(REFGUID id, ITypeInfo** info) noexcept {
    ComPtr<ITypeLib> library;
    const HRESULT result = typeLibrary(library.out());
    return FAILED(result) ? result : library->GetTypeInfoOfGuid(id, info);
}

}  // namespace quorvane::com
