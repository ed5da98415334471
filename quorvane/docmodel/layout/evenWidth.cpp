#include "quorvane/docmodel/layout/evenWidth.h"

#include <algorithm>

#include "quorvane/docmodel/measures.h"

namespace quorvane {

std::int32_t evenWidth(const TableDocument& document, std::int64_t count) {
    const std::int32_t cells = checkedMeasure(count);
    const std::int32_t width = std::max(quotient(document.TextAreaWidth(), cells), smallestWidth);
    product(width, cells);
    return width;
}

}  // namespace quorvane
