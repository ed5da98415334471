#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/CheckOptions.h"
#include "cli/Diagnostic.h"
#include "cli/ExitStatus.h"
#include "cli/FindingExcerpt.h"
#include "quorvane/diagnostics/Diagnostic.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/support/Platform.h"

namespace quorvane::cli {

/// Takes a finding about a file, named as on the command line, and the file's window.
using FindingSink =
    std::function<void(const std::string& file, const quorvane::Diagnostic&, const FileWindow&)>;

/// What `quorvane check` does: checks files one after the other, each as what it is by its content.
/// RTF files are read in pieces.
class CheckJob {
public:
    /// The platform must outlive the job.
    CheckJob(CheckOptions options, FindingSink find, DiagnosticSink fail,
             Platform& platform = systemPlatform());

    /// Tells all findings, and every file that cannot be read. Throws a `UsageError` for a
    /// stylesheet without the extension rtfss.
    ExitStatus run();

private:
    void checkStyles(const std::string& file);
    void checkFile(const std::string& file);
    void checkText(const std::string& file, std::string_view bytes);
    void checkRtfFile(const std::string& file, std::istream& stream, const std::string& beginning);
    void tell(const std::string& file, const quorvane::Diagnostic& finding,
              const FileWindow& window);
    void tellAll(const std::string& file, const std::vector<quorvane::Diagnostic>& findings,
                 std::string_view bytes);

    CheckOptions options_;
    FindingSink find_;
    DiagnosticSink fail_;
    Platform& platform_;
    std::optional<KnownStyles> styles_;
    bool checkedDescriptions_ = false;
    bool hasErrors_ = false;
    bool hasWarnings_ = false;
    bool hasFailed_ = false;
};

}  // namespace quorvane::cli
