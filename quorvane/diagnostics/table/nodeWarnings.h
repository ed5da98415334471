#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// Warnings about the nodes and keys of a description.
inline constexpr DiagnosticRule nodeWarnings[] = {
    {.id = DiagnosticId::ClosedByOpener,
     .identifier = "closed-by-opener",
     .severity = Severity::Warning,
     .language = CheckedLanguage::Description,
     .message = "{0} closes the {1} that is open.",
     .explanation = R"(
An opener that cannot stand where it is met closes the open nodes up to the one in which it can.
What was meant to stay open is closed too, and numbers of nodes are skipped.
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
     .message = "This (r is dropped, because another one follows.",
     .explanation = R"(
Of two lines `(r` that follow each other the repair drops the first when the description is checked.
Without checking both are rows, and word processors lose a table that has a row without cells.
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
The repair puts it there when the description is checked.
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
     .message = "From here on nothing is read into the document.",
     .explanation = R"(
What stands behind the end of the `doc` node is passed over. The node ends with its closer, and with
an opener of a cell or a paragraph where no row is open.
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
     .message = "The alignment is lost, because {0} files the {1} anew.",
     .explanation = R"(
A key puts a new entry into the place of the one that is built, and the alignment, which is applied
before, stays behind. Align the paragraphs of a cell with `cell-key`, and the cell of a paragraph
with `para-key`.
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
     .message = "The marked field refuses a number: {0} is lost.",
     .explanation = R"(
The text of a marked field that reads as a number is refused: a paragraph is marked without it, a
cell is not marked at all. Put a letter in front.
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
A key or the name of a style that reads as a number is taken as that number, in its shortest form:
zeros at its beginning and behind its point are lost, and a sign `+`.
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
     .message = "This comment cannot be followed. {0}.",
     .explanation = R"(
A comment `; quorvane: ignore ID` takes the diagnostics of that identifier on the next line out of
the report; several identifiers are separated by commas. In a stylesheet it stands on a line of its
own outside of braces, and is about the definition that follows.
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
