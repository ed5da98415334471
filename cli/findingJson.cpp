#include "cli/findingJson.h"

#include <nlohmann/json.hpp>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::cli {

std::string findingJson(const std::string& file, const quorvane::Diagnostic& finding) {
    nlohmann::ordered_json object;
    object["file"] = file;
    object["line"] = finding.place.line;
    object["column"] = finding.place.column;
    object["length"] = finding.place.length;
    object["offset"] = finding.place.offset;
    object["severity"] = severityName(finding.severity);
    object["identifier"] = diagnosticRule(finding.id).identifier;
    object["message"] = finding.message;
    if (!finding.hint.empty()) {
        object["hint"] = finding.hint;
    }
    if (finding.fix) {
        object["fix"] = {{"offset", finding.fix->place.offset},
                         {"length", finding.fix->place.length},
                         {"replacement", finding.fix->replacement}};
    }
    if (finding.isFixed) {
        object["fixed"] = true;
    }
    // File names need not be UTF-8.
    return object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

}  // namespace quorvane::cli
