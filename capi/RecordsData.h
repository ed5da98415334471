#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "capi/TableData.h"
#include "capi/dataOptions.h"
#include "data/RecordsTable.h"
#include "data/RecordsTableOptions.h"
#include "data/TableRecords.h"
#include "data/recordsText.h"

namespace quorvane::capi {

/// The records of a text or a file as the rows of a table.
class RecordsData final : public TableData {
public:
    /// Opens the text, from its first byte.
    using Open = std::function<data::BlockReader()>;

    /// Errors name the text.
    RecordsData(Open open, std::string name, data::RecordsForm form);
    RecordsData(std::string path, data::RecordsForm form);

    bool isFromFile(const std::string& path) const override;
    void setOption(int option, std::string_view value) override {
        setDataOption(options_, option, value);
    }
    void begin(const TableSetup& setup, bool isPageChosen, const OpenTable& open) override;
    void finish() override;
    const DiagnosticList& diagnostics() const override { return diagnostics_; }

private:
    template <class Action>
    void located(Action action) const;
    void leaveOut(const RtfError& error);
    void warnOfScatteredGroups();

    Open open_;
    std::string name_;
    data::RecordsForm form_;
    // Empty if the data is not a file.
    std::string path_;
    data::RecordsTableOptions options_;
    DiagnosticList diagnostics_;
    std::unique_ptr<data::RecordsTable> table_;
};

}  // namespace quorvane::capi
