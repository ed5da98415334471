#include "tests/com/scriptHost/ScriptSite.h"

#include <cstdio>

#include "tests/com/host/text.h"

namespace quorvane::host {

HRESULT ScriptSite::GetLCID(LCID*) {
    return E_NOTIMPL;
}

HRESULT ScriptSite::GetItemInfo(LPCOLESTR, DWORD wanted, IUnknown** item, ITypeInfo** info) {
    if (wanted & SCRIPTINFO_IUNKNOWN) {
        *item = ComPtr<IUnknown>(wscript_.get()).detach();
    }
    if (wanted & SCRIPTINFO_ITYPEINFO) {
        *info = nullptr;
    }
    return S_OK;
}

HRESULT ScriptSite::GetDocVersionString(BSTR*) {
    return E_NOTIMPL;
}
HRESULT ScriptSite::OnScriptTerminate(const VARIANT*, const EXCEPINFO*) {
    return S_OK;
}
HRESULT ScriptSite::OnStateChange(SCRIPTSTATE) {
    return S_OK;
}
HRESULT ScriptSite::OnEnterScript() {
    return S_OK;
}
HRESULT ScriptSite::OnLeaveScript() {
    return S_OK;
}

HRESULT ScriptSite::OnScriptError(IActiveScriptError* error) {
    failed_ = true;
    EXCEPINFO exception{};
    DWORD context = 0;
    ULONG line = 0;
    LONG column = 0;
    error->GetExceptionInfo(&exception);
    error->GetSourcePosition(&context, &line, &column);
    if (exception.pfnDeferredFillIn) {
        exception.pfnDeferredFillIn(&exception);
    }
    std::fprintf(stderr, "%s(%lu, %ld) %s: %s (0x%08lX)\r\n", utf8Text(scriptPath_).c_str(),
                 line + 1, column + 1, utf8Text(textOf(exception.bstrSource)).c_str(),
                 utf8Text(textOf(exception.bstrDescription)).c_str(),
                 static_cast<unsigned long>(exception.scode));
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    return S_OK;
}

}  // namespace quorvane::host
