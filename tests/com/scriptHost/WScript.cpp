#include "tests/com/scriptHost/WScript.h"

#include <cstdio>
#include <utility>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Variant.h"
#include "tests/com/host/text.h"

namespace quorvane::host {

namespace {

void setText(VARIANT& result, const std::wstring& text) {
    result.vt = VT_BSTR;
    result.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

void setNumber(VARIANT& result, std::size_t number) {
    result.vt = VT_I4;
    result.lVal = static_cast<LONG>(number);
}

// The arguments of the script, counted from 0.
class ScriptArguments : public NamedMembers {
public:
    explicit ScriptArguments(std::vector<std::wstring> arguments)
        : arguments_(std::move(arguments)) {
        const Member count = [this](const CallArguments&, VARIANT& result) {
            setNumber(result, arguments_.size());
            return S_OK;
        };
        addMember(L"Count", count);
        addMember(L"length", count);
        addMember(L"Item", [this](const CallArguments& call, VARIANT& result) {
            const long index = call.number(0);
            if (index < 0 || static_cast<std::size_t>(index) >= arguments_.size()) {
                return HRESULT_FROM_WIN32(ERROR_INVALID_INDEX);
            }
            setText(result, arguments_[static_cast<std::size_t>(index)]);
            return S_OK;
        });
        makeDefault();
    }

private:
    std::vector<std::wstring> arguments_;
};

// Calls the script's procedure of that name; a script that has none misses nothing.
HRESULT callProcedure(IDispatch* script, const std::wstring& name, DISPPARAMS& arguments) {
    std::wstring wanted = name;
    LPOLESTR names[] = {wanted.data()};
    DISPID id = DISPID_UNKNOWN;
    if (!script || FAILED(script->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id))) {
        return S_OK;
    }
    return script->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &arguments, nullptr,
                          nullptr, nullptr);
}

}  // namespace

WScript::WScript(std::wstring scriptPath, std::vector<std::wstring> arguments) {
    addMember(L"Echo", [](const CallArguments& call, VARIANT&) {
        std::string line;
        for (UINT i = 0; i < call.count(); ++i) {
            line += (i == 0 ? "" : " ") + utf8Text(call.text(i));
        }
        std::printf("%s\r\n", line.c_str());
        return S_OK;
    });
    const auto list = makeCom<ScriptArguments>(std::move(arguments));
    addMember(L"Arguments", [list](const CallArguments& call, VARIANT& result) {
        if (call.count() > 0) {
            DISPPARAMS parameters = {&call.raw(0), nullptr, 1, 0};
            return list->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                                &parameters, &result, nullptr, nullptr);
        }
        result.vt = VT_DISPATCH;
        result.pdispVal = ComPtr<IDispatch>(list.get()).detach();
        return S_OK;
    });
    addMember(L"CreateObject", [this](const CallArguments& call, VARIANT& result) {
        return createObject(call, result);
    });
    addMember(L"ConnectObject", [this](const CallArguments& call, VARIANT&) {
        return call.object(0) ? connect(call.object(0), call.text(1)) : DISP_E_TYPEMISMATCH;
    });
    addMember(L"DisconnectObject", [this](const CallArguments& call, VARIANT&) {
        connections_.erase(call.object(0));
        return S_OK;
    });
    addMember(L"ScriptFullName", [scriptPath](const CallArguments&, VARIANT& result) {
        setText(result, scriptPath);
        return S_OK;
    });
    addMember(L"Quit", [](const CallArguments& call, VARIANT&) -> HRESULT {
        std::fflush(stdout);
        ExitProcess(call.count() > 0 ? static_cast<UINT>(call.number(0)) : 0);
    });
}

HRESULT WScript::connect(IUnknown* object, const std::wstring& prefix) {
    EventConnection connection(object,
                               [this, prefix](const std::wstring& name, DISPPARAMS& arguments) {
                                   return callProcedure(script_, prefix + name, arguments);
                               });
    const HRESULT outcome = connection.outcome();
    if (SUCCEEDED(outcome)) {
        connections_.emplace(object, std::move(connection));
    }
    return outcome;
}

HRESULT WScript::createObject(const CallArguments& arguments, VARIANT& result) {
    CLSID id;
    HRESULT outcome = CLSIDFromProgID(arguments.text(0).c_str(), &id);
    ComPtr<IDispatch> object;
    if (SUCCEEDED(outcome)) {
        outcome = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                   IID_IDispatch, object.outVoid());
    }
    if (SUCCEEDED(outcome) && arguments.count() > 1) {
        outcome = connect(object.get(), arguments.text(1));
    }
    if (SUCCEEDED(outcome)) {
        result.vt = VT_DISPATCH;
        result.pdispVal = object.detach();
    }
    return outcome;
}

}  // namespace quorvane::host
