#include "com/hostValue.h"

#include <memory>
#include <new>

#include "com/OwnedVariant.h"
#include "com/hostText.h"
#include "quorvane/base/values/Object.h"

namespace quorvane::com {

namespace {

/// Stands for any object of the host: the library takes none where it takes a value.
class HostObject : public Object {};

Value doubleOf(const VARIANT& value) {
    OwnedVariant number;
    if (FAILED(VariantChangeType(number.get(), const_cast<VARIANT*>(&value), 0, VT_R8))) {
        return Null{};
    }
    return V_R8(number.get());
}

Value pointedTo(const VARIANT& reference) {
    if (refersToNothing(reference)) {
        return Null{};
    }
    if (V_VT(&reference) == (VT_BYREF | VT_VARIANT)) {
        // Automation has no references to references, and they could lead in a circle.
        const VARIANT& value = *V_VARIANTREF(&reference);
        return V_VT(&value) == (VT_BYREF | VT_VARIANT) ? Value(Null{}) : valueOf(value);
    }
    OwnedVariant value;
    const HRESULT result = VariantCopyInd(value.get(), const_cast<VARIANT*>(&reference));
    if (result == E_OUTOFMEMORY) {
        throw std::bad_alloc();
    }
    return FAILED(result) ? Value(Null{}) : valueOf(*value.get());
}

}  // namespace

Value valueOf(const VARIANT& value) {
    switch (V_VT(&value)) {
        case VT_EMPTY:
            return Empty{};
        case VT_BSTR:
            return textOf(V_BSTR(&value));
        case VT_I2:
            return std::int16_t{V_I2(&value)};
        case VT_I4:
            return static_cast<std::int32_t>(V_I4(&value));
        case VT_R4:
            return V_R4(&value);
        case VT_R8:
            return V_R8(&value);
        case VT_BOOL:
            return V_BOOL(&value) != VARIANT_FALSE;
        case VT_DATE:
            return Date{V_DATE(&value)};
        case VT_DISPATCH:
        case VT_UNKNOWN:
            return std::make_shared<HostObject>();
        case VT_ERROR:
            return V_ERROR(&value) == DISP_E_PARAMNOTFOUND ? Value(Missing{}) : Value(Null{});
        case VT_CY:
        case VT_DECIMAL:
        case VT_I1:
        case VT_UI1:
        case VT_UI2:
        case VT_UI4:
        case VT_I8:
        case VT_UI8:
        case VT_INT:
        case VT_UINT:
            return doubleOf(value);
        default:
            return (V_VT(&value) & VT_BYREF) != 0 ? pointedTo(value) : Value(Null{});
    }
}

bool refersToNothing(const VARIANT& value) noexcept {
    return (V_VT(&value) & VT_BYREF) != 0 && !V_BYREF(&value);
}

Value valueOf(const VARIANT* value) {
    return value ? valueOf(*value) : Value(Missing{});
}

}  // namespace quorvane::com
