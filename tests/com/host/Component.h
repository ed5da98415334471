#pragma once

#include <windows.h>

#include <string>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/LateBound.h"

namespace quorvane::host {

/// The file of the component under test, with backslashes.
std::wstring componentFile();

/// The component's DLL, loaded from its file without being registered.
class Component {
public:
    /// Loads the file; when it cannot be loaded, the test ends with an exception.
    explicit Component(const std::wstring& file = componentFile());
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;
    ~Component() { FreeLibrary(module_); }

    HMODULE module() const { return module_; }
    HRESULT classObject(REFCLSID id, REFIID iid, void** object) const;
    HRESULT canUnloadNow() const;
    /// Calls an exported function without arguments, such as DllRegisterServer.
    HRESULT call(const char* name) const;

    template <class Interface>
    ComPtr<Interface> create(REFCLSID id) const {
        ComPtr<Interface> object;
        createObject(id, __uuidof(Interface), object.outVoid());
        return object;
    }

private:
    FARPROC function(const char* name) const;
    void createObject(REFCLSID id, REFIID iid, void** object) const;

    HMODULE module_ = nullptr;
};

}  // namespace quorvane::host
