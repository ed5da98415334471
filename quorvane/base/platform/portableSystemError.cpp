#include "quorvane/base/platform/portableSystemError.h"

#include <memory>
#include <system_error>
#include <utility>

#include "quorvane/base/platform/errnoToRunTimeError.h"

namespace quorvane {

void raiseSystemError(RunTimeError number, int code) {
    RtfError error(number);
    error.cause = std::make_shared<RtfError>(code, std::generic_category().message(code));
    raise(std::move(error));
}

void raiseSystemError(int code) {
    raiseSystemError(errnoToRunTimeError(code), code);
}

}  // namespace quorvane
