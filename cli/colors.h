#pragma once

namespace quorvane::cli {

/// Whether a text for a terminal is colored by control sequences.
enum class Colors { Off, On };

/// Colors for a stream: only on a terminal, and not when the environment has a variable NO_COLOR
/// that is not empty.
Colors wantedColors(bool isTerminal);

}  // namespace quorvane::cli
