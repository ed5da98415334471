#pragma once

#include <windows.h>

#include <oleauto.h>

#include <optional>
#include <string>
#include <vector>

#include "quorvane/compose/Length.h"
#include "quorvane/compose/Width.h"

namespace quorvane::com {

// What scripts and programs give to `Quorvane.Document`. An array is one of automation, of any
// bounds and element type, or an object of a script that has a `length`. What cannot be used is an
// error "wrong-value".

/// A text; a number, a date or a truth value as the user's settings write it; Empty and Null are an
/// empty text.
std::string textOf(const VARIANT& value);
/// The same for an optional argument; empty when it is not given.
std::string textOf(const VARIANT* value);
/// True for an argument that is not given.
bool isMissing(const VARIANT* value) noexcept;

/// The texts of an array; a value that is not an array is one text. None when it is not given.
std::vector<std::string> textsOf(const VARIANT* value);

/// The texts of the rows of an array with two dimensions, or of an array of arrays.
std::vector<std::vector<std::string>> textRowsOf(const VARIANT& value);

/// The same for a table, which can also be a text of fields with delimiters between them. Its first
/// row is that of the names.
std::vector<std::vector<std::string>> textTableOf(const VARIANT& value);

/// The widths of columns: a text with blanks or commas between them, or an array of texts and of
/// percentages.
std::vector<Width> widthsOf(const VARIANT& value);

/// A number of twips, or a text such as "2cm".
Length lengthOf(const VARIANT& value);
/// The same for an optional argument.
Length lengthOf(const VARIANT* value, const Length& otherwise);

}  // namespace quorvane::com
