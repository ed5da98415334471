#include "cli/diagnosticJson.h"

#include <nlohmann/json.hpp>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::cli {

std::string diagnosticJson(const std::string& file, const Diagnostic& diagnostic) {
    nlohmann::ordered_json object;
    object["file"] = file;
    object["line"] = diagnostic.place.line;
    object["column"] = diagnostic.place.column;
    object["length"] = diagnostic.place.bytes.length;
    object["offset"] = diagnostic.place.bytes.offset;
    object["severity"] = severityName(diagnostic.severity);
    object["identifier"] = diagnosticRule(diagnostic.id).identifier;
    object["message"] = diagnostic.message;
    if (!diagnostic.hint.empty()) {
        object["hint"] = diagnostic.hint;
    }
    if (diagnostic.fix) {
        object["fix"] = {{"offset", diagnostic.fix->place.bytes.offset},
                         {"length", diagnostic.fix->place.bytes.length},
                         {"replacement", diagnostic.fix->replacement}};
    }
    if (diagnostic.isFixed) {
        object["fixed"] = true;
    }
    // File names need not be UTF-8.
    return object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

}  // namespace quorvane::cli
