#pragma once

#include <string>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/EventConnection.h"
#include "tests/com/host/NamedMembers.h"

namespace quorvane::host {

/// "QuorvaneTests.EventConnector": connects an object's events to the script of a host that cannot
/// do that itself. `Connect(object, handlers)` calls the member of `handlers` that has the event's
/// name or, when it has none, `handlers` itself, as for a function of JScript; `Disconnect()` ends
/// it. While an event lasts, `Source`, `Description` and `HelpContext` are those of the error
/// object that the thread had when it began.
class EventConnector : public NamedMembers {
public:
    EventConnector();

private:
    HRESULT connect(const CallArguments& arguments);
    HRESULT pass(const std::wstring& name, DISPPARAMS& arguments);
    void readErrorObject();

    EventConnection connection_;
    ComPtr<IDispatch> handlers_;
    std::wstring source_;
    std::wstring description_;
    DWORD helpContext_ = 0;
};

}  // namespace quorvane::host
