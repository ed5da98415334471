#pragma once

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Outcome.h"
#include "tests/com/host/Variant.h"

namespace quorvane::host {

/// An argument that is given by its name.
struct NamedArgument {
    std::string name;
    Variant value;
};

/// An object whose members are called by their names.
class LateBound {
public:
    explicit LateBound(ComPtr<IDispatch> object) : object_(std::move(object)) {}

    IDispatch* get() const { return object_.get(); }

    /// The identifier of a member; DISPID_UNKNOWN when there is none.
    DISPID idOf(const std::string& name) const;

    Outcome get(const std::string& name, std::vector<Variant> arguments = {}) const;
    /// Sets a property; the value is the last argument.
    Outcome set(const std::string& name, std::vector<Variant> arguments) const;
    Outcome call(const std::string& name, std::vector<Variant> arguments = {},
                 std::vector<NamedArgument> named = {}) const;
    /// Calls a member by its identifier as scripts do that do not know what it is.
    Outcome invoke(DISPID id, WORD flags, std::vector<Variant> arguments = {}) const;

    /// The object that a property returns; without one the test ends with an exception.
    LateBound object(const std::string& name, std::vector<Variant> arguments = {}) const;

private:
    Outcome invoke(DISPID id, WORD flags, std::vector<Variant> arguments,
                   std::vector<DISPID> namedIds) const;

    ComPtr<IDispatch> object_;
};

}  // namespace quorvane::host
