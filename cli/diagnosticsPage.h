#pragma once

#include <string>

namespace quorvane::cli {

/// The reference page of the diagnostics, in Markdown, made of the table of diagnostics. The
/// reports in it are those that `quorvane check` gives of the examples.
std::string diagnosticsPage();

}  // namespace quorvane::cli
