#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/BuiltTable.h"

namespace quorvane {

/// The values of `columns` that give the cells of a document the widths that they have. Those that
/// most rows share stand in the document's node, if that is shorter.
class ColumnUpgrade {
public:
    ColumnUpgrade(const CRtfDoc& document, BuiltTable& table);

    /// The value in the document's node; empty for none.
    const std::string& ofDocument() const { return ofDocument_; }
    /// The value in a row; empty for none.
    const std::string& ofRow(const DescriptionNode& row) const { return ofRows_.at(&row); }

private:
    void find(BuiltTable& table);
    void takeMostFrequent();

    const CRtfDoc& document_;
    // The value of each row, empty for cells that share the page evenly, and then without those
    // that have the columns of the document.
    std::unordered_map<const DescriptionNode*, std::string> ofRows_;
    std::unordered_map<const DescriptionNode*, std::string> evenRows_;
    std::string ofDocument_;
};

}  // namespace quorvane
