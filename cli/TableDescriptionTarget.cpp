#include "cli/TableDescriptionTarget.h"

#include <cstddef>
#include <utility>

namespace quorvane::cli {

TableDescriptionTarget::TableDescriptionTarget(const TableSetup& setup,
                                               std::unique_ptr<OutputFile> file)
    : description_(setup), file_(std::move(file)), text_(description_.beginning()) {}

void TableDescriptionTarget::addRow(std::span<const std::string_view> cells) {
    TableStripes stripes = stripes_;
    write(description_.row(stripes.next(), cells));
    stripes_ = stripes;
}

void TableDescriptionTarget::addGroup(std::string_view heading,
                                      std::span<const std::string_view> cells) {
    TableStripes stripes;
    write(description_.row(TableRowKind::Group, {&heading, 1}) +
          description_.row(stripes.next(), cells));
    stripes_ = stripes;
}

void TableDescriptionTarget::addTotal(std::span<const std::string_view> cells) {
    write(description_.row(TableRowKind::Total, cells));
}

void TableDescriptionTarget::finish() {
    text_ += TableDescription::end();
    file_->write(text_);
    file_->close();
}

void TableDescriptionTarget::write(std::string_view text) {
    constexpr std::size_t enough = std::size_t{64} * 1024;
    text_ += text;
    if (text_.size() >= enough) {
        file_->write(text_);
        text_.clear();
    }
}

}  // namespace quorvane::cli
