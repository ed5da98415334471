#pragma once

namespace quorvane::cli {

/// The command's exit status. Of several results of rendering the greatest counts; a check
/// reports warnings by its status only if there are no errors.
enum class ExitStatus {
    /// No errors.
    Success = 0,
    /// A description or the stylesheet has errors.
    ContentErrors = 1,
    /// Wrong usage, or a file that cannot be read or written.
    Failure = 2,
    /// A check found warnings and no errors.
    Warnings = 3,
};

}  // namespace quorvane::cli
