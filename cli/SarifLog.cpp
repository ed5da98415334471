#include "cli/SarifLog.h"

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string_view>

#include "cli/RenderOptions.h"
#include "quorvane/diagnostics/diagnosticRules.h"

namespace quorvane::cli {

namespace {

using Json = nlohmann::ordered_json;

/// The file's name as a relative or absolute URI reference.
std::string uriOf(const std::string& file) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr std::string_view kept =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    if (file == standardStream) {
        return "stdin";
    }
    std::string uri;
    for (const char character : file) {
        const auto byte = static_cast<unsigned char>(character);
        if (kept.find(character) != std::string_view::npos) {
            uri += character;
        } else if (character == '\\') {
            uri += '/';
        } else {
            uri += '%';
            uri += digits[byte / 16];
            uri += digits[byte % 16];
        }
    }
    return uri;
}

/// A text as messages have it, where single braces would be placeholders.
std::string messageText(std::string_view text) {
    std::string message;
    for (const char character : text) {
        message += character;
        if (character == '{' || character == '}') {
            message += character;
        }
    }
    return message;
}

/// A rule's text with an ellipsis for each "{0}" that a finding puts its own words in for.
std::string textOfRule(std::string_view text) {
    std::string shortened;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text.substr(at).starts_with('{') && text.substr(at + 2).starts_with('}')) {
            shortened += "\xE2\x80\xA6";
            at += 2;
        } else {
            shortened += text[at];
        }
    }
    return shortened;
}

Json rules() {
    Json list = Json::array();
    for (const DiagnosticRule& rule : diagnosticRules()) {
        list.push_back({{"id", rule.identifier},
                        {"shortDescription", {{"text", messageText(textOfRule(rule.text))}}},
                        {"fullDescription", {{"text", messageText(rule.explanation)}}},
                        {"defaultConfiguration", {{"level", severityName(rule.severity)}}}});
    }
    return list;
}

Json region(const Place& place) {
    return {{"startLine", place.line},
            {"startColumn", place.column},
            {"endColumn", place.column + place.length},
            {"charOffset", place.offset},
            {"charLength", place.length}};
}

Json result(const std::string& file, const quorvane::Diagnostic& finding) {
    const DiagnosticRule& rule = diagnosticRule(finding.id);
    const std::string hint = finding.hint.empty() ? "" : " (" + finding.hint + ")";
    return {{"ruleId", rule.identifier},
            {"ruleIndex", &rule - diagnosticRules().data()},
            {"level", severityName(finding.severity)},
            {"message", {{"text", messageText(finding.message + hint)}}},
            {"locations", Json::array({{{"physicalLocation",
                                         {{"artifactLocation", {{"uri", uriOf(file)}}},
                                          {"region", region(finding.place)}}}}})}};
}

}  // namespace

void SarifLog::add(const std::string& file, quorvane::Diagnostic finding) {
    findings_.emplace_back(file, std::move(finding));
}

std::string SarifLog::text(bool isComplete) const {
    Json results = Json::array();
    for (const auto& [file, finding] : findings_) {
        results.push_back(result(file, finding));
    }
    Json run = {
        {"tool",
         {{"driver", {{"name", "quorvane"}, {"version", QUORVANE_VERSION}, {"rules", rules()}}}}},
        {"invocations", Json::array({{{"executionSuccessful", isComplete}}})},
        {"columnKind", "unicodeCodePoints"},
        {"defaultEncoding", "windows-1252"},
        {"results", std::move(results)}};
    const Json log = {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                      {"version", "2.1.0"},
                      {"runs", Json::array({std::move(run)})}};
    return log.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace quorvane::cli
