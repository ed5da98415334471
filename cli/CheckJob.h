#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "cli/CheckOptions.h"
#include "cli/DiagnosticExcerpt.h"
#include "cli/ExitStatus.h"
#include "cli/ReportedError.h"
#include "cli/TemplateData.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/engine/fixText.h"
#include "quorvane/driver/PictureSource.h"

namespace quorvane::cli {

/// Receives a diagnostic about a file, named as on the command line, and the file's window. For one
/// that was fixed, the window is that of the text before the fix.
using DiagnosticSink =
    std::function<void(const std::string& file, const Diagnostic&, const FileWindow&)>;

/// How much a check found.
struct CheckCounts {
    /// Files that were read.
    std::size_t files = 0;
    std::size_t errors = 0;
    std::size_t warnings = 0;
    /// Diagnostics that were fixed, which no longer count as errors or warnings.
    std::size_t fixed = 0;
};

/// Implements `quorvane check`: checks files one after the other, each according to its content,
/// and fixes descriptions and stylesheets on request. RTF files are read in pieces.
class CheckJob {
public:
    /// Takes bytes for standard output: the text of standard input with its fixes, or a diff.
    /// In the encoding of the file.
    using BytesSink = std::function<void(std::string_view, TextEncoding)>;

    /// The platform must outlive the job. The last sink is needed only for fixes.
    CheckJob(CheckOptions options, DiagnosticSink find, ErrorSink fail,
             Platform& platform = systemPlatform(), BytesSink write = {});

    /// Reports every diagnostic, and every file that cannot be read or written. Throws a
    /// `UsageError` for a stylesheet without the extension rtfss and for an unknown identifier.
    ExitStatus run();

    const CheckCounts& counts() const { return counts_; }

    /// True when a file could not be read or written.
    bool hasFailed() const { return hasFailed_; }

private:
    void checkStyles(const std::string& file);
    void checkFolder(const std::string& folder);
    void checkFile(const std::string& file);
    void checkText(const std::string& file, std::string_view bytes, bool isStream);
    void checkRtfFile(const std::string& file, std::istream& stream, const std::string& beginning);
    void findUnused();
    bool readData();
    std::vector<Diagnostic> templateDiagnosticsOf(const std::string& file, const std::string& text,
                                                  TextEncoding encoding);
    PictureSource picturesOf(const std::string& file) const;
    void reportPartials();

    bool isReported(DiagnosticId id) const;
    std::vector<Diagnostic> diagnosticsOf(const std::string& file, std::string_view bytes,
                                          CheckedLanguage language, TextEncoding encoding);
    std::vector<Diagnostic> reported(std::vector<Diagnostic> diagnostics, std::string_view text,
                                     CheckedLanguage language);
    std::optional<std::string> reportText(const std::string& file, std::string_view bytes,
                                          TextEncoding encoding, bool isStream,
                                          const TextCheck& check);
    bool writeFixed(const std::string& file, std::string_view before, const FixedText& fixed);
    std::string shownName(const std::string& file) const;
    void fail(const ReportedError& failure);
    void report(const std::string& file, const Diagnostic& diagnostic, const FileWindow& window);
    void reportAll(const std::string& file, const std::vector<Diagnostic>& diagnostics,
                   const FileWindow& window);

    CheckOptions options_;
    std::set<DiagnosticId> ignored_;
    std::set<DiagnosticId> enabled_;
    DiagnosticSink find_;
    ErrorSink fail_;
    Platform& platform_;
    BytesSink write_;
    std::optional<KnownStyles> styles_;
    std::optional<TemplateDataFile> data_;
    // What is wrong with the partials of the template that was checked last.
    struct PartialDiagnostic {
        std::string file;
        Diagnostic diagnostic;
        std::string bytes;
        TextEncoding encoding;
    };
    std::vector<PartialDiagnostic> partialDiagnostics_;
    CheckCounts counts_;
    bool checkedDescriptions_ = false;
    bool hasFailed_ = false;
};

}  // namespace quorvane::cli
