#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "tests/com/host/ComPtr.h"

namespace quorvane::host {

/// A value as the system's functions take it, which do not say that they only read it.
inline VARIANT* input(const VARIANT& value) {
    return const_cast<VARIANT*>(&value);
}

/// A value of automation, cleared at its end.
class Variant {
public:
    Variant() { VariantInit(&value_); }
    Variant(int value) : Variant(static_cast<long>(value)) {}
    Variant(long value) : Variant() {
        value_.vt = VT_I4;
        value_.lVal = value;
    }
    Variant(short value) : Variant() {
        value_.vt = VT_I2;
        value_.iVal = value;
    }
    Variant(double value) : Variant() {
        value_.vt = VT_R8;
        value_.dblVal = value;
    }
    Variant(bool value) : Variant() {
        value_.vt = VT_BOOL;
        value_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    }
    Variant(std::wstring_view text);
    Variant(std::string_view utf8);
    Variant(const char* utf8) : Variant(std::string_view(utf8)) {}
    Variant(const std::string& utf8) : Variant(std::string_view(utf8)) {}
    Variant(const wchar_t* text) : Variant(std::wstring_view(text)) {}
    Variant(const std::wstring& text) : Variant(std::wstring_view(text)) {}
    explicit Variant(IDispatch* object);
    /// A copy of a value that is not owned, or of the one that it refers to.
    explicit Variant(const VARIANT& value) : Variant() { VariantCopyInd(&value_, input(value)); }
    Variant(const Variant& other) : Variant() { VariantCopy(&value_, input(other.value_)); }
    Variant(Variant&& other) noexcept : value_(other.value_) { VariantInit(&other.value_); }
    Variant& operator=(Variant other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }
    ~Variant() { VariantClear(&value_); }

    /// An argument that is left out.
    static Variant missing();
    static Variant null();
    /// A variable of the given type, handed over by reference.
    static Variant byReference(VARIANT& variable);
    /// A value of the given type whose bits are those of a 64-bit number.
    static Variant ofType(VARTYPE type, LONGLONG bits);

    VARTYPE type() const { return value_.vt; }
    const VARIANT& get() const { return value_; }
    /// The value as a variable that others read and may change.
    VARIANT* reference() { return &value_; }
    /// Where a callee puts a value.
    VARIANT* out() {
        VariantClear(&value_);
        return &value_;
    }

    /// The value as a number; a test that asks for one of something else ends with an exception.
    long number() const;
    bool truth() const;
    /// The text; the value must be one.
    std::string text() const;
    std::wstring wide() const;
    /// The object as a counted reference; null for a null object and for a value that is not an
    /// object.
    ComPtr<IDispatch> object() const;

private:
    VARIANT value_;
};

/// The value that a by-reference variable refers to, or the value itself.
const VARIANT& dereferenced(const VARIANT& value);

/// Type and value as one text, such as "I4 12", "BSTR abc", "Nothing": equal for equal results.
std::string describe(const VARIANT& value);

}  // namespace quorvane::host
