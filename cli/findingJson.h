#pragma once

#include <string>

#include "quorvane/diagnostics/Diagnostic.h"

namespace quorvane::cli {

/// A finding for a program: a JSON object on one line without its end, with the fields `file`,
/// `line`, `column`, `length`, `offset`, `severity`, `identifier`, `message` and, where there is
/// one, `hint`.
std::string findingJson(const std::string& file, const quorvane::Diagnostic& finding);

}  // namespace quorvane::cli
