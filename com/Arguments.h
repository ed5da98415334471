#pragma once

#include <windows.h>

#include <oleauto.h>

#include <type_traits>

namespace quorvane::com {

/// The arguments of a late-bound call: by position (the last one first), by name, or the value of a
/// property that is put.
class Arguments {
public:
    /// `parameters` is how many the member has; the last one of a put is the property's value.
    Arguments(const DISPPARAMS& given, LCID locale, UINT* badArgument, UINT parameters,
              bool isPut) noexcept
        : given_(given),
          locale_(locale),
          badArgument_(badArgument),
          parameters_(parameters),
          isPut_(isPut) {}

    /// Whether there are neither too few nor too many, and every name is one of the member's.
    HRESULT check(UINT required) const noexcept;

    /// The argument of a parameter, a variable passed by reference as its value; null when it is
    /// not given.
    VARIANT* find(UINT parameter) const noexcept;

    /// The argument, which must be given, as a value of a type: the argument itself, or `room` with
    /// the converted value.
    HRESULT read(UINT parameter, VARTYPE type, VARIANT& room, const VARIANT*& value) const noexcept;

    /// Set when all arguments are read: what fails then is the member itself.
    void setRead() noexcept { areRead_ = true; }
    bool areRead() const noexcept { return areRead_; }

private:
    DISPID nameOf(UINT parameter) const noexcept;
    VARIANT* at(UINT parameter) const noexcept;
    HRESULT bad(const VARIANT* argument, HRESULT result) const noexcept;

    const DISPPARAMS& given_;
    LCID locale_;
    UINT* badArgument_;
    UINT parameters_;
    bool isPut_;
    bool areRead_ = false;
};

// One parameter of a member for the time of a call: where its argument comes from, and where its
// result goes.

/// An argument that is converted to its type when it has another one.
template <VARTYPE type>
class ConvertedParameter {
public:
    static constexpr bool isInput = true;
    static constexpr bool isRequired = true;
    static constexpr bool returnsObject = false;

    ConvertedParameter() noexcept { VariantInit(&room_); }
    ConvertedParameter(const ConvertedParameter&) = delete;
    ConvertedParameter& operator=(const ConvertedParameter&) = delete;
    ~ConvertedParameter() { VariantClear(&room_); }

    HRESULT read(const Arguments& arguments, UINT position) noexcept {
        return arguments.read(position, type, room_, value_);
    }
    void writeResult(VARIANT*) noexcept {}

protected:
    const VARIANT* value_ = nullptr;

private:
    VARIANT room_;
};

/// A 32-bit number, or a value of an enumeration.
template <class T>
class Parameter : public ConvertedParameter<VT_I4> {
public:
    T pass() const noexcept { return static_cast<T>(V_I4(value_)); }
};

template <>
class Parameter<VARIANT_BOOL> : public ConvertedParameter<VT_BOOL> {
public:
    VARIANT_BOOL pass() const noexcept { return V_BOOL(value_); }
};

template <>
class Parameter<BSTR> : public ConvertedParameter<VT_BSTR> {
public:
    BSTR pass() const noexcept { return V_BSTR(value_); }
};

/// A value of any type.
template <>
class Parameter<VARIANT> {
public:
    static constexpr bool isInput = true;
    static constexpr bool isRequired = true;
    static constexpr bool returnsObject = false;

    HRESULT read(const Arguments& arguments, UINT position) noexcept {
        value_ = arguments.find(position);
        return value_ ? S_OK : DISP_E_PARAMNOTOPTIONAL;
    }
    VARIANT pass() const noexcept { return *value_; }
    void writeResult(VARIANT*) noexcept {}

private:
    VARIANT* value_ = nullptr;
};

/// An optional value of any type, by reference; null when it is not given.
template <>
class Parameter<VARIANT*> {
public:
    static constexpr bool isInput = true;
    static constexpr bool isRequired = false;
    static constexpr bool returnsObject = false;

    HRESULT read(const Arguments& arguments, UINT position) noexcept {
        value_ = arguments.find(position);
        return S_OK;
    }
    VARIANT* pass() const noexcept { return value_; }
    void writeResult(VARIANT*) noexcept {}

private:
    VARIANT* value_ = nullptr;
};

/// The result of a member.
template <bool isObject = false>
class ResultParameter {
public:
    static constexpr bool isInput = false;
    static constexpr bool isRequired = false;
    static constexpr bool returnsObject = isObject;

    HRESULT read(const Arguments&, UINT) noexcept { return S_OK; }
};

/// Returns a 32-bit number, or a value of an enumeration.
template <class T>
class Parameter<T*> : public ResultParameter<> {
public:
    T* pass() noexcept { return &value_; }
    void writeResult(VARIANT* result) const noexcept {
        if (result) {
            V_VT(result) = VT_I4;
            V_I4(result) = static_cast<LONG>(value_);
        }
    }

private:
    T value_{};
};

template <>
class Parameter<VARIANT_BOOL*> : public ResultParameter<> {
public:
    VARIANT_BOOL* pass() noexcept { return &value_; }
    void writeResult(VARIANT* result) const noexcept {
        if (result) {
            V_VT(result) = VT_BOOL;
            V_BOOL(result) = value_;
        }
    }

private:
    VARIANT_BOOL value_ = VARIANT_FALSE;
};

template <>
class Parameter<BSTR*> : public ResultParameter<> {
public:
    BSTR* pass() noexcept { return &text_; }
    void writeResult(VARIANT* result) const noexcept {
        if (result) {
            V_VT(result) = VT_BSTR;
            V_BSTR(result) = text_;
        } else {
            SysFreeString(text_);
        }
    }

private:
    BSTR text_ = nullptr;
};

/// Returns an object, or null.
template <class Interface>
class Parameter<Interface**> : public ResultParameter<std::is_base_of_v<IDispatch, Interface>> {
public:
    Interface** pass() noexcept { return &object_; }
    void writeResult(VARIANT* result) const noexcept {
        if (!result) {
            if (object_) {
                object_->Release();
            }
        } else if constexpr (Parameter::returnsObject) {
            V_VT(result) = VT_DISPATCH;
            V_DISPATCH(result) = object_;
        } else {
            V_VT(result) = VT_UNKNOWN;
            V_UNKNOWN(result) = object_;
        }
    }

private:
    Interface* object_ = nullptr;
};

}  // namespace quorvane::com
