#include "cli/SideBySideRendering.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "cli/tasksInOrder.h"

namespace quorvane::cli {

ExitStatus SideBySideRendering::run(std::size_t threads) {
    std::deque<RenderThread> all;
    while (all.size() < threads) {
        all.emplace_back(means_);
    }
    results_.resize(tasksUnderWay(threads));
    announce(0);
    doInOrder({assignments_.size(), threads,
               [&](std::size_t thread, std::size_t task) { return render(all[thread], task); },
               [&](std::size_t task) { deliver(task); }});
    return status_;
}

/// Shows the description whose turn it is to be reported.
void SideBySideRendering::announce(std::size_t task) const {
    if (means_.receivers.progress && task < assignments_.size()) {
        means_.receivers.progress(task + 1, assignments_.size(), assignments_[task].description);
    }
}

/// Returns true if the report is long.
bool SideBySideRendering::render(RenderThread& thread, std::size_t task) {
    Result& result = resultOf(task);
    result.status = thread.worker.render(assignments_[task]);
    result.events = std::exchange(thread.events, {});
    return areMany(result.events);
}

void SideBySideRendering::deliver(std::size_t task) {
    const Result result = std::exchange(resultOf(task), {});
    status_ = std::max(status_, result.status);
    report(result.events, means_.report, means_.receivers);
    announce(task + 1);
}

}  // namespace quorvane::cli
