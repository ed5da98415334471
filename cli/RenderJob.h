#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "cli/CommandPlatform.h"
#include "cli/DescriptionRendering.h"
#include "cli/Diagnostic.h"
#include "cli/ExitStatus.h"
#include "cli/RenderOptions.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/support/Platform.h"
#include "quorvane/support/Ref.h"

namespace quorvane::cli {

/// Called before each description with its number, how many there are, and its name.
using ProgressSink = std::function<void(std::size_t number, std::size_t count, const std::string&)>;

/// What `quorvane render` does: renders descriptions one after the other, each on its own. It tells
/// every error and stops at none, but renders nothing when it is asked for something that makes no
/// sense, or when the stylesheet cannot be read and it was not told to keep going.
class RenderJob {
public:
    /// Descriptions and stylesheet are read from the platform, which must outlive the job.
    RenderJob(RenderOptions options, DiagnosticSink tell, ProgressSink progress = {},
              Platform& platform = systemPlatform());

    /// Throws `UsageError`, before anything is written.
    ExitStatus run();

private:
    ExitStatus readStyleSheet();
    ExitStatus render(const Assignment& assignment);
    ExitStatus fail(const std::string& file, RtfError error);

    RenderOptions options_;
    RenderingManner manner_;
    DiagnosticSink tell_;
    ProgressSink progress_;
    CommandPlatform platform_;
    // For one description after the other, so that the stylesheet is parsed once.
    Ref<CRtfDriver> driver_;
};

}  // namespace quorvane::cli
