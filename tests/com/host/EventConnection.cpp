#include "tests/com/host/EventConnection.h"

#include <utility>

#include "tests/com/host/ComObject.h"
#include "tests/com/host/text.h"

namespace quorvane::host {

namespace {

class Sink : public ComObject<IDispatch> {
public:
    Sink(REFIID events, ComPtr<ITypeInfo> description, EventHandler handler)
        : events_(events), description_(std::move(description)), handler_(std::move(handler)) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override {
        return DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*,
                                     EXCEPINFO*, UINT*) override {
        Bstr name;
        UINT count = 0;
        if (FAILED(description_->GetNames(id, name.out(), 1, &count))) {
            return DISP_E_MEMBERNOTFOUND;
        }
        return handler_(std::wstring(textOf(name.get())), *arguments);
    }

protected:
    void* find(REFIID iid) override {
        return IsEqualIID(iid, events_) ? static_cast<IDispatch*>(this) : ComObject::find(iid);
    }

private:
    IID events_;
    ComPtr<ITypeInfo> description_;
    EventHandler handler_;
};

// The description of the class's default events.
ComPtr<ITypeInfo> defaultEvents(ITypeInfo* classInfo) {
    TYPEATTR* attributes = nullptr;
    if (FAILED(classInfo->GetTypeAttr(&attributes))) {
        return {};
    }
    const UINT count = attributes->cImplTypes;
    classInfo->ReleaseTypeAttr(attributes);
    for (UINT i = 0; i < count; ++i) {
        const int wanted = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;
        int flags = 0;
        HREFTYPE reference = 0;
        ComPtr<ITypeInfo> events;
        if (SUCCEEDED(classInfo->GetImplTypeFlags(i, &flags)) && (flags & wanted) == wanted &&
            SUCCEEDED(classInfo->GetRefTypeOfImplType(i, &reference)) &&
            SUCCEEDED(classInfo->GetRefTypeInfo(reference, events.out()))) {
            return events;
        }
    }
    return {};
}

}  // namespace

EventConnection::EventConnection(IUnknown* source, EventHandler handler) {
    outcome_ = connect(source, std::move(handler));
}

EventConnection& EventConnection::operator=(EventConnection&& other) noexcept {
    std::swap(outcome_, other.outcome_);
    std::swap(point_, other.point_);
    std::swap(cookie_, other.cookie_);
    return *this;
}

HRESULT EventConnection::end() {
    if (!point_) {
        return S_FALSE;
    }
    const HRESULT outcome = point_->Unadvise(cookie_);
    point_.reset();
    return outcome;
}

HRESULT EventConnection::connect(IUnknown* source, EventHandler handler) {
    const ComPtr<IUnknown> object(source);
    const auto provider = object.as<IProvideClassInfo2>();
    const auto container = object.as<IConnectionPointContainer>();
    IID iid{};
    ComPtr<ITypeInfo> classInfo;
    if (!provider || !container) {
        return E_NOINTERFACE;
    }
    HRESULT outcome = provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &iid);
    if (SUCCEEDED(outcome)) {
        outcome = provider->GetClassInfo(classInfo.out());
    }
    if (FAILED(outcome)) {
        return outcome;
    }
    ComPtr<ITypeInfo> events = defaultEvents(classInfo.get());
    if (!events) {
        return E_NOINTERFACE;
    }
    outcome = container->FindConnectionPoint(iid, point_.out());
    if (SUCCEEDED(outcome)) {
        const auto sink = makeCom<Sink>(iid, std::move(events), std::move(handler));
        outcome = point_->Advise(sink.get(), &cookie_);
    }
    if (FAILED(outcome)) {
        point_.reset();
    }
    return outcome;
}

}  // namespace quorvane::host
