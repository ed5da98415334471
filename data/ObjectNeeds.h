#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane::data {

/// A JSON Schema, or a part of one. Names keep the order in which they are added.
using SchemaJson = nlohmann::ordered_json;

/// What a template asks of an object, as a JSON Schema that only objects can fail.
class ObjectNeeds {
public:
    /// Asks for a value by its name, and by further names in what that is. One that is not required
    /// may be missing, as may what is on the way to it. `note` goes into the value's description.
    void addValue(std::span<const std::string> names, bool isRequired, const SchemaJson& demand,
                  const std::string& note);
    /// Asks that the object meets another schema too.
    void addDemand(const SchemaJson& schema);

    bool isEmpty() const { return properties_.empty() && demands_.empty(); }
    SchemaJson schema() const;

private:
    struct Property {
        std::string name;
        bool isRequired = false;
        bool isObject = false;
        std::vector<SchemaJson> demands = {};
        std::vector<std::string> notes = {};
        std::unique_ptr<ObjectNeeds> inner = {};
    };

    Property& property(const std::string& name);
    static SchemaJson schemaOf(const Property& property);

    std::vector<Property> properties_;
    std::vector<SchemaJson> demands_;
};

/// What meets all of the schemas. Those that anything meets are left out.
SchemaJson allOf(const std::vector<SchemaJson>& schemas);

/// What meets the second schema if it meets the first.
SchemaJson implied(const SchemaJson& condition, const SchemaJson& schema);

/// An object that has a value by these names, which meets the schema.
SchemaJson objectWith(std::span<const std::string> names, const SchemaJson& schema);

/// Anything but an object in which a value of these names does not meet the schema.
SchemaJson whereThere(std::span<const std::string> names, const SchemaJson& schema);

}  // namespace quorvane::data
