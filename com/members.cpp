#include "com/members.h"

#include <algorithm>

#include "com/ComPtr.h"
#include "com/hostErrors.h"

namespace quorvane::com {

namespace {

/// Moves the thread's error object to where a late-bound caller looks.
HRESULT exceptionOf(HRESULT failure, EXCEPINFO* exception) noexcept {
    if (!exception) {
        return DISP_E_EXCEPTION;
    }
    *exception = {};
    exception->scode = failure;
    ComPtr<IErrorInfo> error;
    if (GetErrorInfo(0, error.out()) == S_OK) {
        error->GetDescription(&exception->bstrDescription);
        error->GetSource(&exception->bstrSource);
        error->GetHelpFile(&exception->bstrHelpFile);
        error->GetHelpContext(&exception->dwHelpContext);
    }
    return DISP_E_EXCEPTION;
}

HRESULT invokeDefault(const Member& property, IDispatch* object, const LateCall& call) noexcept {
    DISPPARAMS none{};
    Arguments arguments(none, call.locale, nullptr, 0, false);
    VARIANT value;
    VariantInit(&value);
    const HRESULT result = property.call(object, arguments, &value);
    if (FAILED(result)) {
        return exceptionOf(result, call.exception);
    }
    const auto owner = ComPtr<IDispatch>::adopt(V_DISPATCH(&value));
    if (!owner) {
        return DISP_E_BADPARAMCOUNT;
    }
    return owner->Invoke(DISPID_VALUE, call.reserved, call.locale, call.kind, call.arguments,
                         call.result, call.exception, call.badArgument);
}

}  // namespace

bool isReserved(REFIID interfaceId) noexcept {
    // A reference cannot be null as far as the compiler knows.
    const IID* const volatile id = &interfaceId;
    return !id || IsEqualIID(*id, IID_NULL);
}

HRESULT invoke(std::span<const Member> members, IDispatch* object, const LateCall& call) noexcept {
    clearErrorObject();
    if (!isReserved(call.reserved)) {
        return DISP_E_UNKNOWNINTERFACE;
    }
    const DISPPARAMS* given = call.arguments;
    if (!given || (given->cArgs > 0 && !given->rgvarg) ||
        (given->cNamedArgs > 0 && !given->rgdispidNamedArgs)) {
        return E_INVALIDARG;
    }
    if (call.result) {
        VariantInit(call.result);
    }
    const auto found = std::find_if(members.begin(), members.end(), [&call](const Member& member) {
        return member.id == call.id && (member.kinds & call.kind) != 0;
    });
    if (found == members.end()) {
        return DISP_E_MEMBERNOTFOUND;
    }
    if (found->parameters == 0 && found->returnsObject && call.arguments->cArgs > 0) {
        return invokeDefault(*found, object, call);
    }
    Arguments arguments(*call.arguments, call.locale, call.badArgument, found->parameters,
                        found->kinds == DISPATCH_PROPERTYPUT);
    const HRESULT checked = arguments.check(found->required);
    if (FAILED(checked)) {
        return checked;
    }
    const HRESULT result = found->call(object, arguments, call.result);
    return FAILED(result) && arguments.areRead() ? exceptionOf(result, call.exception) : result;
}

}  // namespace quorvane::com
