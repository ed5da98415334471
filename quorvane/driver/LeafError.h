#pragma once

#include <string_view>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/driverFaults.h"

namespace quorvane {

/// An error of the value of a leaf that knows which fault it is.
struct LeafError : RtfError {
    /// The argument takes the place of "{0}" in the text of the fault.
    LeafError(DriverFault leafFault, std::string_view argument)
        : RtfError(driverError(leafFault, argument)), fault(leafFault) {}

    DriverFault fault;
};

}  // namespace quorvane
