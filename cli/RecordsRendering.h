#pragma once

#include <atomic>
#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/DocumentNames.h"
#include "cli/ExitStatus.h"
#include "cli/LoadedTemplate.h"
#include "cli/NumberedRecord.h"
#include "cli/RecordInput.h"
#include "cli/RecordsReport.h"
#include "cli/RenderOptions.h"
#include "cli/RenderThread.h"
#include "cli/renderEvents.h"
#include "data/TemplateFilling.h"
#include "data/locale.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::cli {

/// Renders a document for each record of the data. A record that fails is reported, and the others
/// go on, unless the disk is full. Memory holds a few records and documents for each thread.
class RecordsRendering {
public:
    /// Throws a `UsageError` for options that make no sense.
    RecordsRendering(const RenderOptions& options, const RenderMeans& means);
    RecordsRendering(const RecordsRendering&) = delete;
    RecordsRendering& operator=(const RecordsRendering&) = delete;

    /// See `DocumentNames`.
    std::string commonFolder() const { return names_.commonFolder(); }

    ExitStatus run(std::size_t threads);

private:
    /// A record on its way to a document.
    struct Task {
        NumberedRecord record;
        RecordResult result;
        ExitStatus status = ExitStatus::Success;
    };

    struct Thread {
        Thread(const RenderMeans& means, const data::Template& source, const data::Locale& locale)
            : rendering(means), filling(source, locale) {}

        RenderThread rendering;
        data::TemplateFilling filling;
    };

    bool load();
    bool open();
    void renderAll(std::size_t threads);
    Task& taskAt(std::size_t task) { return tasks_[task % tasks_.size()]; }
    bool prepare(std::size_t number);
    bool read(Task& task);
    bool work(Thread& thread, std::size_t number);
    void deliver(std::size_t number);
    void stopAfter(const RenderEvents& events);
    bool isBeyondData() const;
    void summarize();
    void failReport(const RtfError& error);
    void closeReport();
    void fail(const ReportedError& failure);
    std::string dataName() const;

    const RenderOptions& options_;
    RenderMeans means_;
    data::Locale locale_;
    DocumentNames names_;
    // What is found while records are read and documents named.
    RenderEvents found_;
    RenderReceivers finding_;
    std::optional<RenderReport> findings_;
    std::optional<LoadedTemplate> template_;
    std::optional<RecordInput> input_;
    std::optional<RecordsReport> report_;
    std::vector<Task> tasks_;
    std::atomic<bool> isStopped_ = false;
    std::size_t written_ = 0;
    std::size_t failed_ = 0;
    ExitStatus status_ = ExitStatus::Success;
};

}  // namespace quorvane::cli
