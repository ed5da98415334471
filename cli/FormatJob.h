#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "cli/ExitStatus.h"
#include "cli/FormatOptions.h"
#include "cli/ReportedError.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/text/TextEncoding.h"

namespace quorvane::cli {

/// Receives a text for standard output: the name of a file, a diff, or a file's canonical form; the
/// last two in the encoding of the file.
using TextSink = std::function<void(const std::string&, TextEncoding)>;

/// Implements `quorvane format`: replaces descriptions and stylesheets with their canonical form,
/// and writes that of standard input to standard output.
class FormatJob {
public:
    /// The platform, from which files are read, must outlive the job.
    FormatJob(FormatOptions options, TextSink write, ErrorSink fail,
              Platform& platform = systemPlatform());

    /// Returns `ContentErrors` if a file is not in canonical form and must not be changed.
    ExitStatus run();

private:
    ExitStatus formatFolder(const std::string& folder);
    ExitStatus formatFile(const std::string& file);
    ExitStatus format(const std::string& file);
    std::string shownName(const std::string& file) const;
    std::string formatted(const std::string& file, const std::string& bytes,
                          TextEncoding encoding) const;

    FormatOptions options_;
    TextSink write_;
    ErrorSink fail_;
    Platform& platform_;
};

/// Runs `quorvane format` on the standard streams.
ExitStatus format(const FormatOptions& options);

}  // namespace quorvane::cli
