#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane::data {

struct DataMember;

/// A value of the data: what a JSON text holds.
struct DataValue {
    enum class Kind : std::uint8_t { Null, Boolean, Number, String, List, Object };

    Kind kind = Kind::Null;
    /// Of a string the string, of a number its digits as they are written, of a boolean "true" or
    /// "false". UTF-8.
    std::string text = {};
    /// Of a list.
    std::vector<DataValue> items = {};
    /// Of an object, in the order of their names.
    std::vector<DataMember> members = {};

    bool isNull() const { return kind == Kind::Null; }
    bool isList() const { return kind == Kind::List; }
    bool isObject() const { return kind == Kind::Object; }

    /// The member of an object that has the name; null when there is none.
    const DataValue* find(std::string_view name) const;
};

struct DataMember {
    std::string name;
    DataValue value;
};

}  // namespace quorvane::data
