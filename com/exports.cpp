#include <windows.h>

#include <olectl.h>

#include <cwchar>

#include "com/ClassFactory.h"
#include "com/ComPtr.h"
#include "com/hostErrors.h"
#include "com/registration.h"
#include "com/serverModule.h"

using namespace quorvane::com;

// The functions that the system calls.

STDAPI DllGetClassObject(REFCLSID classId, REFIID interfaceId, void** object) {
    if (!object) {
        return E_POINTER;
    }
    *object = nullptr;
    ComPtr<ClassFactory> factory;
    const HRESULT result = toHresult(
        interfaceId, [&] { factory = ComPtr<ClassFactory>::adopt(newClassFactory(classId)); });
    if (FAILED(result)) {
        return result;
    }
    return factory ? factory->QueryInterface(interfaceId, object) : CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() {
    return moduleIsUnused() ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
    return registerServer(RegisteredFor::Machine);
}

STDAPI DllUnregisterServer() {
    return unregisterServer(RegisteredFor::Machine);
}

/// `regsvr32 /n /i:user` registers for the current user, any other text for the machine.
STDAPI DllInstall(BOOL install, const wchar_t* commandLine) {
    const bool isForUser = commandLine && _wcsicmp(commandLine, L"user") == 0;
    const RegisteredFor whom = isForUser ? RegisteredFor::User : RegisteredFor::Machine;
    return install ? registerServer(whom) : unregisterServer(whom);
}
