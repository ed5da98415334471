#include "data/schemaMessage.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "data/JsonFault.h"
#include "quorvane/diagnostics/engine/nearestWord.h"

namespace quorvane::data {

namespace {

using nlohmann::json;

std::string kindOf(const json& value) {
    return value.is_null()      ? "null"
           : value.is_boolean() ? value.dump()
           : value.is_number()  ? "a number"
           : value.is_string()  ? "a text"
           : value.is_array()   ? "a list"
                                : "an object";
}

std::string kindNamed(const std::string& type) {
    return type == "boolean"   ? "true or false"
           : type == "integer" ? "a whole number"
           : type == "number"  ? "a number"
           : type == "string"  ? "a text"
           : type == "array"   ? "a list"
           : type == "object"  ? "an object"
                               : "null";
}

/// The texts as a list in a sentence: "a, b or c".
std::string listed(const std::set<std::string>& texts) {
    std::string list;
    std::size_t left = texts.size();
    for (const std::string& each : texts) {
        --left;
        list += each + (left == 0 ? "" : left == 1 ? " or " : ", ");
    }
    return list;
}

/// A value as JSON, shortened.
std::string shown(const json& value) {
    constexpr std::size_t longest = 60;
    std::string text = value.dump(-1, ' ', true);
    return text.size() <= longest ? text : kindOf(value);
}

/// Finds the schemas that can apply to a value, without those that only decide which others do.
class SchemaSearch {
public:
    explicit SchemaSearch(const json& root) : root_(root) { add(root); }

    void enter(const std::string& part) {
        const std::vector<const json*> outer = std::move(found_);
        found_.clear();
        seen_.clear();
        for (const json* schema : outer) {
            enterOne(*schema, part);
        }
    }

    const std::vector<const json*>& found() const { return found_; }

private:
    void enterOne(const json& schema, const std::string& part) {
        const auto properties = schema.find("properties");
        if (properties != schema.end() && properties->contains(part)) {
            add((*properties)[part]);
        } else if (schema.contains("additionalProperties")) {
            add(schema["additionalProperties"]);
        }
        if (const auto items = schema.find("items"); items != schema.end()) {
            const bool isNumber = part.find_first_not_of("0123456789") == std::string::npos;
            const std::size_t index = isNumber && part.size() < 10 ? std::stoul(part) : 0;
            if (!items->is_array()) {
                add(*items);
            } else if (isNumber && index < items->size()) {
                add((*items)[index]);
            }
        }
    }

    /// Adds a schema with all others that apply to the same value.
    void add(const json& schema) {
        std::vector<const json*> waiting = {&schema};
        while (!waiting.empty()) {
            const json* const each = waiting.back();
            waiting.pop_back();
            if (!each->is_object() || !seen_.insert(each).second) {
                continue;
            }
            if (const auto reference = each->find("$ref"); reference != each->end()) {
                waiting.push_back(
                    &root_.at(json::json_pointer(reference->get<std::string>().substr(1))));
                continue;
            }
            found_.push_back(each);
            for (const char* keyword : {"then", "else"}) {
                if (each->contains(keyword)) {
                    waiting.push_back(&(*each)[keyword]);
                }
            }
            for (const char* keyword : {"allOf", "anyOf", "oneOf"}) {
                if (each->contains(keyword)) {
                    for (const json& other : (*each)[keyword]) {
                        waiting.push_back(&other);
                    }
                }
            }
        }
    }

    const json& root_;
    std::vector<const json*> found_;
    std::set<const json*> seen_;
};

/// The kinds of values that schemas take, other than that of this value.
std::string wantedKinds(const std::vector<const json*>& schemas) {
    std::set<std::string> kinds;
    for (const json* schema : schemas) {
        const auto type = schema->find("type");
        if (type == schema->end()) {
            continue;
        }
        for (const json& each : type->is_array() ? *type : json::array({*type})) {
            kinds.insert(kindNamed(each.get<std::string>()));
        }
    }
    return kinds.empty() ? "another kind of value" : listed(kinds);
}

std::string wantedValues(const std::vector<const json*>& schemas, const json& value) {
    std::set<std::string> values;
    for (const json* schema : schemas) {
        if (const auto only = schema->find("const"); only != schema->end() && *only != value) {
            values.insert(shown(*only));
        }
        const auto choices = schema->find("enum");
        if (choices != schema->end() &&
            std::find(choices->begin(), choices->end(), value) == choices->end()) {
            for (const json& each : *choices) {
                values.insert(shown(each));
            }
        }
    }
    constexpr std::size_t most = 10;
    return values.empty() || values.size() > most ? "one of the values that the schema lists"
                                                  : listed(values);
}

std::string wantedPattern(const std::vector<const json*>& schemas) {
    constexpr std::string_view digits = "[0-9]";
    constexpr std::string_view dateBeginning = "^[0-9]{4}-";
    for (const json* schema : schemas) {
        const std::string pattern = schema->value("pattern", "");
        if (pattern.starts_with(dateBeginning)) {
            return "a date of the form 2026-11-22";
        }
        if (pattern.find(digits) != std::string::npos && schema->contains("type") &&
            (*schema)["type"].is_array()) {
            return "a number";
        }
        if (!pattern.empty()) {
            return "a text of the form " + pattern;
        }
    }
    return "a text of another form";
}

/// What stands between apostrophes at the end of a text.
std::string quotedIn(const std::string& reason) {
    const std::size_t begin = reason.find('\'');
    const std::size_t end = reason.rfind('\'');
    return begin < end && end != std::string::npos ? reason.substr(begin + 1, end - begin - 1)
                                                   : std::string();
}

std::string lacks(const json& value, const std::string& name) {
    std::vector<std::string_view> names;
    for (const auto& each : value.items()) {
        names.emplace_back(each.key());
    }
    const std::string guess = didYouMean(name, names);
    return "has no " + name + ", which the schema requires" +
           (guess.empty() ? "" : " (" + guess + ")");
}

/// What a validator says in its own words, such as "Array should contain no more than 3 elements.".
std::string inOtherWords(std::string reason) {
    constexpr std::pair<std::string_view, std::string_view> words[] = {
        {"Expected number ", "must be "},
        {"Array should ", "must "},
        {"Object should ", "must "},
        {"String should be ", "must be "},
        {"Value should be ", "must be "},
        {"in length.", "long."},
        {"elements", "items"},
        {"properties", "names"},
    };
    for (const auto& [theirs, ours] : words) {
        if (const std::size_t at = reason.find(theirs); at != std::string::npos) {
            reason.replace(at, theirs.size(), ours);
        }
    }
    // 5.000000 is written as a program does.
    while (reason.find('.') != std::string::npos && reason.ends_with('0')) {
        reason.pop_back();
    }
    if (reason.ends_with('.')) {
        reason.pop_back();
    }
    return reason.starts_with("must ") ? reason : "does not meet the schema: " + reason;
}

std::string about(const json& value, const std::vector<const json*>& schemas,
                  const std::string& reason) {
    const auto is = [&](std::string_view beginning) { return reason.starts_with(beginning); };
    if (is("Missing required property") || is("Missing dependency")) {
        return lacks(value, quotedIn(reason));
    }
    if (is("Value type not permitted")) {
        return "is " + kindOf(value) + "; the schema asks for " + wantedKinds(schemas);
    }
    if (is("Failed to match regex")) {
        return "is " + shown(value) + "; the schema asks for " + wantedPattern(schemas);
    }
    if (is("Failed to match")) {
        return "is " + shown(value) + "; the schema asks for " + wantedValues(schemas, value);
    }
    if (is("Failed to validate against any")) {
        return "is " + shown(value) + ", which is none of the forms that the schema takes";
    }
    if (is("Failed to validate against exactly")) {
        return "is " + shown(value) + ", which must be exactly one of the forms of the schema";
    }
    if (is("Target should not") || reason.empty()) {
        return "is " + shown(value) + ", which the schema does not take here";
    }
    if (is("Object contains a property")) {
        return "has names that the schema does not know: " +
               quotedIn(reason.substr(std::min(reason.find(": '"), reason.size())));
    }
    return inOtherWords(reason);
}

}  // namespace

std::string schemaMessage(const nlohmann::json& schema, const nlohmann::json& data,
                          const JsonPath& path, const std::string& reason) {
    SchemaSearch search(schema);
    const json* value = &data;
    std::string pointer;
    for (const std::string& part : path) {
        search.enter(part);
        value = value->is_array() ? &value->at(std::stoul(part)) : &value->at(part);
        pointer += '/' + pointerPart(part);
    }
    return (pointer.empty() ? "The data" : pointer) + " " + about(*value, search.found(), reason) +
           ".";
}

}  // namespace quorvane::data
