#pragma once

#include <cstdint>

#include "quorvane/base/platform/HostServices.h"
#include "quorvane/base/values/Value.h"
#include "quorvane/support/CMap.h"

namespace quorvane {

/// A set of values, in the order in which they were added. Members are equal as the keys of a
/// `CMap` are.
class CSet {
public:
    /// Adds the item, unless it is a member already: the stored one stays as it is then.
    void add(const Value& Item);

    std::int32_t Count() const { return map_.Count(); }

    bool IsSetEmpty() const { return map_.IsMapEmpty(); }

    bool Exists(const Value& Item) const { return map_.Exists(Item); }

    /// Removes a member. Error 5 when it is not in the set.
    void Remove(const Value& Item) { map_.Remove(Item); }

    void RemoveAll() { map_.RemoveAll(); }

    /// All members in order; Empty for an empty set.
    CMap::List Items() const { return map_.Items(); }

    /// Adds the pieces between the "#" of the string resource with that number, in order. Raises
    /// nothing: a resource that cannot be read leaves the set as it was.
    void loadFromRes(HostServices& host, int ResId);

private:
    CMap map_;
};

}  // namespace quorvane
