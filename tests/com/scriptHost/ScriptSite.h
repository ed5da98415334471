#pragma once

#include <activscp.h>
#include <windows.h>

#include <string>

#include "tests/com/host/ComObject.h"
#include "tests/com/host/ComPtr.h"

namespace quorvane::host {

/// What a script engine is given by its host: the object WScript, and a place for its errors, which
/// are written to the standard error stream with file, line and source.
class ScriptSite : public ComObject<IActiveScriptSite> {
public:
    ScriptSite(std::wstring scriptPath, ComPtr<IDispatch> wscript)
        : scriptPath_(std::move(scriptPath)), wscript_(std::move(wscript)) {}

    /// True when the script ended with an error that it did not handle.
    bool failed() const { return failed_; }

    HRESULT STDMETHODCALLTYPE GetLCID(LCID* locale) override;
    HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR name, DWORD wanted, IUnknown** item,
                                          ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR* version) override;
    HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override;
    HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override;
    HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* error) override;
    HRESULT STDMETHODCALLTYPE OnEnterScript() override;
    HRESULT STDMETHODCALLTYPE OnLeaveScript() override;

private:
    std::wstring scriptPath_;
    ComPtr<IDispatch> wscript_;
    bool failed_ = false;
};

}  // namespace quorvane::host
