#include "cli/diagnosticsPage.h"

#include <string_view>

#include "cli/exampleReport.h"
#include "cli/oneLine.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::cli {

namespace {

constexpr std::string_view introduction = R"(# Diagnostics

This page lists everything that `quorvane check` can report about descriptions, stylesheets and RTF files, with one section for each identifier. `quorvane check --explain IDENTIFIER` shows a section on the terminal, and `quorvane check --list` lists all identifiers. An error is something that the library rejects or that readers of the document cannot make sense of. A warning is something that is accepted but does not do what its author wants. An error that the library reports too has the library's message.

The page is generated from the tables in `quorvane/diagnostics/table/` by `scripts/diagnostics-page`. Each report is what the command writes about the example above it, without the summary. In an example, the lines between `; N times:` and `; so far` are repeated N times.

)";

std::string_view languageName(CheckedLanguage language) {
    switch (language) {
        case CheckedLanguage::Description:
            return "Descriptions";
        case CheckedLanguage::StyleSheet:
            return "Stylesheets";
        case CheckedLanguage::Rtf:
            break;
    }
    return "RTF files";
}

std::string block(std::string_view title, std::string_view text) {
    return std::string(title) + "\n\n```\n" + std::string(text) + "```\n\n";
}

/// A text of the table as it stands in a line of Markdown.
std::string code(std::string_view text) {
    return "`" + std::string(trimBlanks(oneLine(text))) + "`";
}

std::string section(const DiagnosticRule& rule) {
    std::string text = "### " + std::string(rule.identifier) + "\n\n" +
                       (rule.severity == Severity::Error ? "Error: " : "Warning: ") +
                       code(rule.message) + "\n\n" + explanationOf(rule) + "\n\n";
    if (!rule.companion.empty()) {
        text += block(rule.language == CheckedLanguage::StyleSheet ? "With this description:"
                                                                   : "With this stylesheet:",
                      rule.companion);
    }
    if (!rule.wrong.empty()) {
        text += block("Wrong:", rule.wrong);
        text += block(exampleReportTitle(rule), exampleReport(rule));
        text += block("Right:", rule.right);
    }
    return text;
}

std::string tableLine(const DiagnosticRule& rule) {
    const std::string name(rule.identifier);
    return "| [" + name + "](#" + name + ") | " + std::string(severityName(rule.severity)) + " | " +
           code(rule.message) + " |\n";
}

}  // namespace

std::string diagnosticsPage() {
    std::string contents;
    std::string sections;
    for (const CheckedLanguage language :
         {CheckedLanguage::Description, CheckedLanguage::StyleSheet, CheckedLanguage::Rtf}) {
        const std::string title(languageName(language));
        contents += title + ":\n\n| identifier | | message |\n|---|---|---|\n";
        sections += "## " + title + "\n\n";
        for (const DiagnosticRule& rule : diagnosticRules()) {
            if (rule.language == language) {
                contents += tableLine(rule);
                sections += section(rule);
            }
        }
        contents += "\n";
    }
    std::string page = std::string(introduction) + contents + sections;
    page.pop_back();
    return page;
}

}  // namespace quorvane::cli
