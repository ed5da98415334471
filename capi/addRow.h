#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "quorvane/compose/TableWriter.h"

namespace quorvane::capi {

/// What a caller adds to a table. A group has one cell.
enum class RowKind : std::uint8_t { Row, Group, Total };

inline void addRow(TableWriter& writer, RowKind kind, std::span<const std::string_view> cells) {
    switch (kind) {
        case RowKind::Row:
            return writer.addRow(cells);
        case RowKind::Group:
            return writer.addGroup(cells.front());
        case RowKind::Total:
            return writer.addTotal(cells);
    }
}

}  // namespace quorvane::capi
