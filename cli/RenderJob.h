#pragma once

#include "cli/CommandPlatform.h"
#include "cli/DescriptionRendering.h"
#include "cli/ExitStatus.h"
#include "cli/RenderOptions.h"
#include "cli/RenderReport.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/driver/CRtfDriver.h"

namespace quorvane::cli {

/// Implements `quorvane render`: renders descriptions one after the other, each on its own. It
/// reports every error and continues with the next description, but renders none if the options
/// make no sense, or if the stylesheet cannot be read and --keep-going is not given.
class RenderJob {
public:
    /// Descriptions and stylesheet are read from the platform, which must outlive the job.
    RenderJob(RenderOptions options, RenderReceivers receivers,
              Platform& platform = systemPlatform());
    RenderJob(const RenderJob&) = delete;
    RenderJob& operator=(const RenderJob&) = delete;

    /// Throws `UsageError`, before anything is written.
    ExitStatus run();

private:
    bool prepareOutputFolder();
    ExitStatus readStyleSheet();
    ExitStatus render(const Assignment& assignment);

    RenderOptions options_;
    RenderingManner manner_;
    RenderReceivers receivers_;
    RenderReport report_;
    CommandPlatform platform_;
    // For one description after the other, so that the stylesheet is parsed once.
    Ref<CRtfDriver> driver_;
};

}  // namespace quorvane::cli
