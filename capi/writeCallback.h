#pragma once

#include <quorvane.h>

#include <string_view>

#include "capi/arguments.h"
#include "capi/callError.h"

namespace quorvane::capi {

/// Hands bytes to a callback.
class WriteCallback {
public:
    WriteCallback(quorvane_write_callback write, void* user)
        : write_(&requireArgument(write, "write")), user_(user) {}

    void operator()(std::string_view bytes) const {
        if (write_(user_, bytes.data(), bytes.size()) != 0) {
            throw Stopped();
        }
    }

private:
    quorvane_write_callback write_;
    void* user_;
};

}  // namespace quorvane::capi
