#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstddef>
#include <span>
#include <tuple>
#include <utility>

#include "com/Arguments.h"

namespace quorvane::com {

/// One way in which a late-bound call reaches a member. Each leads to the method of the vtable, so
/// that there is one implementation however a member is called.
struct Member {
    using Call = HRESULT (*)(IDispatch* object, Arguments& arguments, VARIANT* result);

    DISPID id;
    /// The kinds of calls that it serves: DISPATCH_METHOD and so on.
    WORD kinds;
    /// Number of its parameters, the result not counted.
    UINT parameters;
    /// Number of those that must be given.
    UINT required;
    /// True when it returns an object that may have a default member.
    bool returnsObject;
    Call call;
};

/// Calls the method of a vtable with a late-bound call's arguments.
template <class Interface, class... Types, std::size_t... positions>
HRESULT callMethod(HRESULT (STDMETHODCALLTYPE Interface::*method)(Types...), IDispatch* object,
                   Arguments& arguments, [[maybe_unused]] VARIANT* result,
                   std::index_sequence<positions...>) {
    std::tuple<Parameter<Types>...> parameters;
    HRESULT outcome = S_OK;
    (void)((SUCCEEDED(outcome = std::get<positions>(parameters).read(arguments, positions))) &&
           ...);
    if (FAILED(outcome)) {
        return outcome;
    }
    arguments.setRead();
    outcome = (static_cast<Interface*>(object)->*method)(std::get<positions>(parameters).pass()...);
    if (SUCCEEDED(outcome)) {
        (std::get<positions>(parameters).writeResult(result), ...);
    }
    return outcome;
}

/// What a method's type says about it.
template <class Method>
struct MethodTraits;

template <class Interface, class... Types>
struct MethodTraits<HRESULT (STDMETHODCALLTYPE Interface::*)(Types...)> {
    static constexpr UINT parameters = (0U + ... + (Parameter<Types>::isInput ? 1U : 0U));
    static constexpr UINT required = (0U + ... + (Parameter<Types>::isRequired ? 1U : 0U));
    static constexpr bool returnsObject = (false || ... || Parameter<Types>::returnsObject);
    using Positions = std::index_sequence_for<Types...>;
};

template <auto method>
constexpr Member member(DISPID id, WORD kinds) {
    using Traits = MethodTraits<decltype(method)>;
    return {id,
            kinds,
            Traits::parameters,
            Traits::required,
            Traits::returnsObject,
            [](IDispatch* object, Arguments& arguments, VARIANT* result) {
                return callMethod(method, object, arguments, result, typename Traits::Positions());
            }};
}

/// A property that is read. Script engines also ask for it as if it were a method.
template <auto method>
constexpr Member getter(DISPID id) {
    return member<method>(id, DISPATCH_PROPERTYGET | DISPATCH_METHOD);
}

template <auto method>
constexpr Member setter(DISPID id) {
    return member<method>(id, DISPATCH_PROPERTYPUT);
}

template <auto method>
constexpr Member procedure(DISPID id) {
    return member<method>(id, DISPATCH_METHOD);
}

/// A late-bound call, with all that `IDispatch::Invoke` is given.
struct LateCall {
    DISPID id;
    REFIID reserved;
    LCID locale;
    WORD kind;
    DISPPARAMS* arguments;
    VARIANT* result;
    EXCEPINFO* exception;
    UINT* badArgument;
};

/// True for what a late-bound caller must give as the interface: IID_NULL. Some callers give a null
/// pointer, which means the same.
bool isReserved(REFIID interfaceId) noexcept;

/// Makes the call to one of the members. Arguments that follow a property without parameters go to
/// the default member of the object that it returns.
HRESULT invoke(std::span<const Member> members, IDispatch* object, const LateCall& call) noexcept;

}  // namespace quorvane::com
