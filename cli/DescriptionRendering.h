#pragma once

#include <optional>
#include <string>

#include "cli/Diagnostic.h"
#include "cli/ExitStatus.h"
#include "cli/outputPaths.h"
#include "quorvane/driver/CRtfDriver.h"

namespace quorvane::cli {

/// How a description is rendered.
struct RenderingManner {
    /// Name of a stylesheet file that can be read.
    std::optional<std::string> styleSheet;
    bool check = false;
    bool keepGoing = false;
};

/// The rendering of one description. Several can go through the same driver, one after the other,
/// which then parses the stylesheet once.
class DescriptionRendering {
public:
    /// The driver is made where there is none, and made anew where it cannot serve. All that is
    /// given must outlive the rendering.
    DescriptionRendering(const Assignment& assignment, const RenderingManner& manner,
                         Platform& platform, Ref<CRtfDriver>& driver, const DiagnosticSink& tell);
    DescriptionRendering(const DescriptionRendering&) = delete;
    DescriptionRendering& operator=(const DescriptionRendering&) = delete;
    ~DescriptionRendering();

    /// Builds the document and writes it. After an error nothing is written, unless the manner is
    /// to keep going and there is something to write.
    ExitStatus run();

private:
    void setStyleSheet(const std::string& name);
    bool analyse();
    void leaveDocumentBefore();
    void write();
    void tellError(DiagnosticKind kind, const std::string& file, const RtfError& error,
                   ExitStatus status);

    const Assignment& assignment_;
    const RenderingManner& manner_;
    const DiagnosticSink& tell_;
    Platform& platform_;
    Ref<CRtfDriver>& driver_;
    ExitStatus status_ = ExitStatus::Success;
};

}  // namespace quorvane::cli
