#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/CommandPlatform.h"
#include "cli/ExitStatus.h"
#include "cli/ReportedError.h"
#include "cli/TableColumns.h"
#include "cli/TableOptions.h"
#include "cli/TableRecords.h"
#include "cli/TableTarget.h"
#include "data/GroupWatch.h"
#include "data/columnsTotal.h"

namespace quorvane::cli {

/// `quorvane table`: makes a document of the records of a file.
class TableJob {
public:
    /// The options must outlive the job.
    TableJob(const TableOptions& options, ErrorSink report);

    /// Throws `UsageError` for options that do not suit each other or the data.
    ExitStatus run();

private:
    /// A column with a total.
    struct Total {
        std::size_t column;
        std::size_t field;
        data::ColumnTotal sum;
    };

    ExitStatus write();
    void writeStyleSheet();
    void writeTable();
    TableSetup setupOf(const TableRecords& records);
    void findFields(const TableRecords& records);
    void beginPart();
    void endPart();
    std::string partOutput() const;
    void addRecords(TableRecords& records);
    void addRecord(std::span<const std::string_view> fields);
    void addTotals();
    void requireShown(const std::vector<std::string>& names,
                      std::span<const std::string_view> fields);
    void leaveOut(const RtfError& error);
    ExitStatus fail(const ReportedError& failure);
    std::string inputName() const;
    std::string outputName() const;

    const TableOptions& options_;
    ErrorSink report_;
    CommandPlatform platform_;
    std::string output_;
    std::string styleSheet_;
    std::optional<TableColumns> columns_;
    TableSetup setup_;
    std::unique_ptr<TableTarget> target_;
    // The number of the document, and how many rows it has.
    std::size_t part_ = 0;
    std::size_t rows_ = 0;
    std::size_t fieldCount_ = 0;
    std::vector<std::size_t> blankFields_;
    std::vector<Total> totals_;
    std::optional<std::size_t> groupField_;
    std::optional<std::string> group_;
    // In all documents.
    data::GroupWatch groups_;
    std::size_t leftOut_ = 0;
};

}  // namespace quorvane::cli
