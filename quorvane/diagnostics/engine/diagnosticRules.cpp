#include "quorvane/diagnostics/engine/diagnosticRules.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <vector>

#include "quorvane/base/text/placeholders.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/table/descriptionErrors.h"
#include "quorvane/diagnostics/table/extendedErrors.h"
#include "quorvane/diagnostics/table/extendedStyleSheetDiagnostics.h"
#include "quorvane/diagnostics/table/fileDiagnostics.h"
#include "quorvane/diagnostics/table/nodeWarnings.h"
#include "quorvane/diagnostics/table/pageWarnings.h"
#include "quorvane/diagnostics/table/rtfDiagnostics.h"
#include "quorvane/diagnostics/table/styleSheetDiagnostics.h"
#include "quorvane/diagnostics/table/styleWarnings.h"
#include "quorvane/diagnostics/table/templateErrors.h"
#include "quorvane/diagnostics/table/textWarnings.h"

namespace quorvane {

namespace {

/// A text of a raw string begins on the line after its opening quote.
constexpr std::string_view withoutFirstLineBreak(std::string_view text) {
    return text.starts_with('\n') ? text.substr(1) : text;
}

constexpr DiagnosticRule withoutFirstLineBreaks(DiagnosticRule rule) {
    rule.explanation = withoutFirstLineBreak(rule.explanation);
    rule.wrong = withoutFirstLineBreak(rule.wrong);
    rule.right = withoutFirstLineBreak(rule.right);
    rule.companion = withoutFirstLineBreak(rule.companion);
    return rule;
}

template <std::size_t... sizes>
constexpr auto joined(const DiagnosticRule (&... tables)[sizes]) {
    std::array<DiagnosticRule, (sizes + ...)> all;
    auto end = all.begin();
    ((end = std::transform(std::begin(tables), std::end(tables), end, withoutFirstLineBreaks)),
     ...);
    return all;
}

constexpr auto table = joined(fileDiagnostics, descriptionErrors, extendedErrors, templateErrors,
                              nodeWarnings, styleWarnings, textWarnings, pageWarnings,
                              styleSheetDiagnostics, extendedStyleSheetDiagnostics, rtfDiagnostics);

constexpr bool isInOrderOfIds() {
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].id != static_cast<DiagnosticId>(i)) {
            return false;
        }
    }
    return true;
}

static_assert(isInOrderOfIds(), "The tables list the diagnostics in the order of DiagnosticId.");

std::string_view takeLine(std::string_view& text) {
    const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
    const std::string_view line = text.substr(0, length);
    text.remove_prefix(length);
    return line;
}

/// N of a line "; N times:"; 0 for any other line.
int repetitions(std::string_view line) {
    constexpr std::string_view begin = "; ";
    int times = 0;
    if (line.starts_with(begin)) {
        const char* end = line.data() + line.size();
        const auto number = std::from_chars(line.data() + begin.size(), end, times);
        if (line.substr(static_cast<std::size_t>(number.ptr - line.data())) != " times:\n") {
            return 0;
        }
    }
    return times;
}

}  // namespace

std::span<const DiagnosticRule> diagnosticRules() {
    return table;
}

const DiagnosticRule& diagnosticRule(DiagnosticId id) {
    return table[static_cast<std::size_t>(id)];
}

const DiagnosticRule* findDiagnosticRule(std::string_view identifier) {
    const auto* found = std::find_if(table.begin(), table.end(), [&](const DiagnosticRule& rule) {
        return rule.identifier == identifier;
    });
    return found == table.end() ? nullptr : found;
}

std::span<const std::string_view> diagnosticIdentifiers() {
    static const std::vector<std::string_view> identifiers = [] {
        std::vector<std::string_view> list;
        list.reserve(table.size());
        for (const DiagnosticRule& rule : table) {
            list.push_back(rule.identifier);
        }
        return list;
    }();
    return identifiers;
}

bool isOffByDefault(DiagnosticId id) {
    return id == DiagnosticId::UnusedStyle;
}

std::string explanationOf(const DiagnosticRule& rule) {
    std::string explanation(trimWhitespace(rule.explanation));
    std::replace(explanation.begin(), explanation.end(), '\n', ' ');
    return explanation;
}

std::string ruleTitle(const DiagnosticRule& rule) {
    if (!rule.title.empty()) {
        return std::string(rule.title);
    }
    if (rule.message == "{0}") {
        const std::string explanation = explanationOf(rule);
        return explanation.substr(0, explanation.find(". ") + 1);
    }
    std::string title = withReplacements(rule.message, [](std::size_t) { return "\xE2\x80\xA6"; });
    std::erase(title, '\r');
    std::replace(title.begin(), title.end(), '\n', ' ');
    return std::string(trimBlanks(title));
}

std::string_view severityName(Severity severity) {
    return severity == Severity::Error ? "error" : "warning";
}

std::string expandedExample(std::string_view example) {
    std::string expanded;
    while (!example.empty()) {
        const std::string_view line = takeLine(example);
        const int times = repetitions(line);
        if (times == 0) {
            expanded += line;
            continue;
        }
        const std::string_view repeated = example.substr(0, example.find("; so far\n"));
        example.remove_prefix(repeated.size());
        takeLine(example);
        for (int i = 0; i < times; ++i) {
            expanded += repeated;
        }
    }
    return expanded;
}

}  // namespace quorvane
