#include "com/document/scriptArrays.h"

#include <array>
#include <new>
#include <span>
#include <string>

#include "com/document/documentErrors.h"
#include "com/hostValue.h"

namespace quorvane::com {

namespace {

// A `length` is what an object says, and need not be true.
constexpr LONG maxLength = 1'000'000;

[[noreturn]] void refuseArray(HRESULT result) {
    if (result == E_OUTOFMEMORY) {
        throw std::bad_alloc();
    }
    refuseValue("The array cannot be read. Give an array of texts and numbers.");
}

void require(HRESULT result) {
    if (FAILED(result)) {
        refuseArray(result);
    }
}

SAFEARRAY* arrayIn(const VARIANT& value) noexcept {
    return (V_VT(&value) & VT_BYREF) != 0 ? *V_ARRAYREF(&value) : V_ARRAY(&value);
}

/// The bounds of a dimension, which are counted from 1.
struct Bounds {
    Bounds(SAFEARRAY* array, UINT dimension) {
        require(SafeArrayGetLBound(array, dimension, &first));
        require(SafeArrayGetUBound(array, dimension, &last));
    }

    LONG first = 0;
    LONG last = -1;
};

OwnedVariant elementAt(SAFEARRAY* array, VARTYPE type, std::span<LONG> indices) {
    OwnedVariant element;
    VARIANT* const value = element.get();
    if (type == VT_VARIANT) {
        require(SafeArrayGetElement(array, indices.data(), value));
        return element;
    }
    // A decimal number takes the whole of the value, its type included.
    void* const room = type == VT_DECIMAL ? static_cast<void*>(&V_DECIMAL(value)) : &V_I4(value);
    require(SafeArrayGetElement(array, indices.data(), room));
    V_VT(value) = type;
    return element;
}

VARTYPE elementType(SAFEARRAY* array) {
    VARTYPE type = VT_EMPTY;
    require(SafeArrayGetVartype(array, &type));
    if (type == VT_RECORD) {
        refuseArray(DISP_E_TYPEMISMATCH);
    }
    return type;
}

/// The elements of an array with one or two dimensions, where the last index runs.
HostValues elementsOf(SAFEARRAY* array, std::span<LONG> indices) {
    const VARTYPE type = elementType(array);
    const Bounds bounds(array, static_cast<UINT>(indices.size()));
    HostValues elements;
    for (std::int64_t i = bounds.first; i <= bounds.last; ++i) {
        indices.back() = static_cast<LONG>(i);
        elements.push_back(elementAt(array, type, indices));
    }
    return elements;
}

/// The value of a property of a script's object; nothing if it has none of that name.
std::optional<OwnedVariant> propertyOf(IDispatch& object, std::wstring name) {
    LPOLESTR names = name.data();
    DISPID id = DISPID_UNKNOWN;
    const HRESULT found = object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
    if (found == E_OUTOFMEMORY) {
        throw std::bad_alloc();
    }
    if (FAILED(found)) {
        return std::nullopt;
    }
    OwnedVariant value;
    DISPPARAMS none{};
    require(object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                          value.get(), nullptr, nullptr));
    return value;
}

std::optional<HostValues> elementsOf(IDispatch& object) {
    std::optional<OwnedVariant> length = propertyOf(object, L"length");
    if (!length || FAILED(VariantChangeType(length->get(), length->get(), 0, VT_I4))) {
        return std::nullopt;
    }
    const LONG count = V_I4(length->get());
    if (count > maxLength) {
        refuseValue("The array has " + std::to_string(count) + " elements, and " +
                    std::to_string(maxLength) + " are the most.");
    }
    HostValues elements;
    for (LONG i = 0; i < count; ++i) {
        std::optional<OwnedVariant> element = propertyOf(object, std::to_wstring(i));
        elements.push_back(element ? *std::move(element) : OwnedVariant());
    }
    return elements;
}

}  // namespace

const VARIANT& referredValue(const VARIANT& given) {
    // Automation has no references to references, and they could lead in a circle.
    const bool isReference = V_VT(&given) == (VT_BYREF | VT_VARIANT) && !refersToNothing(given);
    const VARIANT& value = isReference ? *V_VARIANTREF(&given) : given;
    if (refersToNothing(value) || V_VT(&value) == (VT_BYREF | VT_VARIANT)) {
        refuseValue("The argument refers to nothing. Give a value.");
    }
    return value;
}

std::optional<HostValues> elementsOf(const VARIANT& given) {
    const VARIANT& value = referredValue(given);
    if (V_VT(&value) == VT_DISPATCH && V_DISPATCH(&value)) {
        return elementsOf(*V_DISPATCH(&value));
    }
    if ((V_VT(&value) & VT_ARRAY) == 0) {
        return std::nullopt;
    }
    SAFEARRAY* const array = arrayIn(value);
    // An array that has no size yet.
    if (SafeArrayGetDim(array) == 0) {
        return HostValues();
    }
    if (SafeArrayGetDim(array) > 1) {
        refuseValue(
            "The array has several dimensions. Give one with one dimension, or use "
            "AddRows.");
    }
    std::array<LONG, 1> indices{};
    return elementsOf(array, indices);
}

std::optional<std::vector<HostValues>> rowsOf(const VARIANT& given) {
    const VARIANT& value = referredValue(given);
    SAFEARRAY* const array = (V_VT(&value) & VT_ARRAY) != 0 ? arrayIn(value) : nullptr;
    if (!array || SafeArrayGetDim(array) != 2) {
        return std::nullopt;
    }
    const Bounds bounds(array, 1);
    std::vector<HostValues> rows;
    for (std::int64_t i = bounds.first; i <= bounds.last; ++i) {
        std::array<LONG, 2> indices{static_cast<LONG>(i), 0};
        rows.push_back(elementsOf(array, indices));
    }
    return rows;
}

}  // namespace quorvane::com
