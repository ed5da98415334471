#include "cli/explanation.h"

#include <sstream>
#include <string_view>
#include <vector>

#include "cli/UsageError.h"
#include "cli/oneLine.h"
#include "quorvane/diagnostics/diagnosticRules.h"
#include "quorvane/diagnostics/nearestWord.h"

namespace quorvane::cli {

namespace {

std::string_view languageName(CheckedLanguage language) {
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

const DiagnosticRule& ruleNamed(const std::string& identifier) {
    if (const DiagnosticRule* rule = findDiagnosticRule(identifier)) {
        return *rule;
    }
    std::vector<std::string_view> identifiers;
    for (const DiagnosticRule& rule : diagnosticRules()) {
        identifiers.push_back(rule.identifier);
    }
    const std::string hint = didYouMean(identifier, identifiers);
    throw UsageError("there is no diagnostic " + identifier + (hint.empty() ? "" : "; " + hint));
}

}  // namespace

std::string explanation(const std::string& identifier) {
    const DiagnosticRule& rule = ruleNamed(identifier);
    const bool isSheet = rule.language == CheckedLanguage::StyleSheet;
    return std::string(rule.identifier) + ": " + std::string(severityName(rule.severity)) + " in " +
           std::string(languageName(rule.language)) + "\n    " + oneLine(rule.text) + "\n\n" +
           wrapped(rule.explanation) + example("Wrong:", rule.wrong) +
           example("Right:", rule.right) +
           example(isSheet ? "The description of both:" : "The stylesheet of both:",
                   rule.companion);
}

}  // namespace quorvane::cli
