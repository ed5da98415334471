#pragma once

#include <span>
#include <string>
#include <string_view>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// The languages that are checked.
enum class CheckedLanguage { Description, StyleSheet, Rtf };

/// One entry of the tables of diagnostics in `quorvane/diagnostics/table/`.
struct DiagnosticRule {
    DiagnosticId id{};
    /// The name by which people and programs know it, such as "wrong-color".
    std::string_view identifier{};
    Severity severity{};
    CheckedLanguage language{};
    /// What the report says, with "{0}", "{1}" where it names something.
    std::string_view message{};
    /// What it is about in general; empty where the message says it.
    std::string_view title{};
    /// Broken into lines in the tables; see `explanationOf`.
    std::string_view explanation{};
    /// A text with the problem, and the same text corrected; see `expandedExample`. Both are empty
    /// where a text of a few lines cannot show it.
    std::string_view wrong{};
    std::string_view right{};
    /// What the examples are checked together with: a stylesheet for a description, a description
    /// for a stylesheet; empty for none.
    std::string_view companion{};
    /// The encoding of the examples, as files.
    TextEncoding encoding = TextEncoding::Windows1252;
    /// The text breaks the document that it is written into: readers refuse it or lose a part.
    bool corruptsDocument = false;
};

/// All entries, in the order of `DiagnosticId`.
std::span<const DiagnosticRule> diagnosticRules();

/// The entry of a kind of diagnostic.
const DiagnosticRule& diagnosticRule(DiagnosticId id);

/// The entry of that name; null when there is none.
const DiagnosticRule* findDiagnosticRule(std::string_view identifier);

/// The identifiers of all entries, in the same order.
std::span<const std::string_view> diagnosticIdentifiers();

/// True for a diagnostic that is reported only on request.
bool isOffByDefault(DiagnosticId id);

/// The explanation as one paragraph without line breaks.
std::string explanationOf(const DiagnosticRule& rule);

/// What the rule is about, on one line: its title; without one, its message with "…" for each word
/// that a text puts in, or the first sentence of its explanation where the message is nothing else.
std::string ruleTitle(const DiagnosticRule& rule);

/// "error" or "warning".
std::string_view severityName(Severity severity);

/// An example as it is checked: the lines between a line "; N times:" and a line "; so far" are
/// repeated N times.
std::string expandedExample(std::string_view example);

}  // namespace quorvane
