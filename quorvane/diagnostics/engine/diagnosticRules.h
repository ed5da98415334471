#pragma once

#include <span>
#include <string>
#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// The languages that are checked.
enum class CheckedLanguage { Description, StyleSheet, Rtf };

/// A row of the table of diagnostics.
struct DiagnosticRule {
    DiagnosticId id;
    /// The name by which people and programs know it, such as "wrong-color".
    std::string_view identifier;
    Severity severity;
    CheckedLanguage language;
    /// The message, with "{0}", "{1}" where it names something.
    std::string_view text;
    std::string_view explanation;
    /// A text that has the finding, and the same text put right; see `expandedExample`. Both are
    /// empty where a text of a few lines cannot show it.
    std::string_view wrong;
    std::string_view right;
    /// What the examples are checked together with: a stylesheet for a description, a description
    /// for a stylesheet; empty for none.
    std::string_view companion;
    /// The text breaks the document that it is written into: readers refuse it or lose a part.
    bool corruptsDocument = false;
};

/// The table, in its order.
std::span<const DiagnosticRule> diagnosticRules();

/// The row of an identifier.
const DiagnosticRule& diagnosticRule(DiagnosticId id);

/// The row of that name; null when there is none.
const DiagnosticRule* findDiagnosticRule(std::string_view identifier);

/// The identifiers of all rows, in the order of the table.
std::span<const std::string_view> diagnosticIdentifiers();

/// True for a diagnostic that is left out unless it is asked for.
bool isOffByDefault(DiagnosticId id);

/// What the rule is about, on one line: its message with "…" for each word that a text puts in, or
/// the beginning of its explanation where the message is a text of the library.
std::string ruleTitle(const DiagnosticRule& rule);

/// "error" or "warning".
std::string_view severityName(Severity severity);

/// An example as it is checked: the lines between a line "; N times:" and a line "; so far" stand
/// there N times.
std::string expandedExample(std::string_view example);

}  // namespace quorvane
