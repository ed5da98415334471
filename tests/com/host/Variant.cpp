#include "tests/com/host/Variant.h"

#include <stdexcept>

#include "tests/com/host/text.h"

namespace quorvane::host {

namespace {

VARIANT convertedTo(VARTYPE type, const VARIANT& value) {
    VARIANT converted;
    VariantInit(&converted);
    if (FAILED(VariantChangeType(&converted, input(value), 0, type))) {
        throw std::runtime_error("a value that cannot be converted: " + describe(value));
    }
    return converted;
}

}  // namespace

Variant::Variant(std::wstring_view text) : Variant() {
    value_.vt = VT_BSTR;
    value_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

Variant::Variant(std::string_view utf8) : Variant(std::wstring_view(wideText(utf8))) {}

Variant::Variant(IDispatch* object) : Variant() {
    value_.vt = VT_DISPATCH;
    value_.pdispVal = object;
    if (object) {
        object->AddRef();
    }
}

Variant Variant::missing() {
    Variant value;
    value.value_.vt = VT_ERROR;
    value.value_.scode = DISP_E_PARAMNOTFOUND;
    return value;
}

Variant Variant::null() {
    Variant value;
    value.value_.vt = VT_NULL;
    return value;
}

Variant Variant::byReference(VARIANT& variable) {
    Variant value;
    value.value_.vt = VT_BYREF | VT_VARIANT;
    value.value_.pvarVal = &variable;
    return value;
}

Variant Variant::ofType(VARTYPE type, LONGLONG bits) {
    Variant value;
    value.value_.vt = type;
    value.value_.llVal = bits;
    return value;
}

long Variant::number() const {
    return convertedTo(VT_I4, value_).lVal;
}

bool Variant::truth() const {
    return convertedTo(VT_BOOL, value_).boolVal != VARIANT_FALSE;
}

std::string Variant::text() const {
    return utf8Text(wide());
}

std::wstring Variant::wide() const {
    if (value_.vt != VT_BSTR) {
        throw std::runtime_error("a value that is no text: " + describe(value_));
    }
    return std::wstring(textOf(value_.bstrVal));
}

ComPtr<IDispatch> Variant::object() const {
    return ComPtr<IDispatch>(value_.vt == VT_DISPATCH ? value_.pdispVal : nullptr);
}

const VARIANT& dereferenced(const VARIANT& value) {
    return value.vt == (VT_BYREF | VT_VARIANT) ? dereferenced(*value.pvarVal) : value;
}

std::string describe(const VARIANT& value) {
    switch (value.vt) {
        case VT_EMPTY:
            return "Empty";
        case VT_NULL:
            return "Null";
        case VT_I2:
            return "I2 " + std::to_string(value.iVal);
        case VT_I4:
            return "I4 " + std::to_string(value.lVal);
        case VT_R8:
            return "R8 " + std::to_string(value.dblVal);
        case VT_BOOL:
            return value.boolVal ? "True" : "False";
        case VT_BSTR:
            return "BSTR " + utf8Text(textOf(value.bstrVal));
        case VT_DISPATCH:
            return value.pdispVal ? "Object" : "Nothing";
        case VT_UNKNOWN:
            return value.punkVal ? "Unknown" : "Unknown Nothing";
        default:
            return "type " + std::to_string(value.vt);
    }
}

}  // namespace quorvane::host
