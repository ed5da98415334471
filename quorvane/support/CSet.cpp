#include "quorvane/support/CSet.h"

#include <exception>
#include <string>

#include "quorvane/support/CString.h"

namespace quorvane {

void CSet::add(const Value& Item) {
    if (!map_.Exists(Item)) {
        map_.add(Item, Item);
    }
}

void CSet::loadFromRes(HostServices& host, int ResId) {
    try {
        const CString text(host.resourceString(ResId).value_or(""));
        const CStringList pieces = text.Parse("#");
        for (const std::string& piece : pieces.NewEnum()) {
            add(piece);
        }
    } catch (const std::exception&) {
        // A set without these members is what the caller gets for a resource that is not there.
    }
}

}  // namespace quorvane
