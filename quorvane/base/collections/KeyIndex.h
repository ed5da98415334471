#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// The keys of a keyed list: unique texts that are compared without regard to case.
///
/// The entries stand in the order in which they were filed. Few are searched one by one; many have
/// two open hash tables of their positions, by key and by element. Keys are often asked for in the
/// order in which they were filed, so the entry after the one that was found last is looked at
/// first: it is near in memory, which no place in a large table is.
template <class Element>
class KeyIndex {
public:
    /// The element filed under the key, or null.
    Element* find(std::string_view key) const {
        const std::uint32_t position = positionOfKey(lowerCase(key));
        return position == nowhere ? nullptr : entries_[position].element;
    }

    /// Files the element under a key that is not there yet. A failure changes nothing.
    void add(std::string_view key, Element* element) {
        const std::string lowered = lowerCase(key);
        Entry entry(lowered, element);
        const std::size_t slotsNeeded = 2 * (entries_.size() + 1);
        if (entries_.size() >= searchedOneByOne && slotsNeeded > byKey_.size()) {
            growSlots(4 * entries_.size());
        }
        if (!byKey_.empty()) {
            entry.hash = hashOf(lowered);
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
    /// A key with its element. Short keys, as most are, take no memory of their own.
    class Entry {
    public:
        Entry() = default;
        Entry(std::string_view key, Element* element_)
            : element(element_), length_(static_cast<std::uint32_t>(key.size())) {
            if (key.size() > std::numeric_limits<std::uint32_t>::max()) {
                raise(RunTimeError::Overflow);
            }
            char* room = text_.data();
            if (!isShort()) {
                room = static_cast<char*>(::operator new(key.size()));
                std::memcpy(text_.data(), &room, sizeof room);
            }
            key.copy(room, key.size());
        }
        Entry(Entry&& other) noexcept { *this = std::move(other); }
        Entry& operator=(Entry&& other) noexcept {
            std::swap(text_, other.text_);
            std::swap(element, other.element);
            std::swap(hash, other.hash);
            std::swap(length_, other.length_);
            return *this;
        }
        ~Entry() {
            if (!isShort()) {
                ::operator delete(const_cast<char*>(characters()));
            }
        }

        std::string_view key() const noexcept { return {characters(), length_}; }

        Element* element = nullptr;
        // Of the key; set when there are tables.
        std::uint32_t hash = 0;

    private:
        bool isShort() const noexcept { return length_ <= text_.size(); }
        const char* characters() const noexcept {
            if (isShort()) {
                return text_.data();
            }
            const char* pointer = nullptr;
            std::memcpy(&pointer, text_.data(), sizeof pointer);
            return pointer;
        }

        std::uint32_t length_ = 0;
        // The characters themselves or, where they are too many, a pointer to them.
        std::array<char, 8> text_{};
    };

    /// The entries by their positions. The first few, which most lists have no more than, take no
    /// memory of their own.
    class Entries {
    public:
        std::size_t size() const noexcept { return count_; }
        Entry& operator[](std::size_t position) noexcept {
            if (position < fewest) {
                return few_[position];
            }
            return rest_[position - fewest];
        }
        const Entry& operator[](std::size_t position) const noexcept {
            if (position < fewest) {
                return few_[position];
            }
            return rest_[position - fewest];
        }
        void push_back(Entry entry) {
            if (count_ < fewest) {
                few_[count_] = std::move(entry);
            } else {
                rest_.push_back(std::move(entry));
            }
            ++count_;
        }
        void pop_back() noexcept {
            --count_;
            if (count_ < fewest) {
                few_[count_] = Entry();
            } else {
                rest_.pop_back();
            }
        }

    private:
        static constexpr std::size_t fewest = 4;

        std::array<Entry, fewest> few_;
        std::vector<Entry> rest_;
        std::size_t count_ = 0;
    };

    using Slots = std::vector<std::uint32_t>;

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
        return entry.hash == hash && entry.key() == key;
    }

    std::uint32_t positionOfKey(std::string_view key) const noexcept {
        const std::uint32_t hash = byKey_.empty() ? 0 : hashOf(key);
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

    // Empties the position's slot and moves up what would not be found after an empty one.
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
        if (byKey_.empty()) {
            for (std::size_t position = 0; position < entries_.size(); ++position) {
                entries_[position].hash = hashOf(entries_[position].key());
            }
        }
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

    Entries entries_;
    // Each has room for twice as many positions as there are.
    Slots byKey_;
    Slots byElement_;
    // The entry after the one found last.
    mutable std::uint32_t expected_ = 0;
};

}  // namespace quorvane
