#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "quorvane/base/values/Object.h"

namespace quorvane {

/// The value of an optional argument that was not given.
struct Missing {
    bool operator==(const Missing&) const = default;
};

/// The value of a variable that was never set.
struct Empty {
    bool operator==(const Empty&) const = default;
};

/// The value that stands for "no valid data".
struct Null {
    bool operator==(const Null&) const = default;
};

/// A date and time, in days since 30 December 1899.
struct Date {
    double days = 0;
    bool operator==(const Date&) const = default;
};

/// A value of any of the types of automation: the argument of a call that accepts any type, and
/// what `CMap` keeps. Texts and numbers convert to it implicitly. Text is UTF-8.
class Value {
public:
    using Data = std::variant<Missing, Empty, Null, bool, std::int16_t, std::int32_t, float, double,
                              Date, std::string, std::shared_ptr<Object>>;

    /// A value of the argument's type; `Empty` without an argument.
    Value() : data_(Empty{}) {}
    Value(Missing) : data_(Missing{}) {}
    Value(Empty) : data_(Empty{}) {}
    Value(Null) : data_(Null{}) {}
    Value(bool value) : data_(value) {}
    Value(std::int16_t value) : data_(value) {}
    Value(std::int32_t value) : data_(value) {}
    Value(float value) : data_(value) {}
    Value(double value) : data_(value) {}
    Value(Date value) : data_(value) {}
    Value(std::string value) : data_(std::move(value)) {}
    Value(std::string_view value) : data_(std::string(value)) {}
    Value(const char* value) : data_(std::string(value)) {}
    template <std::derived_from<Object> T>
    Value(std::shared_ptr<T> value) : data_(std::shared_ptr<Object>(std::move(value))) {}

    // By assignment: when memory is short, a copy under construction of GCC 12's variant is not
    // taken back as it must be.
    Value(const Value& other) : Value() { data_ = other.data_; }
    Value(Value&&) noexcept = default;
    Value& operator=(const Value&) = default;
    Value& operator=(Value&&) noexcept = default;
    ~Value() = default;

    /// Returns whether the value is `Missing` or `Empty`.
    bool isAbsent() const noexcept { return holds<Missing>() || holds<Empty>(); }
    /// Returns whether the value is a text.
    bool isText() const noexcept { return holds<std::string>(); }
    /// Returns whether the value is a 16-bit or 32-bit integer, a float or a double. A Boolean and
    /// a date are not numbers.
    bool isNumber() const noexcept;

    /// Returns the text; the value must be a text.
    const std::string& text() const { return std::get<std::string>(data_); }
    /// Returns the number as a double; the value must be a number.
    double number() const;
    /// Returns the object as a `T`; null if the value is anything else.
    template <class T>
    std::shared_ptr<T> object() const {
        const auto* reference = std::get_if<std::shared_ptr<Object>>(&data_);
        return reference ? std::dynamic_pointer_cast<T>(*reference) : nullptr;
    }

    /// Returns whether the value has this type, such as `bool` or `Missing`.
    template <class T>
    bool holds() const noexcept {
        return std::holds_alternative<T>(data_);
    }

    /// Returns the value as a `std::variant`.
    const Data& data() const noexcept { return data_; }

    /// Numbers are equal by value, whatever their type; texts character by character; objects by
    /// identity.
    bool operator==(const Value& other) const;

private:
    Data data_;
};

/// Hash that agrees with the equality of values.
struct ValueHash {
    std::size_t operator()(const Value& value) const;
};

}  // namespace quorvane
