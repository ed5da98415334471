#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// What the library rejects in a description.
inline constexpr DiagnosticRule descriptionErrors[] = {
    {.id = DiagnosticId::WrongFileType,
     .identifier = "wrong-file-type",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = "The provided file isn't a correct rtfspec file.",
     .explanation = R"(
A description is one `doc` node. A text without `(doc` is none, and a stylesheet or an RTF file
named `.rtfspec` is none either.
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
     .message = "Missing some requiered elements:\r\n(doc\r\n(row\r\n(cell",
     .explanation = R"(
A description holds at least one row with a cell: one of `(row`, `(r`, `(cell` and `(c`, in lower
case, must stand in it.
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
     .message = "(doc must be the first node.",
     .explanation = R"(
The first line begins with `(doc` and the last one with `doc)`, in lower case. Comments and blank
lines do not count.
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
     .message = "Too many {0} nodes.",
     .explanation = R"(
A description has at most 999 rows, 999 cells and 999 paragraphs. At the limit the reading ends. A
longer table is made of several descriptions, or through the object model.
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
     .message = "Wrong node type in {0}",
     .explanation = R"(
A closer closes the node that is open. Where another node is open still, its own closer is missing
before.
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
     .message = "{0} has a wrong syntax",
     .explanation = R"(
A line is an opener such as `(row`, a closer such as `row)`, a leaf such as `(pt=Total)`, or a
comment behind `;`. A leaf begins and ends on one line, and its value ends at the first `)`: write
`\line` for a line break and `\'29` for a `)` in a text.
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
     .message = "This key is already associated with an element of this collection",
     .explanation = R"(
Each key stands once in a node. The long and the short form of a key are the same key.
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
     .message = "Object variable or With block variable not set",
     .explanation = R"(
The first line begins with `(doc` but opens no `doc` node, so there is no document.
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
     .message = "{0} isn't a valid keyword.",
     .explanation = R"(
Each kind of node has keys of its own. Keys are written in lower case, in the long or the short
form.
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
     .message = "Must have at least one row.",
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
     .message = "Must have at least one cell.",
     .explanation = R"(
A row has at least one cell: word processors lose a table that has a row without cells.
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
     .message = "In a para group para-text is mandatory.",
     .explanation = R"(
A paragraph has the key `para-text`, short `pt`. Its value may be empty.
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
     .message = "A paragraph is a terminal node",
     .explanation = R"(
A paragraph holds no other node.
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
     .message = "Invalid node declaration in this context\r\n",
     .explanation = R"(
A document holds rows, a row holds cells, a cell holds paragraphs. A `doc` node stands in no other
node.
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
     .message = "{0} isn't a recognized color.",
     .explanation = R"(
A background is the name of one of the 37 colors of the language, or `none`.
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
     .message = "{0} isn't a recognized border.",
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
     .message = "{0} isn't a recognized alignment.",
     .explanation = R"(
An alignment is `left`, `right`, `centered`, `justified` or `none`, or one of the numbers 0 to 4.
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
     .message = "Value for {0} should be numeric.",
     .explanation = R"(
The keys of the document, `cell-width`, `row-key`, `cell-key` and `para-key` take a number: digits
with at most one `.`, a sign before and an exponent behind if need be; no unit.
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
     .message = "Overflow",
     .explanation = R"(
A number is rounded to a whole one of 32 bits, and so are the measures that come out of it.
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
     .message = "This key is already associated with an element of this collection",
     .explanation = R"(
Two rows of the document, two cells of a row or two paragraphs of a cell cannot have one key. A node
without a key has its number as key: rows count from 1001, cells from 2001 and paragraphs from 3001.
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

    {.id = DiagnosticId::Rejected,
     .identifier = "rejected",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = "{0}",
     .explanation = R"(
The analysis ends with an error that no other row of this table tells. The message is the error's
own.
)"},
};

}  // namespace quorvane
