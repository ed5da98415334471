#pragma once

namespace quorvane::cli {

/// What makes a run fail: errors, warnings too, or nothing that is found in a file.
enum class FailOn { Error, Warning, Never };

}  // namespace quorvane::cli
