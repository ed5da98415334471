#include "cli/explanation.h"

#include <algorithm>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string_view>

#include "cli/exampleReport.h"
#include "cli/oneLine.h"

namespace quorvane::cli {

namespace {

std::string_view textsOf(CheckedLanguage language) {
    switch (language) {
        case CheckedLanguage::Description:
            return "descriptions";
        case CheckedLanguage::StyleSheet:
            return "stylesheets";
        case CheckedLanguage::Rtf:
            break;
    }
    return "RTF files";
}

std::string wrapped(std::string_view text) {
    constexpr std::size_t columns = 78;
    std::istringstream words{std::string(text)};
    std::string lines;
    std::size_t column = 0;
    for (std::string word; words >> word; column += word.size()) {
        if (column > 0 && column + 1 + word.size() > columns) {
            lines += '\n';
            column = 0;
        } else if (column > 0) {
            lines += ' ';
            ++column;
        }
        lines += word;
    }
    return lines + "\n";
}

std::string example(std::string_view title, std::string_view text) {
    std::istringstream lines{std::string(text)};
    std::string shown = "\n" + std::string(title) + "\n";
    for (std::string line; std::getline(lines, line);) {
        shown += "    " + oneLine(line) + "\n";
    }
    return text.empty() ? std::string() : shown;
}

using Json = nlohmann::ordered_json;

}  // namespace

std::string explanation(const DiagnosticRule& rule) {
    const bool isSheet = rule.language == CheckedLanguage::StyleSheet;
    return std::string(rule.identifier) + ": " + std::string(severityName(rule.severity)) + " in " +
           std::string(textsOf(rule.language)) +
           (isOffByDefault(rule.id) ? ", off by default" : "") + "\n    " + exampleMessage(rule) +
           "\n\n" + wrapped(rule.explanation) +
           example(isSheet ? "With this description:" : "With this stylesheet:", rule.companion) +
           example("Wrong:", rule.wrong) + example(exampleReportTitle(rule), exampleReport(rule)) +
           example("Right:", rule.right);
}

std::string diagnosticsList() {
    std::size_t longest = 0;
    for (const std::string_view identifier : diagnosticIdentifiers()) {
        longest = std::max(longest, identifier.size());
    }
    std::string list;
    for (const DiagnosticRule& rule : diagnosticRules()) {
        const std::string blanks(longest - rule.identifier.size() + 2, ' ');
        list += std::string(rule.identifier) + blanks +
                (rule.severity == Severity::Error ? "error    " : "warning  ") + ruleTitle(rule) +
                (isOffByDefault(rule.id) ? " (off by default)" : "") + "\n";
    }
    return list;
}

std::string diagnosticsListJson() {
    constexpr std::string_view languages[] = {"description", "stylesheet", "rtf"};
    std::string list;
    for (const DiagnosticRule& rule : diagnosticRules()) {
        const Json object = {{"identifier", rule.identifier},
                             {"severity", severityName(rule.severity)},
                             {"language", languages[static_cast<std::size_t>(rule.language)]},
                             {"title", ruleTitle(rule)},
                             {"default", !isOffByDefault(rule.id)}};
        list += object.dump() + "\n";
    }
    return list;
}

}  // namespace quorvane::cli
