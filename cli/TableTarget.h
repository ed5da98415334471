#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "quorvane/base/platform/Files.h"
#include "quorvane/compose/TableDescription.h"
#include "quorvane/compose/TableWriter.h"

namespace quorvane::cli {

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
    /// Ends and closes the file.
    virtual void finish() = 0;
};

/// A document.
class TableDocumentTarget final : public TableTarget {
public:
    TableDocumentTarget(const TableSetup& setup, std::unique_ptr<OutputFile> file)
        : writer_(setup, std::move(file)) {}

    void addRow(std::span<const std::string_view> cells) override { writer_.addRow(cells); }
    void addGroup(std::string_view heading, std::span<const std::string_view> cells) override {
        writer_.addGroup(heading, cells);
    }
    void addTotal(std::span<const std::string_view> cells) override { writer_.addTotal(cells); }
    void finish() override { writer_.finish(); }

private:
    TableWriter writer_;
};

/// The description of that document.
class TableDescriptionTarget final : public TableTarget {
public:
    TableDescriptionTarget(const TableSetup& setup, std::unique_ptr<OutputFile> file);

    void addRow(std::span<const std::string_view> cells) override;
    void addGroup(std::string_view heading, std::span<const std::string_view> cells) override;
    void addTotal(std::span<const std::string_view> cells) override;
    void finish() override;

private:
    void write(std::string_view text);

    TableDescription description_;
    TableStripes stripes_;
    std::unique_ptr<OutputFile> file_;
    // What is not written yet.
    std::string text_;
};

}  // namespace quorvane::cli
