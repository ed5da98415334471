#include "cli/SarifLog.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <string_view>
#include <system_error>

#include "cli/RenderOptions.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/text/hexadecimal.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::cli {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* rootName = "SRCROOT";

/// A path with `/` between its parts, as the path of a URI.
std::string uriPath(const std::filesystem::path& path) {
    constexpr std::string_view kept =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    const std::u8string name = path.generic_u8string();
    std::string uri;
    for (const char8_t character : name) {
        const auto byte = static_cast<unsigned char>(character);
        if (kept.find(static_cast<char>(byte)) != std::string_view::npos) {
            uri += static_cast<char>(byte);
        } else {
            uri += '%' + hexadecimal(byte, 2);
        }
    }
    return uri;
}

std::string fileUri(const std::filesystem::path& path) {
    const std::string uri = uriPath(path);
    // On Windows an absolute path begins with the name of its drive.
    return (uri.starts_with('/') ? "file://" : "file:///") + uri;
}

/// The folder to which relative names belong; empty when the system does not say.
std::string rootUri() {
    std::error_code failure;
    const std::filesystem::path folder = std::filesystem::current_path(failure);
    return failure ? std::string() : fileUri(folder / "");
}

Json artifactLocation(const std::string& file) {
    if (file == standardStream) {
        return {{"uri", "stdin"}};
    }
    const std::filesystem::path path = pathFromUtf8(file).lexically_normal();
    if (path.is_absolute()) {
        return {{"uri", fileUri(path)}};
    }
    return {{"uri", uriPath(path)}, {"uriBaseId", rootName}};
}

/// "wrong-color" as a name: "WrongColor".
std::string ruleName(std::string_view identifier) {
    std::string name;
    bool beginsWord = true;
    for (const char character : identifier) {
        if (character == '-') {
            beginsWord = true;
            continue;
        }
        const bool isLetter = character >= 'a' && character <= 'z';
        name += beginsWord && isLetter ? static_cast<char>(character - 'a' + 'A') : character;
        beginsWord = false;
    }
    return name;
}

/// The hash FNV-1a of a text, in hexadecimal digits.
std::string hashOf(std::string_view text) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char character : text) {
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001b3U;
    }
    return hexadecimal(hash, 16, lowerHexadecimalDigits);
}

/// The line of a place without its blanks, which change where only the form of a file does. Of a
/// very long one it is the beginning.
std::string lineContent(const Place& place, const FileWindow& window) {
    constexpr std::int64_t longest = 4096;
    std::string line = window.read(place.bytes.offset - (place.bytes.column - 1), longest);
    line.resize(std::min(line.find_first_of("\r\n"), line.size()));
    std::erase_if(line, [](char character) { return character == ' ' || character == '\t'; });
    return line;
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

Json message(std::string_view text) {
    return {{"text", messageText(text)}};
}

Json rules() {
    Json list = Json::array();
    for (const DiagnosticRule& rule : diagnosticRules()) {
        const std::string explained = messageText(explanationOf(rule)) +
                                      " See `quorvane check --explain " +
                                      std::string(rule.identifier) + "` for examples.";
        list.push_back(
            {{"id", rule.identifier},
             {"name", ruleName(rule.identifier)},
             {"shortDescription", message(ruleTitle(rule))},
             {"fullDescription", message(explanationOf(rule))},
             {"help", {{"text", explained}, {"markdown", explained}}},
             {"defaultConfiguration",
              {{"enabled", !isOffByDefault(rule.id)}, {"level", severityName(rule.severity)}}}});
    }
    return list;
}

Json region(const Place& place) {
    return {{"startLine", place.line},    {"startColumn", place.column},
            {"endLine", place.line},      {"endColumn", place.column + place.length},
            {"charOffset", place.offset}, {"charLength", place.length}};
}

Json fixOf(const std::string& file, const Fix& fix, const std::string& hint) {
    const Json replacement = {{"deletedRegion", region(fix.place)},
                              {"insertedContent", {{"text", fix.replacement}}}};
    return {{"description", message(hint)},
            {"artifactChanges", Json::array({{{"artifactLocation", artifactLocation(file)},
                                              {"replacements", Json::array({replacement})}}})}};
}

Json resultOf(const std::string& file, const Diagnostic& diagnostic,
              const std::string& fingerprint) {
    const DiagnosticRule& rule = diagnosticRule(diagnostic.id);
    const std::string hint = diagnostic.hint.empty() ? "" : " (" + diagnostic.hint + ")";
    Json result = {{"ruleId", rule.identifier},
                   {"ruleIndex", &rule - diagnosticRules().data()},
                   {"level", severityName(diagnostic.severity)},
                   {"message", message(diagnostic.message + hint)},
                   {"locations", Json::array({{{"physicalLocation",
                                                {{"artifactLocation", artifactLocation(file)},
                                                 {"region", region(diagnostic.place)}}}}})},
                   {"partialFingerprints", {{"primaryLocationLineHash", fingerprint}}}};
    if (diagnostic.fix) {
        result["fixes"] = Json::array({fixOf(file, *diagnostic.fix, diagnostic.hint)});
    }
    return result;
}

}  // namespace

void SarifLog::add(const std::string& file, Diagnostic diagnostic, const FileWindow& window) {
    const std::string hash = hashOf(std::string(diagnosticRule(diagnostic.id).identifier) + "\n" +
                                    lineContent(diagnostic.place, window));
    const int occurrence = ++occurrences_[{file, hash}];
    results_.push_back(
        {file, std::move(diagnostic), hash + ":" + std::to_string(occurrence), window.encoding});
}

/// The files whose encoding is not the default.
nlohmann::ordered_json SarifLog::artifactsInUtf8() const {
    Json artifacts = Json::array();
    std::set<std::string_view> files;
    for (const Result& result : results_) {
        if (isUtf8(result.encoding) && files.insert(result.file).second) {
            artifacts.push_back(
                {{"location", artifactLocation(result.file)}, {"encoding", "utf-8"}});
        }
    }
    return artifacts;
}

std::string SarifLog::text(bool isComplete) const {
    Json results = Json::array();
    for (const Result& result : results_) {
        results.push_back(resultOf(result.file, result.diagnostic, result.fingerprint));
    }
    Json invocation = {{"executionSuccessful", isComplete}};
    Json run = {
        {"tool",
         {{"driver", {{"name", "quorvane"}, {"version", QUORVANE_VERSION}, {"rules", rules()}}}}}};
    if (const std::string root = rootUri(); !root.empty()) {
        invocation["workingDirectory"] = {{"uri", root}};
        run["originalUriBaseIds"] = {{rootName, {{"uri", root}}}};
    }
    run["invocations"] = Json::array({std::move(invocation)});
    run["columnKind"] = "unicodeCodePoints";
    run["defaultEncoding"] = "windows-1252";
    if (Json artifacts = artifactsInUtf8(); !artifacts.empty()) {
        run["artifacts"] = std::move(artifacts);
    }
    run["results"] = std::move(results);
    const Json log = {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                      {"version", "2.1.0"},
                      {"runs", Json::array({std::move(run)})}};
    return log.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace quorvane::cli
