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
#include "data/DataSchema.h"
#include "data/TemplateFilling.h"
#include "data/locale.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::cli {

/// Renders a document for each record of the data, or one of all if the manner says so. A record
/// that fails is reported, and the others go on, unless the disk is full. Memory holds a few
/// records and documents for each thread.
class RecordsRendering {
public:
    /// Throws a `UsageError` for options that make no sense. A record that the schema does not
    /// accept fails; null for none.
    RecordsRendering(const RenderOptions& options, const RenderMeans& means,
                     const data::DataSchema* schema);
    RecordsRendering(const RecordsRendering&) = delete;
    RecordsRendering& operator=(const RecordsRendering&) = delete;

    /// The folder that is in the name of each document; empty for the current one.
    std::string commonFolder() const;

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
    void validate(const NumberedRecord& record);
    bool work(Thread& thread, std::size_t number);
    void deliver(std::size_t number);
    void stopAfter(const RenderEvents& events);
    void finishJoined();
    void requireReport();
    std::string written() const;
    bool isBeyondData() const;
    void summarize();
    void failReport(const RtfError& error);
    void closeReport();
    void fail(const ReportedError& failure);
    std::string joinedName() const;
    std::string dataName() const;

    const RenderOptions& options_;
    RenderMeans means_;
    const data::DataSchema* schema_;
    data::Locale locale_;
    // Null for documents of their own.
    JoinedDocument* joined_;
    // Nothing if the documents are joined.
    std::optional<DocumentNames> names_;
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
    bool isJoinedWritten_ = false;
    ExitStatus status_ = ExitStatus::Success;
};

}  // namespace quorvane::cli
