#pragma once

#include <string>

#include "quorvane/support/FilledValue.h"

namespace quorvane::data {

struct SafeFileName {
    std::string path;
    /// A value of it was too long.
    bool isShortened = false;
};

/// The name of a file, filled with values. What stands outside the values stays as it is, so that
/// it can name folders. The values become parts of a name that every system has:
///
/// - `/ \ : * ? " < > |`, control characters and bytes that are not UTF-8 become `_`.
/// - At the beginning of a name, the first character of a value becomes `_` if it is a blank or a
///   dot; at its end the last one. A value of nothing at the beginning is `_`.
/// - A value that is longer than 120 bytes ends before the character that goes beyond them.
/// - From the first tag on, a name of dots and blanks only gets a `_` at its end, and so does no
///   name at the beginning of the path.
/// - `-` as the whole path, which stands for standard output, is `_`.
/// - A name that Windows has for a device, such as `CON` or `LPT1.rtf`, gets a `_` before its first
///   dot.
///
/// So no value leads into another folder, and different values can have the same name. A
/// `RtfError` 5 for a name of more than 240 bytes.
SafeFileName safeFileName(const FilledValue& filled);

}  // namespace quorvane::data
