#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "cli/CommandPlatform.h"
#include "cli/DescriptionRendering.h"
#include "cli/ExitStatus.h"
#include "cli/JoinedDocument.h"
#include "cli/RenderOptions.h"
#include "cli/RenderReport.h"
#include "cli/SchemaFile.h"
#include "cli/TemplateData.h"
#include "cli/outputPaths.h"
#include "quorvane/base/platform/Platform.h"

namespace quorvane::cli {

/// Implements `quorvane render`: renders descriptions one after the other or side by side, each on
/// its own. It reports every error and continues with the next description, but renders none if the
/// options make no sense, or if the stylesheet cannot be read and --keep-going is not given.
class RenderJob {
public:
    /// Descriptions and stylesheet are read from the platform, which must outlive the job and, for
    /// several jobs, be usable from several threads at a time.
    RenderJob(RenderOptions options, RenderReceivers receivers,
              Platform& platform = systemPlatform());
    RenderJob(const RenderJob&) = delete;
    RenderJob& operator=(const RenderJob&) = delete;

    /// Throws `UsageError`, before anything is written.
    ExitStatus run();

private:
    ExitStatus renderRecords();
    bool openJoined();
    bool prepareFolder(const std::string& name);
    ExitStatus readStyleSheet();
    ExitStatus readData();
    ExitStatus readSchemaFile();
    ExitStatus renderInTurn(const std::vector<Assignment>& assignments);
    ExitStatus renderSideBySide(const std::vector<Assignment>& assignments, std::size_t threads);

    RenderOptions options_;
    RenderingManner manner_;
    RenderReceivers receivers_;
    RenderReport report_;
    CommandPlatform platform_;
    std::optional<SchemaFile> schema_;
    std::optional<TemplateDataFile> data_;
    std::optional<JoinedDocument> joined_;
};

}  // namespace quorvane::cli
