#include "cli/RenderWorker.h"

#include <cstdint>
#include <new>

#include "quorvane/docmodel/InnerDocument.h"

namespace quorvane::cli {

namespace {

constexpr std::int32_t outOfMemory = 7;

}  // namespace

ExitStatus RenderWorker::render(const Assignment& assignment) {
    try {
        const ExitStatus status =
            DescriptionRendering(assignment, manner_, platform_, driver_, report_).run();
        // The next document uses the memory of a short one again. The text of a long one was not
        // kept and would have to be rendered once more. After an error the next description gets a
        // new driver.
        if (status != ExitStatus::Success || !inner(*driver_->RtfObject()).holdsShortText()) {
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
