#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// What can be wrong with a stylesheet.
inline constexpr DiagnosticRule styleSheetDiagnostics[] = {
    {.id = DiagnosticId::BracesUnderflow,
     .identifier = "braces-underflow",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = "Error in stylesheet\r\nBraces stack underflow: there are more } than {.",
     .explanation = R"(
Each definition stands in one pair of braces, also those in what is meant as a comment.
)",
     .wrong = R"(
{ name: normal; style-def: s; format: \fs20 } }
)",
     .right = R"(
{ name: normal; style-def: s; format: \fs20 }
)"},

    {.id = DiagnosticId::BracesOverflow,
     .identifier = "braces-overflow",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = "Error in stylesheet\r\nBraces stack overflow: there are more { than }",
     .explanation = R"(
Each definition stands in one pair of braces, also those in what is meant as a comment.
)",
     .wrong = R"(
{ name: normal; style-def: s; format: \fs20
{ name: sum; style-def: s; format: \b }
)",
     .right = R"(
{ name: normal; style-def: s; format: \fs20 }
{ name: sum; style-def: s; format: \b }
)"},

    {.id = DiagnosticId::BadKeyword,
     .identifier = "bad-keyword",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = "Error while processing stylesheet.\r\n{0} is not a valid keyword.",
     .explanation = R"(
The first item of a definition is `name`; the others are `style-def`, `format`, `based-on`, `next`
and `additive`, each with a `:` and a value.
)",
     .wrong = R"(
{ name: normal; style-def: s; fromat: \fs20 }
)",
     .right = R"(
{ name: normal; style-def: s; format: \fs20 }
)"},

    {.id = DiagnosticId::BadStyleKind,
     .identifier = "bad-style-kind",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = "{0} is not a valid value for style-def",
     .explanation = R"(
A style is a paragraph style, `s`, a character style, `cs`, or a cell style, `cell`.
)",
     .wrong = R"(
{ name: normal; style-def: p; format: \fs20 }
)",
     .right = R"(
{ name: normal; style-def: s; format: \fs20 }
)"},

    {.id = DiagnosticId::BadAdditive,
     .identifier = "bad-additive",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = "Error while processing stylesheet.\r\n{0} is not a valid value for additive",
     .explanation = R"(
`additive` is `yes` or `no`.
)",
     .wrong = R"(
{ name: normal; style-def: s; additive: true }
)",
     .right = R"(
{ name: normal; style-def: s; additive: yes }
)"},

    {.id = DiagnosticId::StyleSheetRejected,
     .identifier = "stylesheet-rejected",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = "{0}",
     .explanation = R"(
The loading ends with an error that no other row of this table tells, as that of a file that is no
stylesheet in spite of its extension. The message is the error's own.
)"},

    {.id = DiagnosticId::DescriptionAsStyleSheet,
     .identifier = "description-as-stylesheet",
     .severity = Severity::Warning,
     .language = CheckedLanguage::StyleSheet,
     .message = "This is a description, not a stylesheet.",
     .explanation = R"(
What is given as the stylesheet begins with a node of a description. Text outside of braces says
nothing in a stylesheet: it is accepted, and has no styles. Styles of the descriptions are not
looked up in it.
)",
     .wrong = R"(
(doc
(r
(c
c)
r)
doc)
)",
     .right = R"(
{ name: normal; style-def: s; format: \fs20 }
)",
     .companion = R"(
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

    {.id = DiagnosticId::NoStyles,
     .identifier = "no-styles",
     .severity = Severity::Warning,
     .language = CheckedLanguage::StyleSheet,
     .message = "The stylesheet has no styles.",
     .explanation = R"(
The definition of a style stands in braces. Text outside of braces says nothing: it is accepted, and
has no styles. An empty file is accepted too.
)",
     .wrong = R"(
name: total; style-def: s; format: \b
)",
     .right = R"(
{ name: total; style-def: s; format: \b }
)"},

    {.id = DiagnosticId::DuplicateStyle,
     .identifier = "duplicate-style",
     .severity = Severity::Warning,
     .language = CheckedLanguage::StyleSheet,
     .message = "The style {0} is defined already, on line {1}.",
     .explanation = R"(
Of a name that is defined twice the first definition is found. The second one takes a number and
nothing else.
)",
     .wrong = R"(
{ name: normal; style-def: s; format: \fs20 }
{ name: normal; style-def: s; format: \fs24 }
)",
     .right = R"(
{ name: normal; style-def: s; format: \fs20 }
{ name: large; style-def: s; format: \fs24 }
)"},

    {.id = DiagnosticId::UnusedStyle,
     .identifier = "unused-style",
     .severity = Severity::Warning,
     .language = CheckedLanguage::StyleSheet,
     .message = "No description uses the style {0}.",
     .explanation = R"(
The style is not named by any of the descriptions that were checked together with the stylesheet,
nor by `next` or `based-on` of another style. The first paragraph style, `normal` and the paragraph
styles that keep the numbers of character styles free count as used. A house stylesheet serves many
descriptions: the warning is given only with `--enable unused-style`.
)",
     .wrong = R"(
{ name: normal; style-def: s; format: \fs20 }
{ name: sum; style-def: s; format: \b }
)",
     .right = R"(
{ name: normal; style-def: s; format: \fs20 }
)",
     .companion = R"(
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

    {.id = DiagnosticId::NoStyleKind,
     .identifier = "no-style-kind",
     .severity = Severity::Warning,
     .language = CheckedLanguage::StyleSheet,
     .message = "The definition has no style-def and is a cell style.",
     .explanation = R"(
A definition without `style-def` is a cell style, whatever its format.
)",
     .wrong = R"(
{ name: normal; format: silver }
)",
     .right = R"(
{ name: normal; style-def: cell; format: silver }
)"},

    {.id = DiagnosticId::RepeatedItem,
     .identifier = "repeated-item",
     .severity = Severity::Warning,
     .language = CheckedLanguage::StyleSheet,
     .message = "{0} stands in the definition already; this one is passed over.",
     .explanation = R"(
Of an item that is repeated the first counts.
)",
     .wrong = R"(
{ name: normal; style-def: s; format: \fs20; format: \b }
)",
     .right = R"(
{ name: normal; style-def: s; format: \fs20\b }
)"},

    {.id = DiagnosticId::EmptyStyleName,
     .identifier = "empty-style-name",
     .severity = Severity::Warning,
     .language = CheckedLanguage::StyleSheet,
     .message = "The style has an empty name.",
     .explanation = R"(
The style takes a number, and it is found by no name but the empty one.
)",
     .wrong = R"(
{ name: normal,; style-def: s; format: \fs20 }
)",
     .right = R"(
{ name: normal; style-def: s; format: \fs20 }
)"},

    {.id = DiagnosticId::UndefinedReference,
     .identifier = "undefined-reference",
     .severity = Severity::Warning,
     .language = CheckedLanguage::StyleSheet,
     .message = "{0} names no {1} style: it is left out.",
     .explanation = R"(
`based-on` and `next` name a style of the same kind. A reference to another one is not written.
)",
     .wrong = R"(
{ name: normal; style-def: s; format: \fs20; next: sum }
)",
     .right = R"(
{ name: normal; style-def: s; format: \fs20; next: normal }
)"},

    {.id = DiagnosticId::UnknownCellColor,
     .identifier = "unknown-cell-color",
     .severity = Severity::Warning,
     .language = CheckedLanguage::StyleSheet,
     .message = "{0} is the name of no color: cells of this style get background 0.",
     .explanation = R"(
The format of a cell style is the name of one of the 57 colours, with `-` in place of blanks. Any
other word gives the background 0, which some readers show black.
)",
     .wrong = R"(
{ name: shaded; style-def: cell; format: sliver }
)",
     .right = R"(
{ name: shaded; style-def: cell; format: silver }
)"},

    {.id = DiagnosticId::FormatText,
     .identifier = "format-text",
     .severity = Severity::Warning,
     .language = CheckedLanguage::StyleSheet,
     .message = "{0} is no control word: it is printed wherever the style is used.",
     .explanation = R"(
The format of a paragraph style and of a character style goes into the document as it is. It is made
of control words, each with its backslash and its number behind it; any other word is text, which
each paragraph of the style begins with.
)",
     .wrong = R"(
{ name: normal; style-def: s; format: fs20 b }
)",
     .right = R"(
{ name: normal; style-def: s; format: \fs20\b }
)"},
};

}  // namespace quorvane
