#include "data/DataValue.h"

#include <algorithm>

namespace quorvane::data {

const DataValue* DataValue::find(std::string_view name) const {
    const auto found = std::lower_bound(names.begin(), names.end(), name);
    return found == names.end() || *found != name
               ? nullptr
               : &items[static_cast<std::size_t>(found - names.begin())];
}

}  // namespace quorvane::data
