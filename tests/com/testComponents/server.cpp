// The DLL of the test components.

#include <windows.h>

#include <string>

#include "tests/com/host/ComObject.h"
#include "tests/com/host/ComPtr.h"
#include "tests/com/testComponents/ErrorCollection.h"
#include "tests/com/testComponents/EventConnector.h"

namespace quorvane::host {
namespace {

struct TestClass {
    const wchar_t* programId;
    const wchar_t* classId;
    ComPtr<IDispatch> (*make)();
};

template <class Class>
ComPtr<IDispatch> make() {
    return ComPtr<IDispatch>::adopt(new Class);
}

constexpr TestClass testClasses[] = {
    {L"QuorvaneTests.EventConnector", L"{5C51F2C1-0A4C-4C0E-9D6B-5E2D1B0A7F10}",
     make<EventConnector>},
    {L"Vantrel.CVantrel", L"{5C51F2C2-0A4C-4C0E-9D6B-5E2D1B0A7F10}", make<ErrorCollection>},
};

class Factory : public ComObject<IClassFactory> {
public:
    explicit Factory(const TestClass& testClass) : testClass_(testClass) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        return outer ? CLASS_E_NOAGGREGATION : testClass_.make()->QueryInterface(iid, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    const TestClass& testClass_;
};

std::wstring keyOf(const TestClass& testClass) {
    return std::wstring(L"CLSID\\") + testClass.classId;
}

bool setKey(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
    return RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), name, REG_SZ, value.c_str(),
                           static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))) ==
           ERROR_SUCCESS;
}

std::wstring ownFile() {
    HMODULE module = nullptr;
    wchar_t file[MAX_PATH] = L"";
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<const wchar_t*>(&testClasses), &module);
    GetModuleFileNameW(module, file, MAX_PATH);
    return file;
}

}  // namespace
}  // namespace quorvane::host

using namespace quorvane::host;

STDAPI DllGetClassObject(REFCLSID id, REFIID iid, void** object) {
    for (const TestClass& each : testClasses) {
        CLSID classId;
        if (SUCCEEDED(CLSIDFromString(each.classId, &classId)) && IsEqualCLSID(id, classId)) {
            return makeCom<Factory>(each)->QueryInterface(iid, object);
        }
    }
    return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() {
    return S_FALSE;
}

STDAPI DllRegisterServer() {
    bool done = true;
    for (const TestClass& each : testClasses) {
        const std::wstring server = keyOf(each) + L"\\InprocServer32";
        done = done && setKey(std::wstring(each.programId) + L"\\CLSID", nullptr, each.classId) &&
               setKey(server, nullptr, ownFile()) &&
               setKey(server, L"ThreadingModel", L"Apartment");
    }
    return done ? S_OK : E_FAIL;
}

STDAPI DllUnregisterServer() {
    for (const TestClass& each : testClasses) {
        RegDeleteTreeW(HKEY_CLASSES_ROOT, each.programId);
        RegDeleteTreeW(HKEY_CLASSES_ROOT, keyOf(each).c_str());
    }
    return S_OK;
}
