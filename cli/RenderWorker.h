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

    /// The same for a record in the place of the data. The filling is that of the template.
    ExitStatus render(const Assignment& assignment, const LoadedTemplate& loaded,
                      data::TemplateFilling& filling, const NumberedRecord& record);

    /// True if the last document was written.
    bool hasWritten() const noexcept { return hasWritten_; }

private:
    template <class Run>
    ExitStatus render(const Assignment& assignment, Run run);

    const RenderingManner& manner_;
    CommandPlatform& platform_;
    RenderReport& report_;
    // For one description after the other, so that the stylesheet is parsed once.
    Ref<CRtfDriver> driver_;
    bool hasWritten_ = false;
};

}  // namespace quorvane::cli
