#pragma once

#include <string>

#include "tests/com/host/NamedMembers.h"

namespace quorvane::host {

/// "Vantrel.CVantrel": stands in for the external error collection. It writes every call with its
/// arguments as a line of the file that the environment variable QUORVANE_ERROR_COLLECTION names.
class ErrorCollection : public NamedMembers {
public:
    ErrorCollection();
};

}  // namespace quorvane::host
