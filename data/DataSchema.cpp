#include "data/DataSchema.h"

#include <algorithm>
#include <exception>
#include <set>
#include <utility>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_visitor.hpp>

#include "data/schemaFault.h"
#include "data/schemaMessage.h"

namespace quorvane::data {

namespace {

using nlohmann::json;
using valijson::adapters::NlohmannJsonAdapter;

// The validator calls itself for each level of the data, and for each schema in a schema.
constexpr std::size_t maxCalls = 1000;
constexpr std::size_t maxFaults = 100;

/// A value for the validator, and how deep it is nested.
struct Converted {
    json value;
    std::size_t depth = 1;
};

json single(const DataValue& value) {
    switch (value.kind) {
        case DataValue::Kind::Boolean:
            return value.text == "true";
        case DataValue::Kind::Number:
            return json::parse(value.text);
        case DataValue::Kind::String:
            return value.text;
        case DataValue::Kind::List:
            return json::array();
        case DataValue::Kind::Object:
            return json::object();
        default:
            return nullptr;
    }
}

Converted converted(const DataValue& root) {
    struct Open {
        const DataValue* from;
        json* to;
        std::size_t depth;
    };
    Converted result{single(root)};
    std::vector<Open> open = {{&root, &result.value, 1}};
    while (!open.empty()) {
        const auto [from, to, depth] = open.back();
        open.pop_back();
        result.depth = std::max(result.depth, depth);
        for (std::size_t i = 0; i < from->items.size(); ++i) {
            const DataValue& item = from->items[i];
            if (from->isList()) {
                to->push_back(single(item));
            } else {
                (*to)[from->names[i]] = single(item);
            }
        }
        // Only now do the items stay where they are.
        for (std::size_t i = 0; i < from->items.size(); ++i) {
            if (const DataValue& item = from->items[i]; !item.items.empty()) {
                json& place = from->isList() ? (*to)[i] : (*to)[from->names[i]];
                open.push_back({&item, &place, depth + 1});
            }
        }
    }
    return result;
}

/// The path that the validator writes as "<root>", "[lines]", "[2]".
JsonPath pathIn(const std::vector<std::string>& context) {
    JsonPath path;
    for (std::size_t i = 1; i < context.size(); ++i) {
        path.push_back(context[i].substr(1, context[i].size() - 2));
    }
    return path;
}

std::string pointerTo(const JsonPath& path) {
    std::string pointer;
    for (const std::string& part : path) {
        pointer += '/' + pointerPart(part);
    }
    return pointer;
}

bool isAboutForms(const std::string& reason) {
    return reason.starts_with("Failed to validate against any") ||
           reason.starts_with("Failed to validate against exactly");
}

/// True for what only says that an inner value fails, or another schema for the same value.
bool isAboutInner(const std::string& reason) {
    return reason.starts_with("Failed to validate ") && !isAboutForms(reason);
}

/// A value that fails, and how the validator says why.
struct Failure {
    JsonPath path;
    std::string pointer;
    std::string reason;
};

/// Takes away the last failures of a value, but not those of its parts; true if it has any.
bool keepsParts(std::vector<Failure>& failures, const std::string& pointer) {
    const auto begin =
        std::find_if(failures.rbegin(), failures.rend(), [&](const Failure& each) {
            return each.pointer != pointer && !each.pointer.starts_with(pointer + "/");
        }).base();
    failures.erase(std::remove_if(begin, failures.end(),
                                  [&](const Failure& each) { return each.pointer == pointer; }),
                   failures.end());
    return !failures.empty() && failures.back().pointer.starts_with(pointer + "/");
}

/// The failures that say the most: of a value that has none of several forms, those of its parts if
/// there are any.
std::vector<Failure> tellingFailures(const valijson::ValidationResults& results) {
    std::vector<Failure> failures;
    Failure deepest;
    for (const auto& error : results) {
        Failure failure{pathIn(error.context), {}, error.description};
        failure.pointer = pointerTo(failure.path);
        if (failure.path.size() >= deepest.path.size()) {
            deepest = {failure.path, failure.pointer, {}};
        }
        if (isAboutInner(failure.reason)) {
            continue;
        }
        if (isAboutForms(failure.reason) && keepsParts(failures, failure.pointer)) {
            continue;
        }
        failures.push_back(std::move(failure));
    }
    return failures.empty() ? std::vector{deepest} : failures;
}

}  // namespace

struct DataSchema::Contents {
    json source;
    valijson::Schema schema;
    SchemaContents parts;
};

DataSchema::DataSchema(std::unique_ptr<Contents> contents) : contents_(std::move(contents)) {}
DataSchema::DataSchema(DataSchema&&) noexcept = default;
DataSchema& DataSchema::operator=(DataSchema&&) noexcept = default;
DataSchema::~DataSchema() = default;

std::optional<DataSchema> DataSchema::of(const DataValue& schema, JsonFault& fault) {
    auto contents = std::make_unique<Contents>();
    contents->source = converted(schema).value;
    if (std::optional<JsonFault> found = findSchemaFault(contents->source, contents->parts)) {
        fault = *std::move(found);
        return std::nullopt;
    }
    try {
        valijson::SchemaParser(valijson::SchemaParser::kDraft7)
            .populateSchema(NlohmannJsonAdapter(contents->source), contents->schema);
    } catch (const std::exception& error) {
        fault = {"", std::string("This schema cannot be used: ") + error.what()};
        return std::nullopt;
    }
    return DataSchema(std::move(contents));
}

std::vector<JsonFault> DataSchema::faultsIn(const DataValue& value) const {
    const Converted data = converted(value);
    if (data.depth * contents_->parts.longestChain > maxCalls) {
        return {{"", "The data is nested too deep to be validated with this schema."}};
    }
    // The validator looks the patterns up, and adds none: all are there.
    auto& patterns = contents_->parts.patterns;
    const NlohmannJsonAdapter adapter(data.value);
    using Visitor = valijson::ValidationVisitor<NlohmannJsonAdapter>;
    const std::vector<std::string> root = {"<root>"};
    std::vector<JsonFault> faults;
    try {
        if (Visitor(adapter, root, true, nullptr, patterns).validateSchema(contents_->schema)) {
            return {};
        }
        valijson::ValidationResults results;
        Visitor(adapter, root, true, &results, patterns).validateSchema(contents_->schema);
        std::set<std::string> messages;
        for (const Failure& each : tellingFailures(results)) {
            std::string message =
                schemaMessage(contents_->source, data.value, each.path, each.reason);
            if (faults.size() < maxFaults && messages.insert(message).second) {
                faults.push_back({each.pointer, std::move(message)});
            }
        }
    } catch (const std::exception& error) {
        faults = {{"", std::string("The data cannot be validated: ") + error.what()}};
    }
    return faults;
}

}  // namespace quorvane::data
