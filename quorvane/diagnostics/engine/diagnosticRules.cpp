#include "quorvane/diagnostics/engine/diagnosticRules.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <vector>

#include "quorvane/base/text/trimming.h"

namespace quorvane {

namespace {

constexpr bool corruptsDocument = true;

constexpr DiagnosticRule table[] = {
#define QUORVANE_DIAGNOSTIC(id, identifier, severity, language, text, explanation, wrong, right, \
                            ...)                                                                 \
    {DiagnosticId::id,                                                                           \
     identifier,                                                                                 \
     Severity::severity,                                                                         \
     CheckedLanguage::language,                                                                  \
     text,                                                                                       \
     explanation,                                                                                \
     wrong,                                                                                      \
     right,                                                                                      \
     __VA_ARGS__},
#include "quorvane/diagnostics/engine/diagnosticTable.h"
};

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
        if (std::string_view(number.ptr, end) != " times:\n") {
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
    const auto* found =
        std::find_if(std::begin(table), std::end(table),
                     [&](const DiagnosticRule& rule) { return rule.identifier == identifier; });
    return found == std::end(table) ? nullptr : found;
}

std::span<const std::string_view> diagnosticIdentifiers() {
    static const std::vector<std::string_view> identifiers = [] {
        std::vector<std::string_view> list;
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

std::string ruleTitle(const DiagnosticRule& rule) {
    if (rule.text == "{0}") {
        return std::string(rule.explanation.substr(0, rule.explanation.find(". ") + 1));
    }
    std::string title;
    for (std::size_t at = 0; at < rule.text.size(); ++at) {
        const std::string_view rest = rule.text.substr(at);
        const bool isPlace =
            rest.size() > 2 && rest[0] == '{' && rest[1] >= '0' && rest[1] <= '9' && rest[2] == '}';
        if (isPlace) {
            title += "\xE2\x80\xA6";
            at += 2;
        } else if (rest[0] != '\r') {
            title += rest[0] == '\n' ? ' ' : rest[0];
        }
    }
    return std::string(TrimEx(title));
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
