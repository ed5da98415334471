#include "tests/com/testComponents/EventConnector.h"

#include "tests/com/host/Variant.h"
#include "tests/com/host/text.h"

namespace quorvane::host {

namespace {

void setText(VARIANT& result, const std::wstring& text) {
    result.vt = VT_BSTR;
    result.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

}  // namespace

EventConnector::EventConnector() {
    addMember(L"Connect", [this](const CallArguments& call, VARIANT&) { return connect(call); });
    addMember(L"Disconnect", [this](const CallArguments&, VARIANT&) {
        const HRESULT outcome = connection_.end();
        handlers_.reset();
        return outcome;
    });
    addMember(L"Source", [this](const CallArguments&, VARIANT& result) {
        setText(result, source_);
        return S_OK;
    });
    addMember(L"Description", [this](const CallArguments&, VARIANT& result) {
        setText(result, description_);
        return S_OK;
    });
    addMember(L"HelpContext", [this](const CallArguments&, VARIANT& result) {
        result.vt = VT_I4;
        result.lVal = static_cast<LONG>(helpContext_);
        return S_OK;
    });
}

HRESULT EventConnector::connect(const CallArguments& arguments) {
    IDispatch* const source = arguments.object(0);
    IDispatch* const handlers = arguments.object(1);
    if (!source || !handlers) {
        return DISP_E_TYPEMISMATCH;
    }
    handlers_ = ComPtr<IDispatch>(handlers);
    connection_ = EventConnection(source, [this](const std::wstring& name, DISPPARAMS& values) {
        readErrorObject();
        return pass(name, values);
    });
    return connection_.outcome();
}

HRESULT EventConnector::pass(const std::wstring& name, DISPPARAMS& arguments) {
    std::wstring wanted = name;
    LPOLESTR names[] = {wanted.data()};
    DISPID id = DISPID_UNKNOWN;
    if (FAILED(handlers_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id))) {
        id = DISPID_VALUE;
    }
    return handlers_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &arguments,
                             nullptr, nullptr, nullptr);
}

void EventConnector::readErrorObject() {
    ComPtr<IErrorInfo> info;
    source_.clear();
    description_.clear();
    helpContext_ = 0;
    if (GetErrorInfo(0, info.out()) == S_OK) {
        Bstr source;
        Bstr description;
        info->GetSource(source.out());
        info->GetDescription(description.out());
        info->GetHelpContext(&helpContext_);
        source_ = textOf(source.get());
        description_ = textOf(description.get());
    }
}

}  // namespace quorvane::host
