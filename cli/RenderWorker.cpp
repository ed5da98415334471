#include "cli/RenderWorker.h"

#include <cstdint>
#include <new>

#include "quorvane/docmodel/InnerDocument.h"

namespace quorvane::cli {

namespace {

constexpr std::int32_t outOfMemory = 7;

}  // namespace

ExitStatus RenderWorker::render(const Assignment& assignment) {
    return render(assignment, [](DescriptionRendering& rendering) { return rendering.run(); });
}

ExitStatus RenderWorker::render(const Assignment& assignment, const LoadedTemplate& loaded,
                                data::TemplateFilling& filling, const NumberedRecord& record) {
    return render(assignment, [&](DescriptionRendering& rendering) {
        return rendering.run(loaded, filling, record);
    });
}

template <class Run>
ExitStatus RenderWorker::render(const Assignment& assignment, Run run) {
    hasWritten_ = false;
    try {
        ExitStatus status = ExitStatus::Success;
        {
            DescriptionRendering rendering(assignment, manner_, platform_, driver_, report_);
            status = run(rendering);
            hasWritten_ = rendering.hasWritten();
        }
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
