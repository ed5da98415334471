#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <utility>

#include "quorvane/compose/TableWriter.h"

namespace quorvane::data {

/// Where the rows of a table go. A row that is refused, with error 5, changes nothing.
class TableTarget {
public:
    TableTarget() = default;
    TableTarget(const TableTarget&) = delete;
    TableTarget& operator=(const TableTarget&) = delete;
    virtual ~TableTarget() = default;

    virtual void addRow(std::span<const std::string_view> cells) = 0;
    /// Adds a heading and the first row below it.
    virtual void addGroup(std::string_view heading, std::span<const std::string_view> cells) = 0;
    virtual void addTotal(std::span<const std::string_view> cells) = 0;
    /// Ends the document, and closes the file.
    virtual void finish() = 0;
};

/// A document.
class TableDocumentTarget final : public TableTarget {
public:
    explicit TableDocumentTarget(std::unique_ptr<TableWriter> writer)
        : writer_(std::move(writer)) {}

    void addRow(std::span<const std::string_view> cells) override { writer_->addRow(cells); }
    void addGroup(std::string_view heading, std::span<const std::string_view> cells) override {
        writer_->addGroup(heading, cells);
    }
    void addTotal(std::span<const std::string_view> cells) override { writer_->addTotal(cells); }
    void finish() override { writer_->finish(); }

private:
    std::unique_ptr<TableWriter> writer_;
};

}  // namespace quorvane::data
