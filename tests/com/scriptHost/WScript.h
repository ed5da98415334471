#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/com/host/EventConnection.h"
#include "tests/com/host/NamedMembers.h"

namespace quorvane::host {

/// The object WScript of a script: `Echo`, `Arguments`, `CreateObject`, `ConnectObject`,
/// `DisconnectObject`, `ScriptFullName` and `Quit`.
class WScript : public NamedMembers {
public:
    WScript(std::wstring scriptPath, std::vector<std::wstring> arguments);

    /// Where procedures of the script are found by name, for events.
    void setScript(IDispatch* script) { script_ = script; }
    /// Ends the connections to objects' events.
    void disconnectAll() { connections_.clear(); }

private:
    HRESULT connect(IUnknown* object, const std::wstring& prefix);
    HRESULT createObject(const CallArguments& arguments, VARIANT& result);

    IDispatch* script_ = nullptr;
    std::multimap<IUnknown*, EventConnection> connections_;
};

}  // namespace quorvane::host
