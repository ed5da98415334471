#include "data/schemaFault.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvane::data {

namespace {

using nlohmann::json;

// The validator calls itself for each level.
constexpr std::size_t maxLevels = 150;

/// What a keyword of a schema takes.
enum class Takes : std::uint8_t {
    Type,
    Count,
    Number,
    Divisor,
    Text,
    Pattern,
    Boolean,
    List,
    Names,
    /// A schema for the same value, or for a part of it.
    OwnSchema,
    PartSchema,
    OwnSchemas,
    Items,
    PartSchemaOfEachName,
    PartSchemaOfEachPattern,
    Dependencies,
};

struct Keyword {
    std::string_view name;
    Takes takes;
};

constexpr Keyword keywords[] = {
    {"type", Takes::Type},
    {"minLength", Takes::Count},
    {"maxLength", Takes::Count},
    {"minItems", Takes::Count},
    {"maxItems", Takes::Count},
    {"minProperties", Takes::Count},
    {"maxProperties", Takes::Count},
    {"minimum", Takes::Number},
    {"maximum", Takes::Number},
    {"exclusiveMinimum", Takes::Number},
    {"exclusiveMaximum", Takes::Number},
    {"multipleOf", Takes::Divisor},
    {"title", Takes::Text},
    {"description", Takes::Text},
    {"format", Takes::Text},
    {"pattern", Takes::Pattern},
    {"uniqueItems", Takes::Boolean},
    {"enum", Takes::List},
    {"required", Takes::Names},
    {"not", Takes::OwnSchema},
    {"if", Takes::OwnSchema},
    {"then", Takes::OwnSchema},
    {"else", Takes::OwnSchema},
    {"allOf", Takes::OwnSchemas},
    {"anyOf", Takes::OwnSchemas},
    {"oneOf", Takes::OwnSchemas},
    {"items", Takes::Items},
    {"additionalItems", Takes::PartSchema},
    {"contains", Takes::PartSchema},
    {"additionalProperties", Takes::PartSchema},
    {"propertyNames", Takes::PartSchema},
    {"properties", Takes::PartSchemaOfEachName},
    {"definitions", Takes::PartSchemaOfEachName},
    {"patternProperties", Takes::PartSchemaOfEachPattern},
    {"dependencies", Takes::Dependencies},
};

const Keyword* keywordNamed(std::string_view name) {
    const auto* const found = std::find_if(std::begin(keywords), std::end(keywords),
                                           [=](const Keyword& each) { return each.name == name; });
    return found == std::end(keywords) ? nullptr : found;
}

bool isTypeName(const json& value) {
    constexpr std::string_view names[] = {"array",  "boolean", "integer", "null",
                                          "number", "object",  "string"};
    return value.is_string() &&
           std::find(std::begin(names), std::end(names),
                     std::string_view(value.get_ref<const std::string&>())) != std::end(names);
}

bool isListOf(const json& value, bool (*isRight)(const json&)) {
    return value.is_array() && std::all_of(value.begin(), value.end(), isRight);
}

bool isCount(const json& value) {
    return value.is_number_unsigned() ||
           (value.is_number_float() && value.get<double>() >= 0 && value.get<double>() < 1e15);
}

bool isText(const json& value) {
    return value.is_string();
}

/// What is wrong with a value of a keyword that holds no schema; empty where nothing is.
std::string wrongValue(Takes takes, const json& value) {
    switch (takes) {
        case Takes::Type:
            return isTypeName(value) || (isListOf(value, isTypeName) && !value.empty())
                       ? ""
                       : "takes array, boolean, integer, null, number, object or string, or a list "
                         "of them";
        case Takes::Count:
            return isCount(value) ? "" : "takes a whole number that is not negative";
        case Takes::Number:
            return value.is_number() ? "" : "takes a number";
        case Takes::Divisor:
            return value.is_number() && value.get<double>() > 0 ? ""
                                                                : "takes a number greater than 0";
        case Takes::Text:
        case Takes::Pattern:
            return isText(value) ? "" : "takes a text";
        case Takes::Boolean:
            return value.is_boolean() ? "" : "takes true or false";
        case Takes::List:
            return value.is_array() && !value.empty() ? "" : "takes a list of values";
        case Takes::Names:
            return isListOf(value, isText) ? "" : "takes a list of names";
        case Takes::OwnSchemas:
            return value.is_array() && !value.empty() ? "" : "takes a list of schemas";
        case Takes::PartSchemaOfEachName:
        case Takes::PartSchemaOfEachPattern:
        case Takes::Dependencies:
            return value.is_object() ? "" : "takes an object";
        default:
            return "";
    }
}

/// Visits all schemas of a file as the validator does, references among them.
class SchemaVisit {
public:
    SchemaVisit(const json& root, SchemaContents& contents) : root_(root), contents_(contents) {}

    std::optional<JsonFault> run() {
        open(&root_, "");
        while (!open_.empty() && !fault_) {
            Open& innermost = open_.back();
            if (innermost.next == innermost.inner.size()) {
                open_.pop_back();
            } else {
                const Inner next = innermost.inner[innermost.next++];
                open(next.schema, next.pointer);
            }
        }
        if (!fault_) {
            findCycle();
        }
        return fault_;
    }

private:
    struct Inner {
        const json* schema;
        std::string pointer;
    };

    /// A schema whose inner ones are being visited.
    struct Open {
        std::vector<Inner> inner = {};
        std::size_t next = 0;
    };

    void fail(const std::string& pointer, const std::string& message) {
        if (!fault_) {
            fault_ = JsonFault{pointer, message};
        }
    }

    void open(const json* schema, const std::string& pointer) {
        if (open_.size() > maxLevels) {
            fail(pointer, "Schemas in schemas are nested deeper than " + std::to_string(maxLevels) +
                              " levels, references included.");
            return;
        }
        if (!schema->is_object() && !schema->is_boolean()) {
            fail(pointer, "A schema is an object, true or false.");
            return;
        }
        schemas_.try_emplace(schema, pointer);
        open_.emplace_back();
        if (!schema->is_object()) {
            return;
        }
        if (const auto reference = schema->find("$ref"); reference != schema->end()) {
            follow(schema, *reference, pointer + "/$ref");
        }
        // The validator does not look at what stands beside a reference, but at the definitions.
        const bool isReference = schema->contains("$ref");
        for (const auto& [name, value] : schema->items()) {
            const Keyword* const keyword = keywordNamed(name);
            if (keyword && (!isReference || name == "definitions")) {
                takeKeyword(*schema, *keyword, value,
                            std::string(pointer).append("/").append(name));
            }
        }
    }

    void follow(const json* schema, const json& reference, const std::string& pointer) {
        if (!reference.is_string()) {
            fail(pointer, "$ref takes a text.");
            return;
        }
        const auto& target = reference.get_ref<const std::string&>();
        if (target != "#" && !target.starts_with("#/")) {
            fail(pointer,
                 "A reference leads to a place in the same file, such as "
                 "#/definitions/line; " +
                     target + " does not.");
            return;
        }
        try {
            const json* const found = &root_.at(json::json_pointer(target.substr(1)));
            same_[schema].push_back(found);
            if (followed_.insert(found).second) {
                open_.back().inner.push_back({found, target.substr(1)});
            }
        } catch (const json::exception&) {
            fail(pointer, target + " is not in this file.");
        }
    }

    void takeKeyword(const json& schema, const Keyword& keyword, const json& value,
                     const std::string& pointer) {
        if (const std::string wrong = wrongValue(keyword.takes, value); !wrong.empty()) {
            fail(pointer, std::string(keyword.name) + " " + wrong + ".");
            return;
        }
        switch (keyword.takes) {
            case Takes::Pattern:
                takePattern(value.get_ref<const std::string&>(), pointer);
                break;
            case Takes::OwnSchema:
                takeSchema(&schema, value, pointer);
                break;
            case Takes::PartSchema:
                takeSchema(nullptr, value, pointer);
                break;
            case Takes::OwnSchemas:
                takeList(&schema, value, pointer);
                break;
            case Takes::Items:
                if (value.is_array()) {
                    takeList(nullptr, value, pointer);
                } else {
                    takeSchema(nullptr, value, pointer);
                }
                break;
            case Takes::PartSchemaOfEachName:
            case Takes::PartSchemaOfEachPattern:
            case Takes::Dependencies:
                takeNamed(schema, keyword.takes, value, pointer);
                break;
            default:
                break;
        }
    }

    void takeSchema(const json* sameAs, const json& schema, const std::string& pointer) {
        if (sameAs) {
            same_[sameAs].push_back(&schema);
        }
        open_.back().inner.push_back({&schema, pointer});
    }

    void takeList(const json* sameAs, const json& schemas, const std::string& pointer) {
        for (std::size_t i = 0; i < schemas.size(); ++i) {
            takeSchema(sameAs, schemas[i], pointer + "/" + std::to_string(i));
        }
    }

    void takeNamed(const json& schema, Takes takes, const json& schemas,
                   const std::string& pointer) {
        for (const auto& [name, value] : schemas.items()) {
            const std::string place = pointer + "/" + pointerPart(name);
            if (takes == Takes::PartSchemaOfEachPattern) {
                takePattern(name, place);
            }
            if (takes != Takes::Dependencies) {
                takeSchema(nullptr, value, place);
            } else if (!value.is_array()) {
                takeSchema(&schema, value, place);
            } else if (!isListOf(value, isText)) {
                fail(place, "dependencies takes a list of names, or a schema, for each name.");
            }
        }
    }

    void takePattern(const std::string& pattern, const std::string& pointer) {
        std::regex::flag_type flags = std::regex::ECMAScript;
#ifdef __GLIBCXX__
        // The usual matching calls itself for each character.
        flags |= std::regex_constants::__polynomial;
#endif
        try {
            contents_.patterns.try_emplace(pattern, pattern, flags);
        } catch (const std::regex_error&) {
            fail(pointer, "This is not a regular expression, or one that cannot be used here: " +
                              pattern + ".");
        }
    }

    /// Looks for a schema that applies to a value if it applies to it.
    void findCycle() {
        std::map<const json*, std::size_t> waiting;
        for (const auto& [schema, others] : same_) {
            for (const json* other : others) {
                ++waiting[other];
            }
        }
        std::map<const json*, std::size_t> lengths;
        std::vector<const json*> ready;
        for (const auto& [schema, pointer] : schemas_) {
            if (!waiting.contains(schema)) {
                ready.push_back(schema);
            }
        }
        while (!ready.empty()) {
            const json* const schema = ready.back();
            ready.pop_back();
            const std::size_t length = std::max<std::size_t>(lengths[schema], 1);
            contents_.longestChain = std::max(contents_.longestChain, length);
            for (const json* other : same_[schema]) {
                lengths[other] = std::max(lengths[other], length + 1);
                if (--waiting[other] == 0) {
                    ready.push_back(other);
                }
            }
        }
        // The addresses of schemas differ from run to run, their places do not.
        std::set<std::string> left;
        for (const auto& [schema, count] : waiting) {
            if (count > 0) {
                left.insert(schemas_[schema]);
            }
        }
        if (!left.empty()) {
            fail(*left.begin(), "This schema refers to itself without a value in between.");
        }
    }

    const json& root_;
    SchemaContents& contents_;
    std::vector<Open> open_;
    std::map<const json*, std::string> schemas_;
    std::map<const json*, std::vector<const json*>> same_;
    std::set<const json*> followed_;
    std::optional<JsonFault> fault_;
};

}  // namespace

std::optional<JsonFault> findSchemaFault(const nlohmann::json& schema, SchemaContents& contents) {
    return SchemaVisit(schema, contents).run();
}

}  // namespace quorvane::data
