#include "tests/com/host/Component.h"

#include <stdexcept>

#include "tests/com/host/text.h"

namespace quorvane::host {

namespace {

template <class Function>
Function as(FARPROC function) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(function));
}

}  // namespace

std::wstring componentFile() {
    wchar_t path[MAX_PATH];
    GetFullPathNameW(wideText(QUORVANE_COMPONENT).c_str(), MAX_PATH, path, nullptr);
    return path;
}

Component::Component(const std::wstring& file) : module_(LoadLibraryW(file.c_str())) {
    if (!module_) {
        throw std::runtime_error("cannot load " + utf8Text(file));
    }
}

HRESULT Component::classObject(REFCLSID id, REFIID iid, void** object) const {
    using Function = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    return as<Function>(function("DllGetClassObject"))(id, iid, object);
}

HRESULT Component::canUnloadNow() const {
    return call("DllCanUnloadNow");
}

HRESULT Component::call(const char* name) const {
    using Function = HRESULT(STDAPICALLTYPE*)();
    return as<Function>(function(name))();
}

FARPROC Component::function(const char* name) const {
    const FARPROC found = GetProcAddress(module_, name);
    if (!found) {
        throw std::runtime_error(std::string("the component does not export ") + name);
    }
    return found;
}

void Component::createObject(REFCLSID id, REFIID iid, void** object) const {
    ComPtr<IClassFactory> factory;
    HRESULT outcome = classObject(id, __uuidof(IClassFactory), factory.outVoid());
    if (SUCCEEDED(outcome)) {
        outcome = factory->CreateInstance(nullptr, iid, object);
    }
    if (FAILED(outcome)) {
        throw std::runtime_error("the component does not create an object");
    }
}

}  // namespace quorvane::host
