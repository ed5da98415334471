#pragma once

#include <quorvane.h>

#include <string>

namespace quorvane::capi {

/// Where a program has its pictures and partials.
struct FileCallback {
    quorvane_file_callback callback = nullptr;
    void* user = nullptr;

    /// The bytes of a file. Raises error 53 when there is none.
    std::string read(quorvane_file_kind kind, const std::string& name) const;
};

}  // namespace quorvane::capi
