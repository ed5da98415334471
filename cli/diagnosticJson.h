#pragma once

#include <string>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::cli {

/// A diagnostic for a program: a JSON object on one line without its end, with the fields `file`,
/// `line`, `column`, `length`, `offset`, `severity`, `identifier`, `message` and, where there is
/// one, `hint`. The column counts characters, length and offset count bytes of the file. Where the
/// hint is a replacement, `fix` has the `offset` and the `length` of what is replaced, and the
/// `replacement`. `fixed` is true for one that was fixed,
/// and not there otherwise.
std::string diagnosticJson(const std::string& file, const Diagnostic& diagnostic);

}  // namespace quorvane::cli
