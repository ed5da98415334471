#include "com/NotifyErrorPoint.h"

#include <algorithm>
#include <utility>

#include "com/CRtfDriverObject.h"
#include "com/Enumerator.h"
#include "com/hostErrors.h"

namespace quorvane::com {

namespace {

constexpr DISPID notifyErrorId = 1;

/// A connection, for the enumerator.
struct EnumeratedConnection {
    using HostValue = CONNECTDATA;

    void write(CONNECTDATA& value) const noexcept {
        value.pUnk = ComPtr<IUnknown>(sink.get()).detach();
        value.dwCookie = cookie;
    }
    static void clear(CONNECTDATA& value) noexcept { value.pUnk->Release(); }

    DWORD cookie;
    ComPtr<IDispatch> sink;
};

void raiseIn(IDispatch& sink, IDispatch& sender) {
    VARIANT argument;
    V_VT(&argument) = VT_DISPATCH;
    V_DISPATCH(&argument) = &sender;
    DISPPARAMS arguments{&argument, nullptr, 1, 0};
    // What the sink returns does not matter.
    sink.Invoke(notifyErrorId, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &arguments, nullptr,
                nullptr, nullptr);
}

}  // namespace

// A sink that is released may come back and disconnect: by then none is connected any more.
NotifyErrorPoint::~NotifyErrorPoint() {
    const std::vector<Connection> connections = std::exchange(connections_, {});
}

STDMETHODIMP NotifyErrorPoint::QueryInterface(REFIID interfaceId, void** object) {
    if (!object) {
        return E_POINTER;
    }
    const bool isKnown =
        IsEqualIID(interfaceId, IID_IConnectionPoint) || IsEqualIID(interfaceId, IID_IUnknown);
    *object = isKnown ? static_cast<IConnectionPoint*>(this) : nullptr;
    if (!isKnown) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) NotifyErrorPoint::AddRef() {
    return driver_.AddRef();
}

STDMETHODIMP_(ULONG) NotifyErrorPoint::Release() {
    return driver_.Release();
}

STDMETHODIMP NotifyErrorPoint::GetConnectionInterface(IID* id) {
    if (!id) {
        return E_POINTER;
    }
    *id = DIID___CRtfDriver;
    return S_OK;
}

STDMETHODIMP NotifyErrorPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
    if (!container) {
        return E_POINTER;
    }
    *container = ComPtr<IConnectionPointContainer>(&driver_).detach();
    return S_OK;
}

STDMETHODIMP NotifyErrorPoint::Advise(IUnknown* sink, DWORD* cookie) {
    if (!sink || !cookie) {
        return plainFailure(E_POINTER);
    }
    *cookie = 0;
    ComPtr<IDispatch> connected;
    if (FAILED(sink->QueryInterface(DIID___CRtfDriver, connected.outVoid())) &&
        FAILED(sink->QueryInterface(IID_IDispatch, connected.outVoid()))) {
        return plainFailure(CONNECT_E_CANNOTCONNECT);
    }
    return toHresult(IID_IConnectionPoint, [&] {
        connections_.push_back({lastCookie_ + 1, std::move(connected)});
        *cookie = ++lastCookie_;
    });
}

STDMETHODIMP NotifyErrorPoint::Unadvise(DWORD cookie) {
    const auto found =
        std::find_if(connections_.begin(), connections_.end(),
                     [cookie](const Connection& each) { return each.cookie == cookie; });
    if (found == connections_.end()) {
        return CONNECT_E_NOCONNECTION;
    }
    // Released at the end: the sink may come back here.
    const ComPtr<IDispatch> sink = std::move(found->sink);
    connections_.erase(found);
    return S_OK;
}

STDMETHODIMP NotifyErrorPoint::EnumConnections(IEnumConnections** enumerator) {
    if (!enumerator) {
        return plainFailure(E_POINTER);
    }
    *enumerator = nullptr;
    return toHresult(IID_IConnectionPoint, [&] {
        std::vector<EnumeratedConnection> connections;
        for (const Connection& each : connections_) {
            connections.push_back({each.cookie, each.sink});
        }
        *enumerator =
            new Enumerator<IEnumConnections, EnumeratedConnection>(std::move(connections));
    });
}

void NotifyErrorPoint::fire(const RtfError& error, const UsualArithmetic* arithmetic) {
    if (connections_.empty()) {
        return;
    }
    // A copy: a sink may change the connections.
    const std::vector<Connection> connections = connections_;
    for (const Connection& each : connections) {
        if (isConnected(each.cookie)) {
            setErrorObject(error, DIID___CRtfDriver, Source::AsRaised,
                           static_cast<DWORD>(error.number));
            const HostsArithmetic hosts(arithmetic);
            raiseIn(*each.sink.get(), driver_);
        }
    }
    clearErrorObject();
}

bool NotifyErrorPoint::isConnected(DWORD cookie) const noexcept {
    return std::any_of(connections_.begin(), connections_.end(),
                       [cookie](const Connection& each) { return each.cookie == cookie; });
}

}  // namespace quorvane::com
