#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/TemplateData.h"
#include "data/DataSchema.h"
#include "data/JsonFault.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::cli {

/// A file with a JSON Schema as it was read: the schema, or what is wrong with it.
struct SchemaFile {
    /// The name that it is reported under.
    std::string shownName;
    std::string bytes;
    std::optional<data::DataSchema> schema = {};
    std::vector<Diagnostic> diagnostics = {};
};

/// Reads the file. Raises an `RtfError` for one that cannot be read.
SchemaFile readSchema(const std::string& path, Platform& platform);

/// Validates data that was read, and takes it away if the schema does not accept it: the
/// diagnostics then say why.
void validate(TemplateDataFile& file, const data::DataSchema& schema);

/// The error for a fault of a record that begins on a line.
RtfError schemaMismatch(const data::JsonFault& fault, std::int64_t line);

}  // namespace quorvane::cli
