#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/support/SharedText.h"
#include "quorvane/support/textCase.h"

namespace quorvane {

/// The keys of a keyed list: unique texts that are compared without regard to case.
///
/// The entries stand in the order in which they were filed. Few are searched one by one; many have
/// two open hash tables of their positions, by key and by element. Keys are often asked for in the
/// order in which they were filed, so the entry behind the one that was found last is looked at
/// first: it is near in memory, which no place in a large table is.
template <class Element>
class KeyIndex {
public:
    /// The element filed under the key, or null.
    Element* find(std::string_view key) const {
        const std::string lowered = lowerCase(key);
        const std::uint32_t position = positionOfKey(lowered, hashOf(lowered));
        return position == nowhere ? nullptr : entries_[position].element;
    }

    /// Files the element under a key that is not there yet. A failure changes nothing.
    void add(std::string_view key, Element* element) {
        const std::string lowered = lowerCase(key);
        Entry entry{SharedText(lowered), element, hashOf(lowered)};
        const std::size_t slotsNeeded = 2 * (entries_.size() + 1);
        if (entries_.size() >= searchedOneByOne && slotsNeeded > byKey_.size()) {
            growSlots(4 * entries_.size());
        }
        if (entries_.empty()) {
            entries_.reserve(usualCount);
        }
        entries_.push_back(std::move(entry));
        if (!byKey_.empty()) {
            fileLast();
        }
    }

    /// Forgets the element's key, if it has one.
    void remove(const Element* element) noexcept {
        const std::uint32_t position = positionOfElement(element);
        if (position == nowhere) {
            return;
        }
        const auto last = static_cast<std::uint32_t>(entries_.size() - 1);
        if (!byKey_.empty()) {
            takeOut(byKey_, position, keyHash());
            takeOut(byElement_, position, elementHash());
            if (position != last) {
                byKey_[slotOf(byKey_, last, entries_[last].hash)] = position;
                byElement_[slotOf(byElement_, last, hashOf(entries_[last].element))] = position;
            }
        }
        if (position != last) {
            entries_[position] = std::move(entries_[last]);
        }
        entries_.pop_back();
    }

private:
    struct Entry {
        SharedText key;
        Element* element;
        std::uint32_t hash;
    };
    using Slots = std::vector<std::uint32_t>;

    static constexpr std::size_t usualCount = 4;
    static constexpr std::size_t searchedOneByOne = 8;
    static constexpr std::uint32_t nowhere = UINT32_MAX;

    static std::uint32_t hashOf(std::string_view key) noexcept {
        return static_cast<std::uint32_t>(std::hash<std::string_view>{}(key));
    }
    // The product's upper bits depend on all bits of the address.
    static std::uint32_t hashOf(const Element* element) noexcept {
        const std::uint64_t address = reinterpret_cast<std::uintptr_t>(element);
        return static_cast<std::uint32_t>(address * 0x9E3779B97F4A7C15u >> 32);
    }
    auto keyHash() const noexcept {
        return [this](std::uint32_t position) { return entries_[position].hash; };
    }
    auto elementHash() const noexcept {
        return [this](std::uint32_t position) { return hashOf(entries_[position].element); };
    }

    bool isAt(std::uint32_t position, std::string_view key, std::uint32_t hash) const noexcept {
        const Entry& entry = entries_[position];
        return entry.hash == hash && entry.key.view() == key;
    }

    std::uint32_t positionOfKey(std::string_view key, std::uint32_t hash) const noexcept {
        if (expected_ < entries_.size() && isAt(expected_, key, hash)) {
            return expected_++;
        }
        const std::uint32_t position =
            search(byKey_, hash, [&](std::uint32_t at) { return isAt(at, key, hash); });
        if (position != nowhere) {
            expected_ = position + 1;
        }
        return position;
    }

    std::uint32_t positionOfElement(const Element* element) const noexcept {
        return search(byElement_, hashOf(element),
                      [&](std::uint32_t at) { return entries_[at].element == element; });
    }

    template <class IsWanted>
    std::uint32_t search(const Slots& slots, std::uint32_t hash, IsWanted isWanted) const noexcept {
        if (slots.empty()) {
            for (std::uint32_t position = 0; position < entries_.size(); ++position) {
                if (isWanted(position)) {
                    return position;
                }
            }
            return nowhere;
        }
        std::size_t slot = hash & (slots.size() - 1);
        while (slots[slot] != nowhere && !isWanted(slots[slot])) {
            slot = (slot + 1) & (slots.size() - 1);
        }
        return slots[slot];
    }

    // The slot that holds the position, which must be there.
    static std::size_t slotOf(const Slots& slots, std::uint32_t position,
                              std::uint32_t hash) noexcept {
        std::size_t slot = hash & (slots.size() - 1);
        while (slots[slot] != position) {
            slot = (slot + 1) & (slots.size() - 1);
        }
        return slot;
    }

    static void put(Slots& slots, std::uint32_t position, std::uint32_t hash) noexcept {
        std::size_t slot = hash & (slots.size() - 1);
        while (slots[slot] != nowhere) {
            slot = (slot + 1) & (slots.size() - 1);
        }
        slots[slot] = position;
    }

    // Empties the position's slot and moves up what would not be found behind an empty one.
    template <class HashAt>
    static void takeOut(Slots& slots, std::uint32_t position, HashAt hashAt) noexcept {
        const std::size_t mask = slots.size() - 1;
        std::size_t hole = slotOf(slots, position, hashAt(position));
        for (std::size_t slot = (hole + 1) & mask; slots[slot] != nowhere;
             slot = (slot + 1) & mask) {
            const std::size_t home = hashAt(slots[slot]) & mask;
            if (((slot - home) & mask) >= ((slot - hole) & mask)) {
                slots[hole] = slots[slot];
                hole = slot;
            }
        }
        slots[hole] = nowhere;
    }

    void growSlots(std::size_t atLeast) {
        std::size_t count = 2 * searchedOneByOne;
        while (count < atLeast) {
            count *= 2;
        }
        Slots byKey(count, nowhere);
        Slots byElement(count, nowhere);
        byKey_.swap(byKey);
        byElement_.swap(byElement);
        for (std::uint32_t position = 0; position < entries_.size(); ++position) {
            file(position);
        }
    }

    void fileLast() noexcept { file(static_cast<std::uint32_t>(entries_.size() - 1)); }

    void file(std::uint32_t position) noexcept {
        put(byKey_, position, entries_[position].hash);
        put(byElement_, position, hashOf(entries_[position].element));
    }

    std::vector<Entry> entries_;
    // Each has room for twice as many positions as there are.
    Slots byKey_;
    Slots byElement_;
    // The entry behind the one found last.
    mutable std::uint32_t expected_ = 0;
};

}  // namespace quorvane
