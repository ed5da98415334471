#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// Warnings about the nodes and keys of a description.
inline constexpr DiagnosticRule nodeWarnings[] = {
    {.id = DiagnosticId::ClosedByOpener,
     .identifier = "closed-by-opener",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "{0} closes the {1} that is still open.",
     .title = "An opener closes a node that is still open.",
     .explanation = R"(
An opener that does not belong in the open node closes nodes until it reaches one that it belongs
in. This also closes nodes that were meant to stay open, and skips node numbers. Close each node
with its closer.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=one)
(p
(pt=two)
p)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=one)
p)
(p
(pt=two)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::RepeatedOpener,
     .identifier = "repeated-opener",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The next line is another (r; checking drops this one.",
     .explanation = R"(
When a description is checked, the first of two consecutive lines `(r` is dropped. Without checking,
both are rows, and word processors lose a table that has a row without cells.
)",
     .wrong = R"(
(doc
(r
(r
(c
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
c)
r)
doc)
)"},

    {.id = DiagnosticId::UnclosedRow,
     .identifier = "unclosed-row",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "r) is missing before this line.",
     .explanation = R"(
When the description is checked, the missing `r)` is inserted here.
)",
     .wrong = R"(
(doc
(r
(c
c)
(r
(c
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
c)
r)
(r
(c
c)
r)
doc)
)"},

    {.id = DiagnosticId::OutsideDocument,
     .identifier = "outside-document",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "Everything from here on is outside the doc node and ignored.",
     .explanation = R"(
Whatever follows the end of the `doc` node is ignored. The node ends with its closer, but also with
an opener of a cell or a paragraph when no row is open.
)",
     .wrong = R"(
(doc
(r
(c
c)
r)
(c
c)
doc)
)",
     .right = R"(
(doc
(r
(c
c)
r)
(r
(c
c)
r)
doc)
)"},

    {.id = DiagnosticId::LostAlignment,
     .identifier = "lost-alignment",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "The alignment is lost because {0} replaces the {1}.",
     .title = "A key in the same node takes the alignment away.",
     .explanation = R"(
A key makes a new cell or paragraph that replaces the one being built. The alignment has been
applied to the old one by then. If a cell has `cell-key`, align its paragraphs; if a paragraph has
`para-key`, align its cell.
)",
     .wrong = R"(
(doc
(r
(c
(ca=right)
(cell-key=7)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(cell-key=7)
(p
(pt=Total)
(pa=right)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::RefusedMarkedField,
     .identifier = "refused-marked-field",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "A marked field cannot hold a number; {0} is lost.",
     .explanation = R"(
A marked field refuses a text that reads as a number. A paragraph is then marked without the text,
and a cell is not marked at all. Put a letter in front of the number.
)",
     .wrong = R"(
(doc
(r
(c
(cmf=12)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(cmf=no 12)
c)
r)
doc)
)"},

    {.id = DiagnosticId::LeadingZeros,
     .identifier = "leading-zeros",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "{0} is read as {1}.",
     .explanation = R"(
A key or style name that reads as a number is stored as that number in its shortest form. Zeros at
its beginning or after its decimal point are lost, and so is a `+` sign.
)",
     .wrong = R"(
(doc
(r
(c
(cell-key=0012)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(cell-key=12)
c)
r)
doc)
)"},

    {.id = DiagnosticId::IgnoreComment,
     .identifier = "ignore-comment",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "Invalid quorvane comment: {0}.",
     .explanation = R"(
The comment `; quorvane: ignore ID` leaves the diagnostics with that identifier out of the report
for the next line. Separate several identifiers with commas. In a stylesheet, the comment stands on
a line of its own outside the braces and applies to the definition that follows.
)",
     .wrong = R"(
(doc
(r
; quorvane: ignore low-contarst
(c
c)
r)
doc)
)",
     .right = R"(
(doc
(r
; quorvane: ignore low-contrast
(c
c)
r)
doc)
)"},
};

}  // namespace quorvane
