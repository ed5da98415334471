#pragma once

namespace quorvane::cli {

/// The command's exit status. Of several results the greatest counts.
enum class ExitStatus {
    /// All is well.
    Success = 0,
    /// A description or the stylesheet has errors.
    ContentErrors = 1,
    /// Wrong usage, or a file that cannot be read or written.
    Failure = 2,
};

}  // namespace quorvane::cli
