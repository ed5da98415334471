#include "quorvane/stylesheet/CellColorLookup.h"

#include <cstddef>

namespace quorvane {

CellColorLookup::CellColorLookup(const StyleList& styles,
                                 const std::function<std::int32_t(const std::string&)>& numberOf) {
    const int count = static_cast<int>(styles.count());
    colors_.reserve(styles.count());
    for (int position = 1; position <= count; ++position) {
        colors_.push_back(numberOf(styles.at(position).format()));
    }
}

std::int32_t CellColorLookup::find(const StyleList& styles, std::string_view name) const {
    const int position = positions_.find(styles, name);
    return position < 0 ? 0 : colors_[static_cast<std::size_t>(position) - 1];
}

}  // namespace quorvane
