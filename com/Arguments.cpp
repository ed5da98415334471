#include "com/Arguments.h"

#include <algorithm>

#include "com/Arithmetic.h"
#include "com/hostValue.h"

namespace quorvane::com {

HRESULT Arguments::check(UINT required) const noexcept {
    if (given_.cArgs > parameters_ || given_.cArgs < required || given_.cNamedArgs > given_.cArgs) {
        return DISP_E_BADPARAMCOUNT;
    }
    const UINT positional = given_.cArgs - given_.cNamedArgs;
    for (UINT i = 0; i < given_.cNamedArgs; ++i) {
        const DISPID name = given_.rgdispidNamedArgs[i];
        const bool isValue = isPut_ && name == DISPID_PROPERTYPUT;
        const bool isParameter =
            name >= static_cast<DISPID>(positional) && name < static_cast<DISPID>(parameters_);
        if (!isValue && !isParameter) {
            return bad(&given_.rgvarg[i], DISP_E_PARAMNOTFOUND);
        }
    }
    return S_OK;
}

DISPID Arguments::nameOf(UINT parameter) const noexcept {
    return isPut_ && parameter + 1 == parameters_ ? DISPID_PROPERTYPUT
                                                  : static_cast<DISPID>(parameter);
}

VARIANT* Arguments::at(UINT parameter) const noexcept {
    if (parameter < given_.cArgs - given_.cNamedArgs) {
        return &given_.rgvarg[given_.cArgs - 1 - parameter];
    }
    const DISPID* names = given_.rgdispidNamedArgs;
    const DISPID* end = names + given_.cNamedArgs;
    const DISPID* found = std::find(names, end, nameOf(parameter));
    return found == end ? nullptr : &given_.rgvarg[found - names];
}

VARIANT* Arguments::find(UINT parameter) const noexcept {
    VARIANT* argument = at(parameter);
    return argument && V_VT(argument) == (VT_BYREF | VT_VARIANT) ? V_VARIANTREF(argument)
                                                                 : argument;
}

HRESULT Arguments::read(UINT parameter, VARTYPE type, VARIANT& room,
                        const VARIANT*& value) const noexcept {
    VARIANT* argument = find(parameter);
    if (!argument || (V_VT(argument) == VT_ERROR && V_ERROR(argument) == DISP_E_PARAMNOTFOUND)) {
        return bad(at(parameter), DISP_E_PARAMNOTOPTIONAL);
    }
    if (V_VT(argument) == type) {
        value = argument;
        return S_OK;
    }
    value = &room;
    if (refersToNothing(*argument)) {
        return bad(at(parameter), DISP_E_TYPEMISMATCH);
    }
    const UsualArithmetic arithmetic;
    return bad(at(parameter), VariantChangeTypeEx(&room, argument, locale_, 0, type));
}

HRESULT Arguments::bad(const VARIANT* argument, HRESULT result) const noexcept {
    if (FAILED(result) && argument && badArgument_) {
        *badArgument_ = static_cast<UINT>(argument - given_.rgvarg);
    }
    return result;
}

}  // namespace quorvane::com
