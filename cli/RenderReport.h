#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "cli/DiagnosticExcerpt.h"
#include "cli/RenderOptions.h"
#include "cli/ReportedError.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::cli {

/// Called before each description with its number, how many there are, and its name; after each
/// record, with 0 for how many there are and the name of its document.
using ProgressSink = std::function<void(std::size_t number, std::size_t count, const std::string&)>;

/// Receives what a rendering reports.
struct RenderReceivers {
    /// Receives errors as the library raises them. If `locate` is set, it receives those instead
    /// that the check of the file finds too.
    ErrorSink report;
    /// Receives a diagnostic about a file, and the line around it.
    std::function<void(const std::string& file, const Diagnostic&, const DiagnosticExcerpt&)>
        locate{};
    ProgressSink progress{};
    /// Receives a line that is not about an error.
    std::function<void(const std::string& text)> note{};
    /// Receives the error with which the library refuses the stylesheet, instead of the reports
    /// about it.
    std::function<void(const RtfError&)> refuseStyleSheet{};
};

/// All diagnostics about a description; the styles may be null.
using CheckOfDescription = std::function<std::vector<Diagnostic>(KnownStyles* styles)>;

/// Reports the errors of a stylesheet and of one description after the other, and decides whether
/// they pass. They are checked where that is needed only: when they have errors, or when the check
/// is to decide.
class RenderReport {
public:
    /// Options and receivers must outlive the report.
    RenderReport(const RenderOptions& options, const RenderReceivers& receivers)
        : options_(options), receivers_(receivers) {}

    /// A report on other receivers that has taken the same stylesheet.
    RenderReport(const RenderReport& other, const RenderReceivers& receivers);

    /// A file that cannot be read or written, or a document that cannot be made.
    void fail(const ReportedError& failure) { receivers_.report(failure); }

    /// A line that is not about an error.
    void note(const std::string& text) {
        if (receivers_.note) {
            receivers_.note(text);
        }
    }

    /// Takes the bytes of the stylesheet. Returns false when the check refuses it.
    bool passStyleSheet(const std::string& name, const std::string& bytes);

    /// Takes the bytes of a description. Returns false when they are not text in that encoding.
    /// That they are no text at all is reported as text only: a program gets the events of the
    /// analysis.
    bool passBytes(const std::string& name, std::string_view bytes, TextEncoding encoding);

    /// Reports errors because of which a file is not used at all.
    void refuse(const std::string& file, const FileWindow& window,
                const std::vector<Diagnostic>& errors);

    /// The library refuses the stylesheet.
    void refuseStyleSheet(const RtfError& error);

    /// An error that the analysis of a description reports, before `passDescription`.
    void event(const std::string& file, const RtfError& error);

    /// Ends with a description (UTF-8), which is named so, from a file in that encoding. Returns
    /// false when the check refuses it; the errors that were reported before are for the caller to
    /// count. The check is made where it is needed only.
    bool passDescription(const std::string& name, const std::string& path, const std::string& text,
                         TextEncoding encoding, const CheckOfDescription& check);

private:
    struct StyleSheet {
        std::string name;
        std::string bytes;
        TextEncoding encoding = TextEncoding::Windows1252;
        std::optional<std::vector<Diagnostic>> diagnostics{};
        std::optional<KnownStyles> styles{};
        bool isReported = false;
    };

    /// The check decides, whether there are errors or not.
    bool isChecked() const { return options_.check || options_.failOn == FailOn::Warning; }
    bool corrupts(const Diagnostic& diagnostic) const;
    void refuseUnreadable(const std::string& file, const Diagnostic& diagnostic,
                          const FileWindow& window);
    const std::vector<Diagnostic>& styleSheetDiagnostics();
    KnownStyles* knownStyles();
    void locate(const std::string& file, const FileWindow& window,
                const std::vector<Diagnostic>& diagnostics, const std::set<DiagnosticId>& kinds);
    bool pass(const std::string& file, const std::vector<Diagnostic>& diagnostics, bool hasOthers);

    const RenderOptions& options_;
    const RenderReceivers& receivers_;
    std::optional<StyleSheet> styleSheet_;
    // Of the description that is analyzed.
    std::vector<RtfError> errors_;
};

}  // namespace quorvane::cli
