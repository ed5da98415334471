#include "tests/com/host/LateBound.h"

#include <algorithm>
#include <stdexcept>

#include "tests/com/host/text.h"

namespace quorvane::host {

namespace {

HostError errorOf(HRESULT status, EXCEPINFO& exception) {
    if (status != DISP_E_EXCEPTION) {
        return takeErrorObject(status);
    }
    if (exception.pfnDeferredFillIn) {
        exception.pfnDeferredFillIn(&exception);
    }
    HostError error;
    error.number = exception.wCode ? runTimeError(exception.wCode) : exception.scode;
    error.source = utf8Text(textOf(exception.bstrSource));
    error.description = utf8Text(textOf(exception.bstrDescription));
    error.helpContext = exception.dwHelpContext;
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    return error;
}

std::vector<DISPID> idsOf(IDispatch& object, const std::vector<std::string>& names) {
    std::vector<std::wstring> wideNames;
    std::vector<LPOLESTR> pointers;
    for (const std::string& name : names) {
        wideNames.push_back(wideText(name));
    }
    for (std::wstring& name : wideNames) {
        pointers.push_back(name.data());
    }
    std::vector<DISPID> ids(names.size(), DISPID_UNKNOWN);
    object.GetIDsOfNames(IID_NULL, pointers.data(), static_cast<UINT>(pointers.size()),
                         LOCALE_USER_DEFAULT, ids.data());
    return ids;
}

}  // namespace

DISPID LateBound::idOf(const std::string& name) const {
    return idsOf(*object_.get(), {name})[0];
}

Outcome LateBound::get(const std::string& name, std::vector<Variant> arguments) const {
    return invoke(idOf(name), DISPATCH_PROPERTYGET, std::move(arguments));
}

Outcome LateBound::set(const std::string& name, std::vector<Variant> arguments) const {
    return invoke(idOf(name), DISPATCH_PROPERTYPUT, std::move(arguments), {DISPID_PROPERTYPUT});
}

Outcome LateBound::call(const std::string& name, std::vector<Variant> arguments,
                        std::vector<NamedArgument> named) const {
    std::vector<std::string> names = {name};
    for (const NamedArgument& argument : named) {
        names.push_back(argument.name);
    }
    std::vector<DISPID> ids = idsOf(*object_.get(), names);
    for (NamedArgument& argument : named) {
        arguments.push_back(std::move(argument.value));
    }
    return invoke(ids[0], DISPATCH_METHOD, std::move(arguments), {ids.begin() + 1, ids.end()});
}

Outcome LateBound::invoke(DISPID id, WORD flags, std::vector<Variant> arguments) const {
    return invoke(id, flags, std::move(arguments), {});
}

LateBound LateBound::object(const std::string& name, std::vector<Variant> arguments) const {
    const Outcome outcome = get(name, std::move(arguments));
    if (!outcome.value.object()) {
        throw std::runtime_error(name + " returns no object");
    }
    return LateBound(outcome.value.object());
}

Outcome LateBound::invoke(DISPID id, WORD flags, std::vector<Variant> arguments,
                          std::vector<DISPID> namedIds) const {
    // Arguments are handed over from the last to the first, named ones before all others.
    std::vector<VARIANT> values;
    std::for_each(arguments.rbegin(), arguments.rend(),
                  [&values](const Variant& argument) { values.push_back(argument.get()); });
    std::reverse(namedIds.begin(), namedIds.end());

    DISPPARAMS parameters = {values.data(), namedIds.data(), static_cast<UINT>(values.size()),
                             static_cast<UINT>(namedIds.size())};
    EXCEPINFO exception{};
    UINT badArgument = 0;
    Outcome outcome;
    const HRESULT status = object_->Invoke(
        id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
        flags & DISPATCH_PROPERTYPUT ? nullptr : outcome.value.out(), &exception, &badArgument);
    if (FAILED(status)) {
        outcome.error = errorOf(status, exception);
    }
    return outcome;
}

}  // namespace quorvane::host
