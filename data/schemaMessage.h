#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace quorvane::data {

/// The names and numbers of items that lead to a value, from outside in.
using JsonPath = std::vector<std::string>;

/// Says in a sentence what is wrong with the value at a path of the data, and what the schema asks
/// for there. `reason` is how the validator names the keyword that the value fails; an empty one
/// stands for no more than that it fails.
std::string schemaMessage(const nlohmann::json& schema, const nlohmann::json& data,
                          const JsonPath& path, const std::string& reason);

}  // namespace quorvane::data
