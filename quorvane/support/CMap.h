#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "quorvane/base/values/Object.h"
#include "quorvane/base/values/Value.h"

namespace quorvane {

/// Keys with a value each, in the order in which they were added. Keys are equal as values are:
/// numbers by value, texts to the letter, objects by identity. A map is an object itself, so that a
/// value can be a map. A failed call leaves the map as it was.
class CMap : public Object {
public:
    /// A list of values that may be Empty, which is something else than a list of no values.
    using List = std::optional<std::vector<Value>>;

    bool Exists(const Value& Key) const;

    /// All values in order; Empty for an empty map.
    List Items() const;

    /// All keys in order; Empty for an empty map.
    List Keys() const;

    /// Renames a key; its entry stays where it is. Error 5 when `Old` is absent, error 457 when
    /// `New` is the key of another entry.
    void Key(const Value& Old, Value New);

    std::int32_t Count() const;

    /// The value under the key, which is good until the map is changed. Error 5 when the key is
    /// absent.
    const Value& Item(const Value& Key) const;

    /// Stores a value under the key, whether it is present or not.
    void setItem(const Value& Key, Value value);

    void RemoveAll();

    /// Removes an entry, in time that grows with the map. Error 5 when the key is absent.
    void Remove(const Value& Key);

    /// Adds an entry at the end. Error 457 when the key is present.
    void add(Value Key, Value value);

    /// The values of those entries whose keys are among `vKeys`, in the map's order; Empty when
    /// there are none.
    List Keys2Values(const List& vKeys) const;

    /// A new map of those keys in `vKeys` that are present, with their values, in the order of
    /// `vKeys`. Null when `vKeys` is Empty or the map is empty.
    std::shared_ptr<CMap> subMap(const List& vKeys) const;

    bool IsMapEmpty() const { return entries_.empty(); }

private:
    struct Entry {
        Value key;
        Value value;
        std::size_t hash = 0;
    };

    // Few entries are searched one by one. For more the slots are an open hash table of their
    // positions: a key's slots begin at the one that its hash names, and an empty slot ends them.
    // At most half of the slots are taken.
    std::size_t firstSlot(std::size_t hash) const;
    std::size_t nextSlot(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }
    std::uint32_t positionOf(const Value& key) const;
    std::uint32_t positionOf(const Value& key, std::size_t hash) const;
    std::uint32_t requiredPositionOf(const Value& key) const;
    void append(Value key, Value value, std::size_t hash);
    void fillSlots();
    void takeSlot(std::size_t position);

    std::vector<Entry> entries_;
    std::vector<std::uint32_t> slots_;
};

}  // namespace quorvane
