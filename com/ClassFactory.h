#pragma once

#include <windows.h>

#include "com/serverModule.h"

namespace quorvane::com {

/// Makes the objects of one class.
class ClassFactory final : public IClassFactory {
public:
    /// Makes an object and returns one of its interfaces.
    using Create = HRESULT (*)(REFIID interfaceId, void** object);

    explicit ClassFactory(Create create) noexcept : create_(create) {}
    ClassFactory(const ClassFactory&) = delete;
    ClassFactory& operator=(const ClassFactory&) = delete;

    STDMETHODIMP QueryInterface(REFIID interfaceId, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID interfaceId, void** object) override;
    STDMETHODIMP LockServer(BOOL lock) override;

private:
    ~ClassFactory() = default;

    ModuleUse use_;
    LONG references_ = 1;
    Create create_;
};

/// The class factory of a class that hosts can create; null for any other class. Throws
/// `std::bad_alloc`.
ClassFactory* newClassFactory(REFCLSID classId);

}  // namespace quorvane::com
