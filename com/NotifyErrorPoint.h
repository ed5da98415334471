#pragma once

#include <windows.h>

#include <ocidl.h>
#include <olectl.h>

#include <vector>

#include "com/Arithmetic.h"
#include "com/ComPtr.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::com {

class CRtfDriverObject;

/// Where hosts connect to the driver's event. It is part of the driver and counted with it.
class NotifyErrorPoint final : public IConnectionPoint {
public:
    explicit NotifyErrorPoint(CRtfDriverObject& driver) noexcept : driver_(driver) {}
    NotifyErrorPoint(const NotifyErrorPoint&) = delete;
    NotifyErrorPoint& operator=(const NotifyErrorPoint&) = delete;
    ~NotifyErrorPoint();

    STDMETHODIMP QueryInterface(REFIID interfaceId, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;

    STDMETHODIMP GetConnectionInterface(IID* id) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections** enumerator) override;

    /// Raises the event `notifyError` in every sink that is connected. Each finds the error as the
    /// thread's error object, with the error's number as help context. A sink may
    /// connect and disconnect, itself and others, and use the driver. It runs with the host's
    /// arithmetic, in whose place `arithmetic` stands.
    void fire(const RtfError& error, const UsualArithmetic* arithmetic);

private:
    struct Connection {
        DWORD cookie;
        ComPtr<IDispatch> sink;
    };

    bool isConnected(DWORD cookie) const noexcept;

    CRtfDriverObject& driver_;
    std::vector<Connection> connections_;
    DWORD lastCookie_ = 0;
};

}  // namespace quorvane::com
