#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "cli/renderEvents.h"
#include "quorvane/base/platform/Files.h"

namespace quorvane::cli {

/// What became of a record.
struct RecordResult {
    std::size_t number = 0;
    /// Of the file with the data; 0 if it is not known.
    std::int64_t line = 0;
    bool isWritten = false;
    /// The file of its document; empty if it has none.
    std::string file = {};
    RenderEvents events = {};
};

/// A file with a JSON object for each record, in the order of the records.
class RecordsReport {
public:
    explicit RecordsReport(std::unique_ptr<OutputFile> file) : file_(std::move(file)) {}

    /// Raises what writing a file raises, as `close` does.
    void add(const RecordResult& result);
    void close();

private:
    void write();

    std::unique_ptr<OutputFile> file_;
    std::string text_;
};

}  // namespace quorvane::cli
