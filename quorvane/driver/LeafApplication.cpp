#include "quorvane/driver/LeafApplication.h"

#include <string_view>

namespace quorvane {

/// What an error is reported as that does not know it.
DriverFault LeafApplication::faultOf(const RtfError& error) {
    return error.is(RunTimeError::DuplicateKey) ? DriverFault::TakenKey
           : error.is(RunTimeError::Overflow)   ? DriverFault::Overflow
                                                : DriverFault::Other;
}

void LeafApplication::report(DriverFault fault, const RtfError& error, Leaf& leaf) {
    report({.fault = fault,
            .error = error,
            .part = leaf.text.substr(0, leaf.text.find_first_of("\r\n")),
            .node = fault == DriverFault::TakenKey ? keyHolder_ : nullptr,
            .leaf = &leaf});
}

}  // namespace quorvane
