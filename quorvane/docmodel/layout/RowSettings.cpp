#include "quorvane/docmodel/layout/RowSettings.h"

#include <cstddef>
#include <string>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/measures.h"

namespace quorvane {

void requireWidths(const std::vector<std::int32_t>& widths) {
    std::int32_t total = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (widths[i] < 1) {
            raise(RunTimeError::InvalidProcedureCall,
                  "Column " + std::to_string(i + 1) + " has a width of " +
                      std::to_string(widths[i]) + " twips. It must be at least 1.");
        }
        total = sum(total, widths[i]);
    }
}

}  // namespace quorvane
