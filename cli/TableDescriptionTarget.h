#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "data/TableTarget.h"
#include "quorvane/base/platform/Files.h"
#include "quorvane/compose/TableDescription.h"

namespace quorvane::cli {

/// The description of a document.
class TableDescriptionTarget final : public data::TableTarget {
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
