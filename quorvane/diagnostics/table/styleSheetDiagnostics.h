#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/stylesheet/styleSheetErrorTable.h"

namespace quorvane {

/// What can be wrong with a stylesheet. The messages about what the library rejects are those of
/// its errors.
inline constexpr DiagnosticRule styleSheetDiagnostics[] = {
    {.id = DiagnosticId::BracesUnderflow,
     .identifier = "braces-underflow",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = styleSheetErrorText(StyleSheetFault::BracesUnderflow),
     .title = "The stylesheet has more } than {.",
     .explanation = R"(
Each definition is enclosed in one pair of braces. Braces inside a comment count too.
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
     .message = styleSheetErrorText(StyleSheetFault::BracesOverflow),
     .title = "The stylesheet has more { than }.",
     .explanation = R"(
Each definition is enclosed in one pair of braces. Braces inside a comment count too.
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
     .message = styleSheetErrorText(StyleSheetFault::BadKeyword),
     .title = "… is not a keyword of a stylesheet.",
     .explanation = R"(
The first item of a definition is `name`. The others are `style-def`, `format`, `based-on`, `next`
and `additive`. Each is followed by `:` and a value.
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
     .message = styleSheetErrorText(StyleSheetFault::BadStyleKind),
     .title = "… is not a kind of style.",
     .explanation = R"(
A style is a paragraph style (`s`), a character style (`cs`) or a cell style (`cell`).
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
     .message = styleSheetErrorText(StyleSheetFault::BadAdditive),
     .title = "The value of additive is neither yes nor no.",
     .explanation = R"(
`additive` is `yes` or `no`.
)",
     .wrong = R"(
{ name: normal; style-def: s; additive: true }
)",
     .right = R"(
{ name: normal; style-def: s; additive: yes }
)"},

    {.id = DiagnosticId::UnencodableStyle,
     .identifier = "unencodable-style",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = "{0} isn't in Windows-1252; the definition of a style can't hold it.",
     .explanation = R"(
Documents are written in Windows-1252. A stylesheet may be in UTF-8, but the names and formats of
its styles may have the characters of Windows-1252 only. Outside the braces, where text has no
meaning, any character may stand.
)",
     .wrong = R"(
{ name: tučné; style-def: cs; format: \b }
)",
     .right = R"(
Style pro tučné písmo:
{ name: bold; style-def: cs; format: \b }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::StyleSheetRejected,
     .identifier = "stylesheet-rejected",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = "{0}",
     .explanation = R"(
The library rejects the stylesheet with an error that has no diagnostic of its own. The file may not
be a stylesheet in spite of its extension, for example. The message is that of the error.
)"},

    {.id = DiagnosticId::DescriptionAsStyleSheet,
     .identifier = "description-as-stylesheet",
     .severity = Severity::Warning,
     .language = CheckedLanguage::StyleSheet,
     .message = "This is a description, not a stylesheet.",
     .explanation = R"(
The file that was given as the stylesheet begins with a node of a description. In a stylesheet, text
outside braces is accepted but ignored, so this one has no styles. The styles of the descriptions
are not looked up in it.
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
The definition of a style is enclosed in braces. Text outside braces is accepted but ignored, and an
empty file is accepted too.
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
     .message = "The style {0} is already defined on line {1}.",
     .explanation = R"(
If a name is defined twice, only the first definition is used. The second one takes up a style
number and has no other effect.
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
None of the descriptions that were checked together with the stylesheet uses the style, and no other
style names it in `next` or `based-on`. The first paragraph style, `normal`, and the paragraph
styles that reserve the numbers of character styles count as used. Because a shared stylesheet
serves many descriptions, this warning is reported only with `--enable unused-style`.
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
     .message = "The definition has no style-def and becomes a cell style.",
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
     .message = "{0} is repeated; this one is ignored.",
     .explanation = R"(
If an item is repeated in a definition, only the first one counts.
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
The style takes up a number, but can be used only under the empty name.
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
     .message = "There is no {1} style {0}; the reference is left out.",
     .explanation = R"(
`based-on` and `next` refer to a style of the same kind. A reference to any other style is not
written.
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
     .message = "{0} is not a color; cells of this style get background 0.",
     .explanation = R"(
The format of a cell style is one of the 57 color names, with `-` for blanks. Any other word gives
the background 0, which some readers show as black.
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
     .message = "{0} is not a control word; it will appear as text wherever the style is used.",
     .explanation = R"(
The format of a paragraph or character style is copied to the document as it is. It consists of
control words, each with its backslash and, if it takes one, its number. Anything else is text, and
every paragraph of the style begins with it.
)",
     .wrong = R"(
{ name: normal; style-def: s; format: fs20 b }
)",
     .right = R"(
{ name: normal; style-def: s; format: \fs20\b }
)"},
};

}  // namespace quorvane
