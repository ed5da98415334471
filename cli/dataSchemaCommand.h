#pragma once

#include "cli/DataSchemaOptions.h"
#include "cli/ExitStatus.h"

namespace quorvane::cli {

/// Runs `quorvane data-schema`: writes the JSON Schema of the data that a template asks for. What
/// is wrong with the template is reported on standard error, and nothing is written then. Throws a
/// `UsageError` for an output that would take the place of a description or a stylesheet.
ExitStatus writeDataSchema(const DataSchemaOptions& options);

}  // namespace quorvane::cli
