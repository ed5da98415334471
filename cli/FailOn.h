#pragma once

namespace quorvane::cli {

/// The lowest severity that makes a run fail.
enum class FailOn { Error, Warning, Never };

}  // namespace quorvane::cli
