#pragma once

#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>
#include <regex>
#include <string>
#include <unordered_map>

#include "data/JsonFault.h"

namespace quorvane::data {

/// What a schema holds that validating data with it needs.
struct SchemaContents {
    /// The regular expressions for its patterns, which take time in proportion to a text.
    std::unordered_map<std::string, std::regex> patterns = {};
    /// How many schemas can apply to one value, one within the other.
    std::size_t longestChain = 1;
};

/// What is wrong with a JSON value as a JSON Schema of draft 7. References lead to other places in
/// the same file; no schema may refer to itself without a value in between.
std::optional<JsonFault> findSchemaFault(const nlohmann::json& schema, SchemaContents& contents);

}  // namespace quorvane::data
