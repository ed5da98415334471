#pragma once

#include <utility>

#include "quorvane/base/values/Value.h"

namespace quorvane {

/// Two values; both are Empty at first.
class CPair {
public:
    const Value& first() const { return first_; }
    void setFirst(Value value) { first_ = std::move(value); }
    const Value& second() const { return second_; }
    void setSecond(Value value) { second_ = std::move(value); }

private:
    Value first_;
    Value second_;
};

}  // namespace quorvane
