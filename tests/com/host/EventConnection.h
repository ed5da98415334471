#pragma once

#include <ocidl.h>
#include <windows.h>

#include <functional>
#include <string>

#include "tests/com/host/ComPtr.h"

namespace quorvane::host {

/// Called with the name of an event and its arguments.
using EventHandler = std::function<HRESULT(const std::wstring& name, DISPPARAMS& arguments)>;

/// A connection to the default events of an object, which ends with it.
class EventConnection {
public:
    EventConnection() = default;
    /// Connects the handler. `outcome` shows how that went.
    EventConnection(IUnknown* source, EventHandler handler);
    EventConnection(EventConnection&&) noexcept = default;
    EventConnection& operator=(EventConnection&& other) noexcept;
    ~EventConnection() { end(); }

    HRESULT outcome() const { return outcome_; }
    /// Ends the connection; once it has ended, that is S_FALSE.
    HRESULT end();

private:
    HRESULT connect(IUnknown* source, EventHandler handler);

    HRESULT outcome_ = S_FALSE;
    ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

}  // namespace quorvane::host
