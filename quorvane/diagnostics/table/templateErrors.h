#pragma once

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// What is wrong with a template, or with the data for it.
inline constexpr DiagnosticRule templateErrors[] = {
    {.id = DiagnosticId::WrongTag,
     .identifier = "wrong-tag",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = "{0}",
     .title = "A tag of a template is not written as one.",
     .explanation = R"(
A tag of a template stands between `{{` and `}}`: in the value of a key, or alone on its line. A
section that begins with `{{#lines}}` or `{{^lines}}` ends with `{{/lines}}`, in the same value or
on a line of its own. The message says what to write.
)"},

    {.id = DiagnosticId::WrongPartial,
     .identifier = "wrong-partial",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = "{0}",
     .title = "A partial cannot be taken into a template.",
     .explanation = R"(
`{{> totals}}` takes in the lines of the file `totals.rtfpart`, which is in the folder of the
template or in a folder within it. A partial cannot take itself in, not even through others.
)"},

    {.id = DiagnosticId::MissingName,
     .identifier = "missing-name",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = "{0} is not in the data.",
     .title = "A template asks for a name that the data lacks.",
     .explanation = R"(
Nothing is shown for a name that is not in the data, or that is null there: it is an error. A name
is looked up in the innermost object only; `{{../name}}` looks in the one around it. Write
`{{name|default:none}}` to show something else for what can be missing.
)"},

    {.id = DiagnosticId::WrongData,
     .identifier = "wrong-data",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = "{0}",
     .title = "A value of the data cannot stand where a template puts it.",
     .explanation = R"(
A list or an object is not a text, a filter such as `money` takes numbers only, and outside texts a
value has no line breaks. The message names the value by its path in the data.
)"},

    {.id = DiagnosticId::WrongJson,
     .identifier = "wrong-json",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = "This is not JSON: {0}.",
     .title = "The data for a template is not JSON.",
     .explanation = R"(
The data is one JSON text in UTF-8. A name can be in an object only once, and lists and objects can
be nested 500 levels deep.
)"},

    {.id = DiagnosticId::WrongSchema,
     .identifier = "wrong-schema",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = "{0}",
     .title = "The schema for the data is not a JSON Schema.",
     .explanation = R"(
The file of `--schema` holds a JSON Schema of draft 7. Its references lead to places in the same
file, and no schema refers to itself without a value in between.
)"},

    {.id = DiagnosticId::SchemaMismatch,
     .identifier = "schema-mismatch",
     .severity = Severity::Error,
     .language = CheckedLanguage::Description,
     .message = "{0}",
     .title = "The data does not meet its schema.",
     .explanation = R"(
The message names the value by its JSON Pointer: `/lines/1/price` is the price of the second line.
Change the data, or the schema if it asks for too much. `quorvane data-schema` writes the schema
that a template asks for.
)"},
};

}  // namespace quorvane
