#pragma once

#include <optional>
#include <string>

#include "cli/CommandPlatform.h"
#include "cli/ExitStatus.h"
#include "cli/RenderReport.h"
#include "quorvane/base/text/TextEncoding.h"

namespace quorvane::cli {

/// The name that a description is reported under.
std::string shownDescription(const std::string& path);

/// A description in UTF-8, and the encoding that its file has.
struct DescriptionText {
    std::string text;
    TextEncoding encoding = TextEncoding::Windows1252;
};

/// Reads a description, or standard input for "-". Nothing for one that cannot be used, which is
/// reported, and for which the status rises.
std::optional<DescriptionText> readDescription(const std::string& path, EncodingChoice choice,
                                               CommandPlatform& platform, RenderReport& report,
                                               ExitStatus& status);

}  // namespace quorvane::cli
