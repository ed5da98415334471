#pragma once

#include <cstddef>
#include <vector>

#include "cli/ExitStatus.h"
#include "cli/RenderThread.h"
#include "cli/outputPaths.h"
#include "cli/renderEvents.h"

namespace quorvane::cli {

/// Renders descriptions on several threads, and reports as if one were rendered after the other.
/// Memory holds a document and a long report for each thread, and the short reports of a few
/// descriptions more.
class SideBySideRendering {
public:
    SideBySideRendering(const std::vector<Assignment>& assignments, const RenderMeans& means)
        : assignments_(assignments), means_(means) {}
    SideBySideRendering(const SideBySideRendering&) = delete;
    SideBySideRendering& operator=(const SideBySideRendering&) = delete;

    ExitStatus run(std::size_t threads);

private:
    struct Result {
        ExitStatus status = ExitStatus::Success;
        RenderEvents events{};
    };

    Result& resultOf(std::size_t task) { return results_[task % results_.size()]; }
    void announce(std::size_t task) const;
    bool render(RenderThread& thread, std::size_t task);
    void deliver(std::size_t task);

    const std::vector<Assignment>& assignments_;
    RenderMeans means_;
    std::vector<Result> results_;
    ExitStatus status_ = ExitStatus::Success;
};

}  // namespace quorvane::cli
