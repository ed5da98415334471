#include <windows.h>

/// Where the compiler's run-time code is entered.
extern "C" BOOL WINAPI DllMainCRTStartup(HINSTANCE module, DWORD reason, void* processEnds);

namespace {

/// Keeps the DLL loaded until the process ends. The compiler's run-time code takes one of the
/// process's thread-local slots every time that it is loaded and gives none back.
void pin(HINSTANCE module) {
    HMODULE pinned = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                       reinterpret_cast<const wchar_t*>(module), &pinned);
}

}  // namespace

/// Where the system enters the DLL. When the process ends, the other threads have been stopped
/// wherever they were, and may hold locks of the run-time code for good: that must not be entered
/// then. There is nothing to clean up.
extern "C" BOOL WINAPI enterDll(HINSTANCE module, DWORD reason, void* processEnds) {
    if (reason == DLL_PROCESS_DETACH && processEnds) {
        return TRUE;
    }
    const BOOL isReady = DllMainCRTStartup(module, reason, processEnds);
    if (isReady && reason == DLL_PROCESS_ATTACH) {
        pin(module);
    }
    return isReady;
}
