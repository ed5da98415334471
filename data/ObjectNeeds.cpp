#include "data/ObjectNeeds.h"

#include <algorithm>
#include <utility>

namespace quorvane::data {

namespace {

template <class Value>
void addOnce(std::vector<Value>& values, const Value& value) {
    if (std::find(values.begin(), values.end(), value) == values.end()) {
        values.push_back(value);
    }
}

/// The notes as a text; of many, the first ones.
std::string descriptionOf(const std::vector<std::string>& notes) {
    constexpr std::size_t most = 3;
    std::string text;
    for (std::size_t i = 0; i < std::min(notes.size(), most); ++i) {
        text += (i == 0 ? "" : " ") + notes[i];
    }
    return text + (notes.size() > most ? " And more." : "");
}

}  // namespace

void ObjectNeeds::addValue(std::span<const std::string> names, bool isRequired,
                           const SchemaJson& demand, const std::string& note) {
    ObjectNeeds* needs = this;
    for (; names.size() > 1; names = names.subspan(1)) {
        Property& outer = needs->property(names.front());
        outer.isRequired = outer.isRequired || isRequired;
        outer.isObject = outer.isObject || isRequired;
        if (!outer.inner) {
            outer.inner = std::make_unique<ObjectNeeds>();
        }
        needs = outer.inner.get();
    }
    Property& value = needs->property(names.front());
    value.isRequired = value.isRequired || isRequired;
    addOnce(value.notes, note);
    if (!demand.empty()) {
        addOnce(value.demands, demand);
    }
}

void ObjectNeeds::addDemand(const SchemaJson& schema) {
    if (!schema.empty()) {
        addOnce(demands_, schema);
    }
}

ObjectNeeds::Property& ObjectNeeds::property(const std::string& name) {
    const auto found = std::find_if(properties_.begin(), properties_.end(),
                                    [&](const Property& each) { return each.name == name; });
    return found != properties_.end() ? *found : properties_.emplace_back(Property{.name = name});
}

SchemaJson ObjectNeeds::schemaOf(const Property& property) {
    std::vector<SchemaJson> all = property.demands;
    if (property.inner) {
        SchemaJson inner = SchemaJson::object();
        if (property.isObject) {
            inner["type"] = "object";
        }
        inner.update(property.inner->schema());
        all.push_back(std::move(inner));
    }
    SchemaJson schema = SchemaJson::object();
    if (!property.notes.empty()) {
        schema["description"] = descriptionOf(property.notes);
    }
    const SchemaJson demands = allOf(all);
    // What stands beside a reference does not count.
    schema.update(demands.contains("$ref") ? SchemaJson{{"allOf", SchemaJson::array({demands})}}
                                           : demands);
    return schema;
}

SchemaJson ObjectNeeds::schema() const {
    SchemaJson required = SchemaJson::array();
    SchemaJson properties = SchemaJson::object();
    for (const Property& each : properties_) {
        if (each.isRequired) {
            required.push_back(each.name);
        }
        properties[each.name] = schemaOf(each);
    }
    SchemaJson schema = SchemaJson::object();
    if (!required.empty()) {
        schema["required"] = std::move(required);
    }
    if (!properties.empty()) {
        schema["properties"] = std::move(properties);
    }
    if (!demands_.empty()) {
        schema["allOf"] = demands_;
    }
    return schema;
}

SchemaJson allOf(const std::vector<SchemaJson>& schemas) {
    std::vector<SchemaJson> demanding;
    for (const SchemaJson& each : schemas) {
        if (!each.empty()) {
            addOnce(demanding, each);
        }
    }
    if (demanding.empty()) {
        return SchemaJson::object();
    }
    return demanding.size() == 1 ? demanding.front() : SchemaJson{{"allOf", demanding}};
}

SchemaJson implied(const SchemaJson& condition, const SchemaJson& schema) {
    return condition.empty() || schema.empty() ? schema
                                               : SchemaJson{{"if", condition}, {"then", schema}};
}

SchemaJson objectWith(std::span<const std::string> names, const SchemaJson& schema) {
    SchemaJson result = schema;
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        SchemaJson object = {{"type", "object"}, {"required", SchemaJson::array({*name})}};
        if (!result.empty()) {
            object["properties"] = SchemaJson{{*name, std::move(result)}};
        }
        result = std::move(object);
    }
    return result;
}

SchemaJson whereThere(std::span<const std::string> names, const SchemaJson& schema) {
    SchemaJson result = schema;
    for (auto name = names.rbegin(); name != names.rend() && !schema.empty(); ++name) {
        SchemaJson properties = SchemaJson::object();
        properties[*name] = std::move(result);
        result = SchemaJson::object();
        result["properties"] = std::move(properties);
    }
    return result;
}

}  // namespace quorvane::data
