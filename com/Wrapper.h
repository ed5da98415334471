#pragma once

#include <windows.h>

#include <ocidl.h>
#include <oleauto.h>

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>

#include "com/MemberNames.h"
#include "com/WrapperRegistry.h"
#include "com/hostErrors.h"
#include "com/hostText.h"
#include "com/members.h"
#include "com/serverModule.h"
#include "com/typeLibrary.h"
#include "com/wrappers.h"
#include "quorvane/base/memory/Ref.h"

namespace quorvane::com {

// What the library returns, as the host gets it.

inline void give(BSTR* result, std::string_view text) {
    *result = newBstr(text);
}
inline void give(VARIANT_BOOL* result, bool value) {
    *result = value ? VARIANT_TRUE : VARIANT_FALSE;
}
inline void give(LONG* result, std::int32_t number) {
    *result = number;
}
template <class HostEnumeration, class Enumeration>
requires std::is_enum_v<HostEnumeration>
void give(HostEnumeration* result, Enumeration value) {
    *result = static_cast<HostEnumeration>(static_cast<std::int32_t>(value));
}
template <class Interface, class Native>
void give(Interface** result, Ref<Native> object) {
    *result = wrap(std::move(object));
}

/// A COM object that stands for an object of the library: what all of them have in common.
///
/// `Self` is the class itself. It provides `classId`, the identifier of its class, and `members()`,
/// the members of its interface for late-bound calls; by `extraInterface` and `eventInterface` it
/// can say more.
template <class Self, class HostInterface, class NativeObject>
class Wrapper : public HostInterface, public ISupportErrorInfo, public IProvideClassInfo2 {
public:
    using Interface = HostInterface;
    using Native = NativeObject;

    explicit Wrapper(Ref<Native> native) noexcept : native_(std::move(native)) {}
    Wrapper(const Wrapper&) = delete;
    Wrapper& operator=(const Wrapper&) = delete;

    /// Counts one reference more, unless the last one has been released. Only for the registry.
    bool addRefUnlessReleased() noexcept {
        if (InterlockedIncrement(&references_) > 1) {
            return true;
        }
        InterlockedDecrement(&references_);
        return false;
    }

    STDMETHODIMP QueryInterface(REFIID interfaceId, void** object) override {
        if (!object) {
            return E_POINTER;
        }
        *object = find(interfaceId);
        if (!*object) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override {
        return static_cast<ULONG>(InterlockedIncrement(&references_));
    }
    STDMETHODIMP_(ULONG) Release() override {
        const LONG left = InterlockedDecrement(&references_);
        if (left == 0) {
            WrapperRegistry<Self>::forget(native_.get(), self());
            // What the object releases may use it once more, which must not end it twice.
            constexpr LONG ending = LONG{1} << 30;
            references_ = ending;
            delete self();
        }
        return static_cast<ULONG>(left);
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (!count) {
            return E_POINTER;
        }
        *count = 1;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
        if (!info) {
            return E_POINTER;
        }
        *info = nullptr;
        return index == 0 ? typeInfo(__uuidof(Interface), info) : DISP_E_BADINDEX;
    }
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                               DISPID* ids) override {
        static MemberNamesCache memberNames;
        if (!isReserved(reserved)) {
            return DISP_E_UNKNOWNINTERFACE;
        }
        if (!names || !ids || count == 0 ||
            std::any_of(names, names + count, [](LPOLESTR name) { return !name; })) {
            return E_INVALIDARG;
        }
        return memberNames.find(__uuidof(Interface), names, count, ids);
    }
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD kind, DISPPARAMS* arguments,
                        VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override {
        return invoke(Self::members(), this,
                      {id, reserved, locale, kind, arguments, result, exception, badArgument});
    }

    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID interfaceId) override {
        return IsEqualIID(interfaceId, __uuidof(Interface)) ? S_OK : S_FALSE;
    }

    STDMETHODIMP GetClassInfo(ITypeInfo** info) override {
        if (!info) {
            return E_POINTER;
        }
        *info = nullptr;
        return typeInfo(Self::classId, info);
    }
    STDMETHODIMP GetGUID(DWORD kind, GUID* id) override {
        if (!id) {
            return E_POINTER;
        }
        const GUID* eventInterface = self()->eventInterface();
        const bool isKnown = kind == GUIDKIND_DEFAULT_SOURCE_DISP_IID && eventInterface;
        *id = isKnown ? *eventInterface : GUID_NULL;
        return isKnown ? S_OK : E_INVALIDARG;
    }

protected:
    ~Wrapper() = default;

    Native& native() const noexcept { return *native_; }

    /// An interface that only this class has; null when it does not have it either.
    void* extraInterface(REFIID) noexcept { return nullptr; }
    /// The interface of the class's events; null when it has none.
    const GUID* eventInterface() const noexcept { return nullptr; }

    /// A method that returns nothing.
    template <Source source = Source::Added, class Body>
    HRESULT run(Body&& body) const noexcept {
        return toHresult<source>(__uuidof(Interface), std::forward<Body>(body));
    }

    /// A method that returns what its body does.
    template <class Result, class Body>
    HRESULT get(Result* result, Body&& body) const noexcept {
        if (!result) {
            return plainFailure(E_POINTER);
        }
        *result = Result{};
        return run([&] { give(result, std::forward<Body>(body)()); });
    }

    /// A property that is stored as a number, a flag or a name of an enumeration, and takes no
    /// arithmetic to read. Reading the processor's floating-point settings would take several times
    /// as long as reading the property.
    template <class Result, class Body>
    HRESULT getStored(Result* result, Body&& body) const noexcept {
        static_assert(std::is_integral_v<Result> || std::is_enum_v<Result>);
        if (!result) {
            return plainFailure(E_POINTER);
        }
        *result = Result{};
        return toHresultAsIs(__uuidof(Interface),
                             [&] { give(result, std::forward<Body>(body)()); });
    }

private:
    Self* self() noexcept { return static_cast<Self*>(this); }

    void* find(REFIID interfaceId) noexcept {
        if (IsEqualIID(interfaceId, __uuidof(Interface)) ||
            IsEqualIID(interfaceId, IID_IDispatch) || IsEqualIID(interfaceId, IID_IUnknown)) {
            return static_cast<Interface*>(this);
        }
        if (IsEqualIID(interfaceId, IID_ISupportErrorInfo)) {
            return static_cast<ISupportErrorInfo*>(this);
        }
        if (IsEqualIID(interfaceId, IID_IProvideClassInfo) ||
            IsEqualIID(interfaceId, IID_IProvideClassInfo2)) {
            return static_cast<IProvideClassInfo2*>(this);
        }
        return self()->extraInterface(interfaceId);
    }

    ModuleUse use_;
    LONG references_ = 0;
    Ref<Native> native_;
};

}  // namespace quorvane::com
