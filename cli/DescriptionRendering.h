#pragma once

#include <optional>
#include <string>

#include "cli/Diagnostic.h"
#include "cli/ExitStatus.h"
#include "cli/outputPaths.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/support/Platform.h"
#include "quorvane/support/Ref.h"

namespace quorvane::cli {

/// How a description is rendered.
struct RenderingManner {
    /// Name of a stylesheet file that can be read.
    std::optional<std::string> styleSheet;
    bool check = false;
    bool keepGoing = false;
};

/// The rendering of one description, by a driver of its own.
class DescriptionRendering {
public:
    /// The assignment, the platform and the sink must outlive the rendering.
    DescriptionRendering(const Assignment& assignment, const RenderingManner& manner,
                         Platform& platform, const DiagnosticSink& tell);

    /// Builds the document and writes it. After an error nothing is written, unless the manner is
    /// to keep going and there is something to write.
    ExitStatus run();

private:
    void setStyleSheet(const std::string& name);
    bool analyse();
    void write();
    void tellError(DiagnosticKind kind, const std::string& file, const RtfError& error,
                   ExitStatus status);

    const Assignment& assignment_;
    RenderingManner manner_;
    const DiagnosticSink& tell_;
    Ref<CRtfDriver> driver_;
    ExitStatus status_ = ExitStatus::Success;
};

}  // namespace quorvane::cli
