#pragma once

#include <cstddef>
#include <vector>

#include "cli/CommandPlatform.h"
#include "cli/DescriptionRendering.h"
#include "cli/ExitStatus.h"
#include "cli/RenderReport.h"
#include "cli/RenderWorker.h"
#include "cli/outputPaths.h"
#include "cli/renderEvents.h"

namespace quorvane::cli {

/// Renders descriptions on several threads, and reports as if one were rendered after the other.
/// Memory holds a document and a long report for each thread, and the short reports of a few
/// descriptions more.
class SideBySideRendering {
public:
    /// What all threads share; it must outlive the rendering.
    struct Means {
        const RenderingManner& manner;
        CommandPlatform& platform;
        /// Has taken the stylesheet.
        RenderReport& report;
        const RenderReceivers& receivers;
    };

    SideBySideRendering(const std::vector<Assignment>& assignments, const Means& means)
        : assignments_(assignments), means_(means) {}
    SideBySideRendering(const SideBySideRendering&) = delete;
    SideBySideRendering& operator=(const SideBySideRendering&) = delete;

    ExitStatus run(std::size_t threads);

private:
    struct Result {
        ExitStatus status = ExitStatus::Success;
        RenderEvents events{};
    };

    /// What one thread works with.
    struct Thread {
        explicit Thread(const Means& means);

        RenderEvents events;
        RenderReceivers receivers;
        RenderReport report;
        RenderWorker worker;
    };

    Result& resultOf(std::size_t task) { return results_[task % results_.size()]; }
    void announce(std::size_t task) const;
    bool render(Thread& thread, std::size_t task);
    void deliver(std::size_t task);

    const std::vector<Assignment>& assignments_;
    Means means_;
    std::vector<Result> results_;
    ExitStatus status_ = ExitStatus::Success;
};

}  // namespace quorvane::cli
