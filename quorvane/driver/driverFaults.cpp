#include "quorvane/driver/driverFaults.h"

#include <cstddef>
#include <string>

#include "quorvane/driver/driverErrorTable.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

RtfError driverError(DriverFault fault, std::string_view argument, int line) {
    const DriverErrorRow& row = driverErrorTable[static_cast<std::size_t>(fault)];
    RtfError error(row.number, ReplaceString(row.text, "{0}", argument),
                   ReplaceString(row.source, "{0}", argument));
    error.line = line;
    return error;
}

void raiseViolation(const Violation& violation) {
    raise(violation.error);
}

}  // namespace quorvane
