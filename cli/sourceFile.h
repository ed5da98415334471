#pragma once

#include <optional>
#include <string>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::cli {

/// The language of a file that is a description or a stylesheet, by its beginning and its name;
/// no value for a file that is neither. Raises error 57 when it cannot be read to its end or to
/// where its language shows. If a file may not be read, its name decides.
std::optional<CheckedLanguage> languageOfSourceFile(const std::string& path);

}  // namespace quorvane::cli
