#include "data/DataValue.h"

#include <algorithm>

namespace quorvane::data {

const DataValue* DataValue::find(std::string_view name) const {
    const auto found = std::lower_bound(
        members.begin(), members.end(), name,
        [](const DataMember& member, std::string_view wanted) { return member.name < wanted; });
    return found == members.end() || found->name != name ? nullptr : &found->value;
}

}  // namespace quorvane::data
