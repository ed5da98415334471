#pragma once

#include <windows.h>

#include <ocidl.h>

#include <span>

#include "com/NotifyErrorPoint.h"
#include "com/Wrapper.h"
#include "quorvane/driver/CRtfDriver.h"

namespace quorvane::com {

/// A driver for a host, with its event.
class CRtfDriverObject final : public Wrapper<CRtfDriverObject, ::_CRtfDriver, CRtfDriver>,
                               public IConnectionPointContainer {
public:
    static constexpr const GUID& classId = CLSID_CRtfDriver;
    static std::span<const Member> members();

    explicit CRtfDriverObject(Ref<CRtfDriver> driver);

    STDMETHODIMP ParseFile(BSTR path) override;
    STDMETHODIMP ParseFromMemmory(BSTR buffer) override;
    STDMETHODIMP LoadStyleSheetFromMemmory(BSTR buffer) override;
    STDMETHODIMP Commit(BSTR path) override;
    STDMETHODIMP get_ErroneousInput(VARIANT_BOOL* value) override;
    STDMETHODIMP put_ErroneousInput(VARIANT_BOOL value) override;
    STDMETHODIMP get_notifyError(VARIANT_BOOL* value) override;
    STDMETHODIMP put_notifyError(VARIANT_BOOL value) override;
    STDMETHODIMP get_Contents(BSTR* value) override;
    STDMETHODIMP get_RtfObject(::_CRtfDoc** value) override;
    STDMETHODIMP get_StyleSheetFile(BSTR* value) override;
    STDMETHODIMP put_StyleSheetFile(BSTR value) override;

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** enumerator) override;
    STDMETHODIMP FindConnectionPoint(REFIID eventInterface, IConnectionPoint** point) override;

    STDMETHODIMP QueryInterface(REFIID interfaceId, void** object) override {
        return Wrapper::QueryInterface(interfaceId, object);
    }
    STDMETHODIMP_(ULONG) AddRef() override { return Wrapper::AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return Wrapper::Release(); }

private:
    friend Wrapper;

    /// A method that raises the event.
    template <class Body>
    HRESULT runWithEvents(Body&& body) noexcept;

    void* extraInterface(REFIID interfaceId) noexcept;
    const GUID* eventInterface() const noexcept { return &DIID___CRtfDriver; }

    NotifyErrorPoint notifyErrorPoint_{*this};
    /// What stands in the place of the host's arithmetic during an analysis.
    const UsualArithmetic* arithmetic_ = nullptr;
};

}  // namespace quorvane::com
