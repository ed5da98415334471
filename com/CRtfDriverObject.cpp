#include "com/CRtfDriverObject.h"

#include <utility>
#include <vector>

#include "com/ComPtr.h"
#include "com/Enumerator.h"
#include "com/debugOutput.h"
#include "quorvane/docmodel/CRtfDoc.h"

namespace quorvane::com {

namespace {

/// The connection point, for the enumerator.
struct EnumeratedPoint {
    using HostValue = IConnectionPoint*;

    void write(IConnectionPoint*& value) const noexcept { value = ComPtr(point).detach(); }
    static void clear(IConnectionPoint*& value) noexcept { value->Release(); }

    ComPtr<IConnectionPoint> point;
};

}  // namespace

std::span<const Member> CRtfDriverObject::members() {
    static constexpr Member all[] = {
        procedure<&::_CRtfDriver::ParseFile>(1),
        procedure<&::_CRtfDriver::ParseFromMemmory>(2),
        procedure<&::_CRtfDriver::LoadStyleSheetFromMemmory>(3),
        procedure<&::_CRtfDriver::Commit>(4),
        getter<&::_CRtfDriver::get_ErroneousInput>(5),
        setter<&::_CRtfDriver::put_ErroneousInput>(5),
        getter<&::_CRtfDriver::get_notifyError>(6),
        setter<&::_CRtfDriver::put_notifyError>(6),
        getter<&::_CRtfDriver::get_Contents>(7),
        getter<&::_CRtfDriver::get_RtfObject>(8),
        getter<&::_CRtfDriver::get_StyleSheetFile>(9),
        setter<&::_CRtfDriver::put_StyleSheetFile>(9),
    };
    return all;
}

CRtfDriverObject::CRtfDriverObject(Ref<CRtfDriver> driver) : Wrapper(std::move(driver)) {
    reportAbsorbedErrors(native());
    native().setNotifyErrorHandler(
        [this](CRtfDriver&, const RtfError& error) { notifyErrorPoint_.fire(error, arithmetic_); });
}

// While a description is analyzed, a handler of the event may release the host's last reference.

STDMETHODIMP CRtfDriverObject::ParseFile(BSTR path) {
    const ComPtr self(this);
    return runWithEvents([&] { native().ParseFile(textOf(path)); });
}

STDMETHODIMP CRtfDriverObject::ParseFromMemmory(BSTR buffer) {
    const ComPtr self(this);
    return runWithEvents([&] { native().ParseFromMemmory(textOf(buffer)); });
}

template <class Body>
HRESULT CRtfDriverObject::runWithEvents(Body&& body) noexcept {
    const UsualArithmetic arithmetic;
    // A handler may come back for another analysis.
    const UsualArithmetic* const outer = std::exchange(arithmetic_, &arithmetic);
    const HRESULT result = run(std::forward<Body>(body));
    arithmetic_ = outer;
    return result;
}

STDMETHODIMP CRtfDriverObject::LoadStyleSheetFromMemmory(BSTR buffer) {
    return run([&] { native().LoadStyleSheetFromMemmory(textOf(buffer)); });
}

STDMETHODIMP CRtfDriverObject::Commit(BSTR path) {
    return run<Source::AsRaised>([&] {
        const CommitReport report(native(), "CRtfDriver.Commit", textOf(path));
        native().Commit(report.file());
    });
}

STDMETHODIMP CRtfDriverObject::get_ErroneousInput(VARIANT_BOOL* value) {
    return getStored(value, [&] { return native().ErroneousInput(); });
}

STDMETHODIMP CRtfDriverObject::put_ErroneousInput(VARIANT_BOOL value) {
    return run([&] { native().setErroneousInput(value != VARIANT_FALSE); });
}

STDMETHODIMP CRtfDriverObject::get_notifyError(VARIANT_BOOL* value) {
    return getStored(value, [&] { return native().notifyError(); });
}

STDMETHODIMP CRtfDriverObject::put_notifyError(VARIANT_BOOL value) {
    return run([&] { native().setNotifyError(value != VARIANT_FALSE); });
}

STDMETHODIMP CRtfDriverObject::get_Contents(BSTR* value) {
    return get(value, [&]() -> std::string_view { return native().Contents(); });
}

STDMETHODIMP CRtfDriverObject::get_RtfObject(::_CRtfDoc** value) {
    return get(value, [&] { return native().RtfObject(); });
}

STDMETHODIMP CRtfDriverObject::get_StyleSheetFile(BSTR* value) {
    return get(value, [&] { return native().StyleSheetFile(); });
}

STDMETHODIMP CRtfDriverObject::put_StyleSheetFile(BSTR value) {
    return run([&] { native().setStyleSheetFile(textOf(value)); });
}

STDMETHODIMP CRtfDriverObject::EnumConnectionPoints(IEnumConnectionPoints** enumerator) {
    if (!enumerator) {
        return plainFailure(E_POINTER);
    }
    *enumerator = nullptr;
    return run([&] {
        std::vector<EnumeratedPoint> points{{ComPtr<IConnectionPoint>(&notifyErrorPoint_)}};
        *enumerator = new Enumerator<IEnumConnectionPoints, EnumeratedPoint>(std::move(points));
    });
}

STDMETHODIMP CRtfDriverObject::FindConnectionPoint(REFIID eventId, IConnectionPoint** point) {
    if (!point) {
        return plainFailure(E_POINTER);
    }
    const bool isKnown = IsEqualIID(eventId, DIID___CRtfDriver);
    *point = isKnown ? ComPtr<IConnectionPoint>(&notifyErrorPoint_).detach() : nullptr;
    return isKnown ? S_OK : CONNECT_E_NOCONNECTION;
}

void* CRtfDriverObject::extraInterface(REFIID interfaceId) noexcept {
    return IsEqualIID(interfaceId, IID_IConnectionPointContainer)
               ? static_cast<IConnectionPointContainer*>(this)
               : nullptr;
}

}  // namespace quorvane::com
