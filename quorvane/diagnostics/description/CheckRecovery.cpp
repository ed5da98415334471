#include "quorvane/diagnostics/description/CheckRecovery.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/description/ViolationReport.h"
#include "quorvane/diagnostics/description/nodeNouns.h"
#include "quorvane/diagnostics/description/syntaxGuess.h"
#include "quorvane/diagnostics/description/unclosedValueHint.h"

namespace quorvane {

namespace {

/// Names the openers that are missing before a line that opens a node in one that holds no such
/// nodes; empty where it is the closers that are missing.
std::string missingOpenerHint(NodeKind parent, NodeKind kind, std::string_view opener) {
    const bool isShort = opener.size() == 2;
    const std::string row = isShort ? "(r" : "(row";
    const std::string cell = isShort ? "(c" : "(cell";
    if (kind == NodeKind::Cell && parent == NodeKind::Doc) {
        return row + " is missing before this line";
    }
    if (kind == NodeKind::Para && parent == NodeKind::Row) {
        return cell + " is missing before this line";
    }
    return kind == NodeKind::Para && parent == NodeKind::Doc
               ? row + " and " + cell + " are missing before this line"
               : std::string();
}

bool isLoneCloseMark(std::string_view line, const Dialect& dialect) {
    return line.starts_with(dialect.marks.close) && isEmptyOrComment(line.substr(1), dialect);
}

/// A closer of which only the ")" is there.
SyntaxGuess loneCloser(const DescriptionNode& open, const Dialect& dialect) {
    SyntaxGuess guess;
    if (!open.opener.empty()) {
        guess.meant.line.type = LineType::Closer;
        guess.meant.line.kind = open.kind;
        guess.hint = "did you mean " + std::string(headOf(open.opener, dialect).substr(1)) + ")?";
    }
    return guess;
}

}  // namespace

void CheckRecovery::violation(const Violation& violation) {
    engine_.reportText(diagnosticOf(violation.fault), source_.placeOf(violation.part),
                       violation.error.description, hintFor(violation));
}

Hint CheckRecovery::hintFor(const Violation& violation) const {
    switch (violation.fault) {
        case DriverFault::DuplicateLeaf:
            return std::string(violation.leaf->key.name) + " is already on line " +
                   std::to_string(violation.leaf->line);
        case DriverFault::TooManyNodes:
            return tooManyHint(violation.kind);
        case DriverFault::WrongCloser:
            return violation.node
                       ? "the " + std::string(nodeNoun(violation.node->kind)) + " on line " +
                             std::to_string(violation.node->line) + " is not closed"
                       : "no " + std::string(nodeNoun(violation.kind)) + " is open";
        case DriverFault::UnclosedValue:
            return unclosedValueHint(dialect_);
        default:
            return {};
    }
}

/// How many nodes of the kind there are, and how many can be read.
std::string CheckRecovery::tooManyHint(NodeKind kind) const {
    const auto [start, last] = dialect_.numbers[indexOf(kind)];
    const std::ptrdiff_t limit = last - start;
    const auto count = std::count_if(lines_->begin(), lines_->end(), [&](const SourceLine& line) {
        const DescriptionLine parts = descriptionLine(line.text, dialect_);
        return parts.type == LineType::Opener && parts.kind == kind;
    });
    const std::string nodes = std::to_string(count) + " " + std::string(nodeNoun(kind)) + "s";
    return count <= limit
               ? "there are only " + nodes +
                     ", but every missing closer skips numbers; close every node"
               : "there are " + nodes + ", but only " + std::to_string(limit) +
                     " can be read; split the description, or use the object model, which "
                     "has no limit";
}

MeantLine CheckRecovery::unreadable(const Violation& violation, const DescriptionNode& open) {
    SyntaxGuess guess = isLoneCloseMark(violation.part, dialect_)
                            ? loneCloser(open, dialect_)
                            : guessLine(violation.part, dialect_);
    engine_.reportText(DiagnosticId::WrongSyntax, source_.placeOf(violation.part),
                       violation.error.description, std::move(guess.hint));
    return guess.meant;
}

void CheckRecovery::closedByOpener(const SourceLine& line, NodeKind opened,
                                   const DescriptionNode& closed, bool isOpened) {
    const std::string_view opener = headOf(line.text, dialect_);
    missingOpener_ = missingOpenerHint(closed.kind, opened, opener);
    if (isOpened) {
        engine_.report(DiagnosticId::ClosedByOpener, source_.placeOf(line.text),
                       {opener, nodeNoun(closed.kind)});
    }
}

void CheckRecovery::added(const SourceLine& line, const DescriptionNode& node) {
    hasDocument_ = hasDocument_ || !node.isOutside;
    if (hasDocument_ && node.isOutside) {
        reportOutside(line);
    }
}

void CheckRecovery::ended(const SourceLine& line) {
    if (hasDocument_) {
        reportOutside(line);
    }
}

/// Reports once that something stands where nothing is read, after the document, unless the parser
/// does.
void CheckRecovery::reportOutside(const SourceLine& line) {
    if (dialect_.misplacedOpeners == MisplacedOpeners::CloseNodes &&
        !std::exchange(isOutsideReported_, true)) {
        engine_.report(DiagnosticId::OutsideDocument, source_.placeOf(line.text), {},
                       missingOpener_);
    }
}

void CheckRecovery::repaired(RowRepair repair, const SourceLine& line) {
    engine_.report(repair == RowRepair::RepeatedOpener ? DiagnosticId::RepeatedOpener
                                                       : DiagnosticId::UnclosedRow,
                   source_.placeOf(line.text));
}

}  // namespace quorvane
