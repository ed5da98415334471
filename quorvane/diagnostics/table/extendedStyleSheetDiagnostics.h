#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/stylesheet/extendedFaultTable.h"

namespace quorvane {

/// What can be wrong with a stylesheet in the extended language. The messages are those of the
/// errors of loading it.
inline constexpr DiagnosticRule extendedStyleSheetDiagnostics[] = {
    {.id = DiagnosticId::BadCharacter,
     .identifier = "bad-character",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::BadCharacter),
     .title = "The stylesheet holds bytes that are not UTF-8, or control characters.",
     .explanation = R"(
A stylesheet in the extended language is in UTF-8, whatever `--encoding` says. It holds no control
characters but tabs and line breaks. Save the file in UTF-8.
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::LoneBrace,
     .identifier = "lone-brace",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::LoneBrace),
     .title = "A { or } is not one of a pair.",
     .explanation = R"(
A style in the extended language is enclosed in one pair of braces, and braces do not nest. Braces in
comments do not count.
)",
     .wrong = R"(
; quorvane 2
{ name: total; style-def: paragraph; bold
{ name: amount; style-def: paragraph; align: right }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: paragraph; bold }
{ name: amount; style-def: paragraph; align: right }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::StrayText,
     .identifier = "stray-text",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::StrayText),
     .explanation = R"(
In the extended language, comments are lines that begin with `;`. Any other text outside the braces is
an error, since it may be a style that has lost its braces.
)",
     .wrong = R"(
; quorvane 2
{ name: total; style-def: paragraph; bold }
Amounts
{ name: amount; style-def: paragraph; align: right }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: paragraph; bold }
; Amounts
{ name: amount; style-def: paragraph; align: right }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::NamelessStyle,
     .identifier = "nameless-style",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::NamelessStyle),
     .explanation = R"(
The first item of a style in the extended language is `name` with one or more names.
)",
     .wrong = R"(
; quorvane 2
{ style-def: paragraph; bold }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: paragraph; bold }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::BadStyleName,
     .identifier = "bad-style-name",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::BadStyleName),
     .explanation = R"(
In the extended language the name of a style begins with a letter or a digit. These, blanks, and the
characters `-`, `_` and `.` follow. Any character beyond ASCII counts as a letter.
)",
     .wrong = R"(
; quorvane 2
{ name: total (bold); style-def: paragraph; bold }
)",
     .right = R"(
; quorvane 2
{ name: total-bold; style-def: paragraph; bold }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::StyleTwice,
     .identifier = "style-twice",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::StyleTwice),
     .explanation = R"(
In the extended language no two styles of one kind have the same name. Case does not count.
)",
     .wrong = R"(
; quorvane 2
{ name: total; style-def: paragraph; bold }
{ name: Total; style-def: paragraph; italic }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: paragraph; bold }
{ name: subtotal; style-def: paragraph; italic }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::MissingKind,
     .identifier = "missing-kind",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::MissingKind),
     .explanation = R"(
A style in the extended language says what it is for with `style-def: paragraph`,
`style-def: character` or `style-def: cell`.
)",
     .wrong = R"(
; quorvane 2
{ name: total; bold }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: paragraph; bold }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::BadKind,
     .identifier = "bad-kind",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::BadKind),
     .title = "… is not a kind of style in the extended language.",
     .explanation = R"(
A style in the extended language is for a `paragraph`, for the `character`s of a part of its text, or
for a `cell`. The words `s` and `cs` of the original language stand for the first two.
)",
     .wrong = R"(
; quorvane 2
{ name: total; style-def: text; bold }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: character; bold }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::UnknownItem,
     .identifier = "unknown-item",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::UnknownItem),
     .explanation = R"(
The keyword of an item of a style in the extended language is `name`, `style-def`, `based-on`, `next`,
or one of the formats such as `font` and `size`. Control words follow `rtf:`.
)",
     .wrong = R"(
; quorvane 2
{ name: total; style-def: paragraph; font-size: 11pt }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: paragraph; size: 11pt }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::MissingSemicolon,
     .identifier = "missing-semicolon",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::MissingSemicolon),
     .explanation = R"(
A `;` separates the items of a style in the extended language, also at the end of a line. Put the name
of a font into quotes if it ends with a keyword: `font: "Arial Bold"`.
)",
     .wrong = R"(
; quorvane 2
{ name: total; style-def: paragraph; font: Arial size: 11pt }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: paragraph; font: Arial; size: 11pt }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::ItemTwice,
     .identifier = "item-twice",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::ItemTwice),
     .explanation = R"(
In the extended language an item does not stand twice in a style. `superscript` and `subscript`
exclude each other.
)",
     .wrong = R"(
; quorvane 2
{ name: total; style-def: paragraph; size: 11pt; bold; size: 12pt }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: paragraph; size: 12pt; bold }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::MisplacedItem,
     .identifier = "misplaced-item",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::MisplacedItem),
     .explanation = R"(
In the extended language a character style has no items that need a whole paragraph, such as `align`
and `space-before`. A cell style has only a `background`. Only a paragraph style has a `next` one.
)",
     .wrong = R"(
; quorvane 2
{ name: strong; style-def: character; bold; align: right }
)",
     .right = R"(
; quorvane 2
{ name: strong; style-def: character; bold }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::MissingValue,
     .identifier = "missing-value",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::MissingValue),
     .explanation = R"(
In the extended language only items such as `bold`, which mean `yes` then, need no value.
)",
     .wrong = R"(
; quorvane 2
{ name: total; style-def: paragraph; font }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: paragraph; font: Arial }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::BadItemValue,
     .identifier = "bad-item-value",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::BadValue),
     .explanation = R"(
The reference of the extended language says which values each item takes: a length with its unit, such
as `11pt` or `5mm`; a color by its name or as `#1f4e79`; one of a few words.
)",
     .wrong = R"(
; quorvane 2
{ name: total; style-def: paragraph; size: 11px }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: paragraph; size: 11pt }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::MissingStyle,
     .identifier = "missing-style",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::MissingStyle),
     .explanation = R"(
In the extended language the style after `based-on` or `next` is a style of the same kind in the same
stylesheet.
)",
     .wrong = R"(
; quorvane 2
{ name: total; style-def: paragraph; based-on: amounts; bold }
{ name: amount; style-def: paragraph; align: right }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: paragraph; based-on: amount; bold }
{ name: amount; style-def: paragraph; align: right }
)",
     .encoding = TextEncoding::Utf8},

    {.id = DiagnosticId::StyleCircle,
     .identifier = "style-circle",
     .severity = Severity::Error,
     .language = CheckedLanguage::StyleSheet,
     .message = extendedFaultText(ExtendedFault::StyleCircle),
     .explanation = R"(
In the extended language a style has the formats of the one that it is based on. It cannot be based on
itself, not even through other styles.
)",
     .wrong = R"(
; quorvane 2
{ name: total; style-def: paragraph; based-on: amount; bold }
{ name: amount; style-def: paragraph; based-on: total; align: right }
)",
     .right = R"(
; quorvane 2
{ name: total; style-def: paragraph; based-on: amount; bold }
{ name: amount; style-def: paragraph; align: right }
)",
     .encoding = TextEncoding::Utf8},
};

}  // namespace quorvane
