#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/DataValue.h"
#include "data/json.h"
#include "data/locale.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::cli {

/// What templates are filled with.
struct TemplateData {
    data::DataValue record;
    data::Locale locale;
};

/// A file with data as it was read: the data, or what is wrong with it.
struct TemplateDataFile {
    /// The name that it is reported under.
    std::string shownName;
    std::string bytes;
    std::optional<TemplateData> data = {};
    std::vector<Diagnostic> diagnostics = {};
};

/// What is wrong with bytes that are not JSON.
Diagnostic wrongJson(const std::string& bytes, const data::JsonError& error);

/// Reads a JSON file, or standard input for "-". Raises an `RtfError` for one that cannot be read,
/// and throws a `UsageError` for a locale that is not known.
TemplateDataFile readTemplateData(const std::string& path,
                                  const std::optional<std::string>& localeName, Platform& platform);

}  // namespace quorvane::cli
