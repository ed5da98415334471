#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/driver/driverErrorTable.h"

namespace quorvane {

/// What the library rejects in a description. The messages are those of the driver's errors.
inline constexpr DiagnosticRule descriptionErrors[] = {
    {.id = DiagnosticId::WrongFileType,
     .identifier = "wrong-file-type",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::NotADescription),
     .explanation = R"(
A description is one `doc` node. A text without `(doc` is not a description, and neither is a
stylesheet or an RTF file that is named `.rtfspec`.
)",
     .wrong = R"(
(dco
(r
(c
(p
(pt=Total)
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
(pt=Total)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::MissingElement,
     .identifier = "missing-element",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::MissingElements),
     .title = "The description has no row and no cell.",
     .explanation = R"(
A description has at least one row with a cell. One of `(row`, `(r`, `(cell` and `(c`, in lower
case, must occur in it.
)",
     .wrong = R"(
(doc
(paper-width=11906)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=Total)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::WrongRoot,
     .identifier = "wrong-root",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::WrongRoot),
     .explanation = R"(
The first line must begin with `(doc` and the last one with `doc)`, in lower case. Comments and
blank lines do not count.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=Total)
p)
c)
r)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=Total)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::TooManyNodes,
     .identifier = "too-many-nodes",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::TooManyNodes),
     .explanation = R"(
A description can have at most 999 rows, 999 cells and 999 paragraphs. Reading stops at the limit.
Split a longer table into several descriptions, or build it with the object model.
)",
     .wrong = R"(
(doc
; 1000 times:
(r
(c
c)
r)
; so far
doc)
)",
     .right = R"(
(doc
; 999 times:
(r
(c
c)
r)
; so far
doc)
)"},

    {.id = DiagnosticId::WrongCloser,
     .identifier = "wrong-closer",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::WrongCloser),
     .title = "A closer does not match the node that is open.",
     .explanation = R"(
A closer closes the node that was opened last. If another node is still open, its closer is missing
before this line.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=Total)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=Total)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::WrongSyntax,
     .identifier = "wrong-syntax",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::WrongSyntax),
     .title = "A line is not an opener, a closer, a leaf or a comment.",
     .explanation = R"(
A line is an opener such as `(row`, a closer such as `row)`, a leaf such as `(pt=Total)`, or a
comment, which begins with `;`. A leaf begins and ends on one line, and its value ends at the first
`)`. In a text, write `\line` for a line break and `\'29` for a `)`.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt Total)
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
(pt=Total)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::DuplicateLeaf,
     .identifier = "duplicate-leaf",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::DuplicateLeaf),
     .title = "A node has the same key twice.",
     .explanation = R"(
A key can occur only once in a node. The long and the short form of a key are the same key.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=Total)
(para-text=Sum)
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
(pt=Total)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::NoDocument,
     .identifier = "no-document",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::NoDocument),
     .title = "The description has no doc node.",
     .explanation = R"(
The first line begins with `(doc`, but does not open a `doc` node, so there is no document.
)",
     .wrong = R"(
(doc=1)
(r
(c
(p
(pt=Total)
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
(pt=Total)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::WrongKeyword,
     .identifier = "wrong-keyword",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::UnknownDocKey),
     .title = "A node does not have this key.",
     .explanation = R"(
Each kind of node has its own keys. They are written in lower case, in the long or the short form.
)",
     .wrong = R"(
(doc
(r
(c
(pt=Total)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(p
(pt=Total)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::NoRow,
     .identifier = "no-row",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::NoRow),
     .title = "The document has no row.",
     .explanation = R"(
A document has at least one row.
)",
     .wrong = R"(
(doc
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
doc)
)"},

    {.id = DiagnosticId::NoCell,
     .identifier = "no-cell",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::NoCell),
     .title = "A row has no cell.",
     .explanation = R"(
A row has at least one cell. Word processors lose a table that has a row without cells.
)",
     .wrong = R"(
(doc
(r
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

    {.id = DiagnosticId::NoParaText,
     .identifier = "no-para-text",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::NoParaText),
     .title = "A paragraph has no para-text.",
     .explanation = R"(
A paragraph must have the key `para-text`, or `pt` for short. Its value may be empty.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pa=right)
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
(pt=Total)
(pa=right)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::NodeInParagraph,
     .identifier = "node-in-paragraph",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::NodeInParagraph),
     .title = "A paragraph contains a node.",
     .explanation = R"(
A paragraph cannot contain other nodes.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=Total)
(doc
doc)
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
(pt=Total)
p)
c)
r)
doc)
)"},

    {.id = DiagnosticId::WrongContext,
     .identifier = "wrong-context",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::WrongContext),
     .title = "A node is inside one that cannot contain it.",
     .explanation = R"(
A document contains rows, a row contains cells, and a cell contains paragraphs. A `doc` node cannot
be inside another node.
)",
     .wrong = R"(
(doc
(r
(c
(doc
doc)
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

    {.id = DiagnosticId::WrongColor,
     .identifier = "wrong-color",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::WrongColor),
     .explanation = R"(
A background is one of the 37 color names of the description language, or `none`.
)",
     .wrong = R"(
(doc
(r
(rb=crimson)
(c
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(rb=dark-red)
(c
c)
r)
doc)
)"},

    {.id = DiagnosticId::WrongBorder,
     .identifier = "wrong-border",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::WrongBorder),
     .explanation = R"(
A border is `none`, `hair`, `thin`, `normal` or `thick`.
)",
     .wrong = R"(
(doc
(r
(rtb=medium)
(c
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(rtb=normal)
(c
c)
r)
doc)
)"},

    {.id = DiagnosticId::WrongAlignment,
     .identifier = "wrong-alignment",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::WrongAlignment),
     .explanation = R"(
An alignment is `left`, `right`, `centered`, `justified` or `none`, or a number from 0 to 4.
)",
     .wrong = R"(
(doc
(r
(c
(ca=center)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(ca=centered)
c)
r)
doc)
)"},

    {.id = DiagnosticId::NotANumber,
     .identifier = "not-a-number",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::NotANumber),
     .title = "The value of … is not a number.",
     .explanation = R"(
The keys of the document, `cell-width`, `row-key`, `cell-key` and `para-key` take a number without a
unit: digits with at most one `.`, optionally with a sign before them and an exponent after them.
)",
     .wrong = R"(
(doc
(r
(c
(cw=50%)
c)
r)
doc)
)",
     .right = R"(
(doc
(r
(c
(cw=50)
c)
r)
doc)
)"},

    {.id = DiagnosticId::Overflow,
     .identifier = "overflow",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::Overflow),
     .title = "A number is too large.",
     .explanation = R"(
A number is rounded to a whole number, which must fit into 32 bits. So must the measures that are
computed from it.
)",
     .wrong = R"(
(doc
(paper-width=1e12)
(r
(c
c)
r)
doc)
)",
     .right = R"(
(doc
(paper-width=12242)
(r
(c
c)
r)
doc)
)"},

    {.id = DiagnosticId::TakenKey,
     .identifier = "taken-key",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::TakenKey),
     .title = "Two rows, cells or paragraphs have the same key.",
     .explanation = R"(
Two rows of a document, two cells of a row, or two paragraphs of a cell cannot have the same key.
The key of a node without one is its number: rows count from 1001, cells from 2001 and paragraphs
from 3001.
)",
     .wrong = R"(
(doc
(r
(c
(cell-key=7)
c)
(c
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
c)
(c
(cell-key=8)
c)
r)
doc)
)"},

    {.id = DiagnosticId::UnencodableValue,
     .identifier = "unencodable-value",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = driverErrorText(DriverFault::Unencodable),
     .explanation = R"(
Documents are written in Windows-1252. In a file in UTF-8, the text of a paragraph may have any
characters, because RTF has control words for them. Names of styles, the data of marked fields and
all other values may have those of Windows-1252 only.
)",
     .wrong = R"(
(doc
(r
(c
(p
(pt=Dvořák)
(para-style=tučné)
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
(pt=Dvořák)
(para-style=normal)
p)
c)
r)
doc)
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::Rejected,
     .identifier = "rejected",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = "{0}",
     .explanation = R"(
The library rejects the description with an error that has no diagnostic of its own. The message is
that of the error.
)"},
};

}  // namespace quorvane
