#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane::data {

/// A value of the data: what a JSON text holds.
struct DataValue {
    enum class Kind : std::uint8_t { Null, Boolean, Number, String, List, Object };

    Kind kind = Kind::Null;
    /// Of a string the string, of a number its digits as they are written, of a boolean "true" or
    /// "false". UTF-8.
    std::string text = {};
    /// Of a list its items, of an object the values of its names.
    std::vector<DataValue> items = {};
    /// Of an object, in ascending order.
    std::vector<std::string> names = {};

    bool isNull() const { return kind == Kind::Null; }
    bool isList() const { return kind == Kind::List; }
    bool isObject() const { return kind == Kind::Object; }

    /// The value that an object has for a name; null when there is none.
    const DataValue* find(std::string_view name) const;
};

}  // namespace quorvane::data
