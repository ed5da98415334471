#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "cli/CommandPlatform.h"
#include "cli/ExitStatus.h"
#include "cli/ReportedError.h"
#include "cli/TableOptions.h"
#include "data/TableTarget.h"
#include "quorvane/compose/TableSetup.h"

namespace quorvane::cli {

/// `quorvane table`: makes a document of the records of a file.
class TableJob {
public:
    /// The options must outlive the job.
    TableJob(const TableOptions& options, ErrorSink report);

    /// Throws `UsageError` for options that do not suit each other or the data.
    ExitStatus run();

private:
    ExitStatus write();
    void writeStyleSheet();
    void writeTable();
    TableSetup setup() const;
    std::unique_ptr<data::TableTarget> target(const TableSetup& setup, std::size_t part);
    std::string partOutput(std::size_t number) const;
    void leaveOut(const RtfError& error);
    ExitStatus fail(const ReportedError& failure);
    std::string inputName() const;
    std::string outputName() const;

    const TableOptions& options_;
    ErrorSink report_;
    CommandPlatform platform_;
    std::string output_;
    std::string styleSheet_;
    std::size_t leftOut_ = 0;
};

}  // namespace quorvane::cli
