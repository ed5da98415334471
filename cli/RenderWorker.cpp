#include "cli/RenderWorker.h"

#include <cstddef>
#include <cstdint>
#include <new>

namespace quorvane::cli {

namespace {

constexpr std::int32_t outOfMemory = 7;
constexpr std::size_t largestKeptDocument = std::size_t{1024} * 1024;

}  // namespace

ExitStatus RenderWorker::render(const Assignment& assignment) {
    try {
        const ExitStatus status =
            DescriptionRendering(assignment, manner_, platform_, driver_, report_).run();
        // The next document uses the memory of a small one again; that of a large one is
        // released. After an error the next description gets a new driver.
        if (status != ExitStatus::Success || driver_->Contents().size() > largestKeptDocument) {
            driver_ = nullptr;
        }
        return status;
    } catch (const std::bad_alloc&) {
        driver_ = nullptr;
        report_.fail(
            {ErrorKind::Raised, assignment.description, RtfError(outOfMemory, "Out of memory")});
        return ExitStatus::Failure;
    }
}

}  // namespace quorvane::cli
