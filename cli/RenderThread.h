#pragma once

#include "cli/CommandPlatform.h"
#include "cli/DescriptionRendering.h"
#include "cli/RenderReport.h"
#include "cli/RenderWorker.h"
#include "cli/renderEvents.h"

namespace quorvane::cli {

/// What all threads of a rendering share; it must outlive them.
struct RenderMeans {
    const RenderingManner& manner;
    CommandPlatform& platform;
    /// Has taken the stylesheet.
    RenderReport& report;
    const RenderReceivers& receivers;
};

/// What one thread works with. It keeps what it reports.
struct RenderThread {
    explicit RenderThread(const RenderMeans& means)
        : receivers(receiversInto(events, static_cast<bool>(means.receivers.locate))),
          report(means.report, receivers),
          worker(means.manner, means.platform, report) {}

    RenderEvents events;
    RenderReceivers receivers;
    RenderReport report;
    RenderWorker worker;
};

}  // namespace quorvane::cli
