#pragma once

namespace quorvane {

/// Base of what a `Value` can refer to as an object. Two references are equal when they refer to
/// the same object.
class Object {
public:
    Object() = default;
    Object(const Object&) = default;
    Object& operator=(const Object&) = default;
    virtual ~Object() = default;
};

}  // namespace quorvane
