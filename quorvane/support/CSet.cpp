#include "quorvane/support/CSet.h"

#include <exception>
#include <optional>
#include <string>

#include "quorvane/support/CString.h"

namespace quorvane {

void CSet::add(const Value& Item) {
    map_.setItem(Item, Item);
}

void CSet::loadFromRes(Platform& platform, int ResId) {
    try {
        const std::optional<std::string> text = platform.resourceString(ResId);
        for (const std::string& piece : CString(text.value_or("")).Parse("#").NewEnum()) {
            add(piece);
        }
    } catch (const std::exception&) {
        // A set without these members is what the caller gets for a resource that is not there.
    }
}

}  // namespace quorvane
