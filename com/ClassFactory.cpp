#include "com/ClassFactory.h"

#include "com/CRtfDocObject.h"
#include "com/CRtfDriverObject.h"
#include "com/ComPtr.h"
#include "com/WrapperRegistry.h"
#include "com/document/DocumentObject.h"
#include "com/hostErrors.h"

namespace quorvane::com {

namespace {

template <class Object>
HRESULT create(REFIID interfaceId, void** object) {
    ComPtr<Object> created;
    const HRESULT result = toHresult(interfaceId, [&] {
        created = WrapperRegistry<Object>::wrapperOf(Object::Native::create());
    });
    return FAILED(result) ? result : created->QueryInterface(interfaceId, object);
}

}  // namespace

STDMETHODIMP ClassFactory::QueryInterface(REFIID interfaceId, void** object) {
    if (!object) {
        return E_POINTER;
    }
    const bool isKnown =
        IsEqualIID(interfaceId, IID_IClassFactory) || IsEqualIID(interfaceId, IID_IUnknown);
    *object = isKnown ? static_cast<IClassFactory*>(this) : nullptr;
    if (!isKnown) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) ClassFactory::AddRef() {
    return static_cast<ULONG>(InterlockedIncrement(&references_));
}

STDMETHODIMP_(ULONG) ClassFactory::Release() {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) {
        delete this;
    }
    return static_cast<ULONG>(left);
}

STDMETHODIMP ClassFactory::CreateInstance(IUnknown* outer, REFIID interfaceId, void** object) {
    if (!object) {
        return E_POINTER;
    }
    *object = nullptr;
    return outer ? CLASS_E_NOAGGREGATION : create_(interfaceId, object);
}

STDMETHODIMP ClassFactory::LockServer(BOOL lock) {
    lockModule(lock != FALSE);
    return S_OK;
}

ClassFactory* newClassFactory(REFCLSID classId) {
    if (IsEqualCLSID(classId, CLSID_CRtfDoc)) {
        return new ClassFactory(create<CRtfDocObject>);
    }
    if (IsEqualCLSID(classId, CLSID_CRtfDriver)) {
        return new ClassFactory(create<CRtfDriverObject>);
    }
    if (IsEqualCLSID(classId, CLSID_Document)) {
        return new ClassFactory(create<DocumentObject>);
    }
    return nullptr;
}

}  // namespace quorvane::com
