#include <memory>

#include "quorvane/support/currentError.h"

namespace quorvane {

namespace {

// Most calls find no error to forget: the flag spares them the look at the object itself.
thread_local constinit bool errorIsSet = false;
thread_local constinit std::unique_ptr<RtfError> error;

}  // namespace

const RtfError* currentError() noexcept {
    return errorIsSet ? error.get() : nullptr;
}

void setCurrentError(const RtfError& raised) {
    error = std::make_unique<RtfError>(raised);
    errorIsSet = true;
}

void clearCurrentError() noexcept {
    if (errorIsSet) {
        errorIsSet = false;
        error.reset();
    }
}

}  // namespace quorvane
