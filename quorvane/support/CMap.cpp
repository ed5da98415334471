#include "quorvane/support/CMap.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <iterator>
#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/support/published.h"

namespace quorvane {

namespace {

constexpr std::size_t searchedOneByOne = 8;
constexpr std::size_t usualEntryCount = 4;
// What an empty slot holds, and the position of an absent key.
constexpr std::uint32_t noEntry = UINT32_MAX;

}  // namespace

bool CMap::Exists(const Value& Key) const {
    return positionOf(Key) != noEntry;
}

CMap::List CMap::Items() const {
    if (entries_.empty()) {
        return std::nullopt;
    }
    std::vector<Value> items;
    items.reserve(entries_.size());
    for (const Entry& entry : entries_) {
        items.push_back(entry.value);
    }
    return items;
}

CMap::List CMap::Keys() const {
    if (entries_.empty()) {
        return std::nullopt;
    }
    std::vector<Value> keys;
    keys.reserve(entries_.size());
    for (const Entry& entry : entries_) {
        keys.push_back(entry.key);
    }
    return keys;
}

void CMap::Key(const Value& Old, Value New) {
    const std::uint32_t position = published([&] {
        const std::uint32_t renamed = requiredPositionOf(Old);
        const std::uint32_t taken = positionOf(New);
        if (taken != noEntry && taken != renamed) {
            raise(RunTimeError::DuplicateKey);
        }
        return renamed;
    });
    Entry& entry = entries_[position];
    entry.hash = ValueHash{}(New);
    entry.key = std::move(New);
    fillSlots();
}

std::int32_t CMap::Count() const {
    return static_cast<std::int32_t>(entries_.size());
}

const Value& CMap::Item(const Value& Key) const {
    return entries_[published([&] { return requiredPositionOf(Key); })].value;
}

void CMap::setItem(const Value& Key, Value value) {
    const std::size_t hash = ValueHash{}(Key);
    const std::uint32_t position = positionOf(Key, hash);
    if (position == noEntry) {
        append(Key, std::move(value), hash);
    } else {
        entries_[position].value = std::move(value);
    }
}

void CMap::RemoveAll() {
    entries_.clear();
    slots_.clear();
}

void CMap::Remove(const Value& Key) {
    const std::uint32_t position = published([&] { return requiredPositionOf(Key); });
    entries_.erase(std::next(entries_.begin(), static_cast<std::ptrdiff_t>(position)));
    fillSlots();
}

void CMap::add(Value Key, Value value) {
    const std::size_t hash = ValueHash{}(Key);
    published([&] {
        if (positionOf(Key, hash) != noEntry) {
            raise(RunTimeError::DuplicateKey);
        }
    });
    append(std::move(Key), std::move(value), hash);
}

CMap::List CMap::Keys2Values(const List& vKeys) const {
    if (!vKeys) {
        return std::nullopt;
    }
    CMap wanted;
    for (const Value& key : *vKeys) {
        wanted.setItem(key, Empty{});
    }
    std::vector<Value> values;
    for (const Entry& entry : entries_) {
        if (wanted.Exists(entry.key)) {
            values.push_back(entry.value);
        }
    }
    return values.empty() ? List() : List(std::move(values));
}

std::shared_ptr<CMap> CMap::subMap(const List& vKeys) const {
    if (!vKeys || IsMapEmpty()) {
        return nullptr;
    }
    auto map = std::make_shared<CMap>();
    for (const Value& key : *vKeys) {
        const std::uint32_t position = positionOf(key);
        if (position != noEntry) {
            map->setItem(key, entries_[position].value);
        }
    }
    return map;
}

std::size_t CMap::firstSlot(std::size_t hash) const {
    // Hashes of numbers and objects differ in few of their bits; the product's upper bits depend on
    // all of them.
    const std::uint64_t mixed = std::uint64_t{hash} * 0x9E3779B97F4A7C15u;
    return static_cast<std::size_t>(mixed >> (64 - std::countr_zero(slots_.size())));
}

std::uint32_t CMap::positionOf(const Value& key) const {
    return entries_.empty() ? noEntry : positionOf(key, ValueHash{}(key));
}

std::uint32_t CMap::positionOf(const Value& key, std::size_t hash) const {
    if (slots_.empty()) {
        for (std::uint32_t position = 0; position < entries_.size(); ++position) {
            if (entries_[position].hash == hash && entries_[position].key == key) {
                return position;
            }
        }
        return noEntry;
    }
    for (std::size_t slot = firstSlot(hash); slots_[slot] != noEntry; slot = nextSlot(slot)) {
        const Entry& entry = entries_[slots_[slot]];
        if (entry.hash == hash && entry.key == key) {
            return slots_[slot];
        }
    }
    return noEntry;
}

std::uint32_t CMap::requiredPositionOf(const Value& key) const {
    const std::uint32_t position = positionOf(key);
    if (position == noEntry) {
        raise(RunTimeError::InvalidProcedureCall);
    }
    return position;
}

void CMap::append(Value key, Value value, std::size_t hash) {
    const std::size_t slotsNeeded = 2 * (entries_.size() + 1);
    if (entries_.size() >= searchedOneByOne && slotsNeeded > slots_.size()) {
        slots_.resize(std::bit_ceil(slotsNeeded));
        fillSlots();
    }
    if (entries_.empty()) {
        entries_.reserve(usualEntryCount);
    }
    entries_.push_back({std::move(key), std::move(value), hash});
    if (!slots_.empty()) {
        takeSlot(entries_.size() - 1);
    }
}

void CMap::fillSlots() {
    if (slots_.empty()) {
        return;
    }
    std::fill(slots_.begin(), slots_.end(), noEntry);
    for (std::size_t position = 0; position < entries_.size(); ++position) {
        takeSlot(position);
    }
}

void CMap::takeSlot(std::size_t position) {
    std::size_t slot = firstSlot(entries_[position].hash);
    while (slots_[slot] != noEntry) {
        slot = nextSlot(slot);
    }
    slots_[slot] = static_cast<std::uint32_t>(position);
}

}  // namespace quorvane
