#pragma once

#include <string>

#include "quorvane/driver/Dialect.h"

namespace quorvane {

/// What to write for a value of several lines that does not end.
inline std::string unclosedValueHint(const Dialect& dialect) {
    return "write " + std::string(dialect.marks.block) + ") at the end of its last line";
}

}  // namespace quorvane
