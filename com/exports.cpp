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

/// Where the compiler's run-time code is entered: it calls DllMain.
extern "C" BOOL WINAPI DllMainCRTStartup(HINSTANCE, DWORD reason, void* processEnds);

/// Where the system enters the DLL. When the process ends, the other threads have been stopped
/// wherever they were, and may hold locks of the run-time code for good: that must not be entered
/// then. There is nothing to clean up.
extern "C" BOOL WINAPI enterComponent(HINSTANCE module, DWORD reason, void* processEnds) {
    const bool isOver = reason == DLL_PROCESS_DETACH && processEnds;
    return isOver ? TRUE : DllMainCRTStartup(module, reason, processEnds);
}

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH) {
        pinModule();
    }
    return TRUE;
}

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
