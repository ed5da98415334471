#pragma once

#include <string>

namespace quorvane::cli {

/// The reference page of the diagnostics, in Markdown, generated from the tables of diagnostics.
/// Its reports are those of `quorvane check` about the examples.
std::string diagnosticsPage();

}  // namespace quorvane::cli
