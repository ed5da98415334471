#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "cli/ExitStatus.h"
#include "cli/FormatOptions.h"
#include "cli/ReportedError.h"
#include "quorvane/base/platform/Platform.h"

namespace quorvane::cli {

/// Takes a text for standard output: the name of a file, a diff, or a file's canonical form.
using TextSink = std::function<void(const std::string&)>;

/// What `quorvane format` does: puts descriptions and stylesheets into their canonical form, each
/// in its place, and what comes from standard input on standard output.
class FormatJob {
public:
    /// The platform, from which files are read, must outlive the job.
    FormatJob(FormatOptions options, TextSink write, ErrorSink fail,
              Platform& platform = systemPlatform());

    /// `ContentErrors` when nothing is to be changed, and a file is not in its canonical form.
    ExitStatus run();

private:
    ExitStatus format(const std::string& file);
    std::string shownName(const std::string& file) const;
    std::string formatted(const std::string& file, std::string_view bytes) const;

    FormatOptions options_;
    TextSink write_;
    ErrorSink fail_;
    Platform& platform_;
};

/// Runs `quorvane format` on the standard streams.
ExitStatus format(const FormatOptions& options);

}  // namespace quorvane::cli
