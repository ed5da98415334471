#pragma once

#include <string>

#include "cli/ReportedError.h"

namespace quorvane::cli {

/// The error for a program: a JSON object on one line without its end. Its fields are `file`,
/// `line`, `number`, `level`, `source`, `message` and `kind` ("event" or "raised"); `file`, `line`,
/// `level` and `source` are null where the error has none. An error with a cause has the
/// field `cause` too.
std::string errorJson(const ReportedError& reported);

}  // namespace quorvane::cli
