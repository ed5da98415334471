#pragma once

#include <stdexcept>

namespace quorvane::cli {

/// The command line asks for something that cannot be understood or that makes no sense.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace quorvane::cli
