#pragma once

#include "cli/CommandPlatform.h"
#include "cli/DescriptionRendering.h"
#include "cli/ExitStatus.h"
#include "cli/RenderReport.h"
#include "cli/outputPaths.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/driver/CRtfDriver.h"

namespace quorvane::cli {

/// Renders descriptions one after the other, each on its own.
class RenderWorker {
public:
    /// All that is given must outlive the worker.
    RenderWorker(const RenderingManner& manner, CommandPlatform& platform, RenderReport& report)
        : manner_(manner), platform_(platform), report_(report) {}

    /// Reports every error of the description.
    ExitStatus render(const Assignment& assignment);

private:
    const RenderingManner& manner_;
    CommandPlatform& platform_;
    RenderReport& report_;
    // For one description after the other, so that the stylesheet is parsed once.
    Ref<CRtfDriver> driver_;
};

}  // namespace quorvane::cli
