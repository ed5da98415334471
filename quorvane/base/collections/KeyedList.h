#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

#include "quorvane/base/collections/KeyIndex.h"
#include "quorvane/base/collections/listPosition.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/base/values/Value.h"

namespace quorvane {

/// What an element of a `KeyedList` carries for its list: a hint where it stands.
class KeyedListElement {
private:
    template <class Element>
    friend class KeyedList;
    std::uint32_t slot_ = 0;
};

/// The ordered list behind the object model's collections: 1-based positions, optional unique keys
/// that are compared without regard to case, insertion before or after a position or key. It holds
/// its elements strongly.
///
/// Adding and removing at both ends, looking up by position or by key, and finding the position of
/// an element do not depend on how many elements there are; in the middle, one side is moved up.
///
/// The list itself is one pointer, because a document has millions of them and most hold a single
/// paragraph: none, the one element itself, or (marked by the lowest bit) a block of slots with
/// room at both ends.
template <class Element>
class KeyedList {
public:
    KeyedList() = default;
    KeyedList(const KeyedList&) = delete;
    KeyedList& operator=(const KeyedList&) = delete;
    KeyedList(KeyedList&& other) noexcept : only_(std::exchange(other.only_, nullptr)) {}
    KeyedList& operator=(KeyedList&& other) noexcept {
        KeyedList emptied(std::move(other));
        std::swap(only_, emptied.only_);
        return *this;
    }
    ~KeyedList() { clear(); }

    std::size_t count() const noexcept {
        if (hasBlock()) {
            return block()->count;
        }
        return only_ ? 1 : 0;
    }

    /// The elements in order; good until the list changes.
    Element* const* begin() const noexcept {
        return hasBlock() ? block()->slots() + block()->first : &only_;
    }
    Element* const* end() const noexcept { return begin() + count(); }

    /// The element at a 1-based position, which must be there.
    Element& at(std::size_t position) const noexcept { return *begin()[position - 1]; }

    /// The element filed under the key, or null.
    Element* find(std::string_view key) const {
        return hasBlock() && block()->keys ? block()->keys->find(key) : nullptr;
    }

    /// 1-based position of the element; 0 when it is not in the list.
    std::size_t positionOf(const Element& element) const noexcept {
        if (!hasBlock()) {
            return only_ == &element ? 1 : 0;
        }
        return block()->positionOf(element);
    }

    /// 1-based position of the element. Error 5 when it is not in the list.
    std::size_t requiredPositionOf(const Element& element) const {
        return required(positionOf(element));
    }

    /// Position that an index names: a text is a key, a number a position (halves to even).
    /// Errors: 5 unknown key or position, 13 anything else.
    std::size_t positionOfIndex(const Value& index) const {
        if (!index.isText() && !index.isNumber()) {
            raise(RunTimeError::TypeMismatch);
        }
        return existingPosition(index);
    }

    /// Where and under which key a new element goes.
    struct Place {
        std::size_t position;
        std::optional<std::string_view> key;
    };

    /// Checks the arguments of an insertion: first the type of the key (error 13), then the
    /// position (error 5), then whether the key is there already (error 457). The key is a view of
    /// the argument.
    Place placeFor(const Value& key, const Value& before, const Value& after) const {
        Place place{count() + 1, std::nullopt};
        if (!key.isAbsent()) {
            if (!key.isText()) {
                raise(RunTimeError::TypeMismatch);
            }
            place.key = key.text();
        }
        if (!before.isAbsent() && !after.isAbsent()) {
            raise(RunTimeError::InvalidProcedureCall);
        }
        if (!before.isAbsent()) {
            place.position = existingPosition(before);
        } else if (!after.isAbsent()) {
            place.position = existingPosition(after) + 1;
        }
        requireNewKey(place.key);
        return place;
    }

    /// Puts the element at a place that `placeFor` returned.
    void insert(const Place& place, Ref<Element> element) {
        requireRoomFor(place);
        if (place.key) {
            keyIndex().add(*place.key, element.get());
        }
        if (!hasBlock()) {
            only_ = element.detach();
            return;
        }
        block()->openSlot(place.position - 1, element.detach());
    }

    /// Removes the element at a 1-based position, which must be there, and returns it.
    Ref<Element> removeAt(std::size_t position) noexcept {
        if (!hasBlock()) {
            return Ref<Element>::adopt(std::exchange(only_, nullptr));
        }
        Element* element = block()->closeSlot(position - 1);
        if (block()->keys) {
            block()->keys->remove(element);
        }
        if (block()->count == 0) {
            clear();
        }
        return Ref<Element>::adopt(element);
    }

    /// Puts an element with a new key in the place of the one at a position. Error 457 when the key
    /// is there already, the replaced element's own included.
    void replaceAt(std::size_t position, Ref<Element> element, std::string_view key) {
        requireNewKey(key);
        requireBlock();
        keyIndex().add(key, element.get());
        Element*& slot = block()->slots()[block()->first + position - 1];
        element->slot_ = slot->slot_;
        block()->keys->remove(slot);
        Ref<Element>::adopt(std::exchange(slot, element.detach()));
    }

    void clear() noexcept {
        Element* held = std::exchange(only_, nullptr);
        if (isBlock(held)) {
            Block* block = blockOf(held);
            for (std::uint32_t i = 0; i < block->count; ++i) {
                release(block->slots()[block->first + i]);
            }
            Block::destroy(block);
        } else if (held) {
            release(held);
        }
    }

private:
    struct Block {
        std::uint32_t capacity;
        std::uint32_t first = 0;
        std::uint32_t count = 0;
        // An element's slot less this is where it stands here. Moving all elements together changes
        // only this number; those that are moved up singly keep their old slots until a search
        // finds too much out of place.
        std::uint32_t origin = 0;
        std::unique_ptr<KeyIndex<Element>> keys;

        explicit Block(std::uint32_t slotCount) : capacity(slotCount) {}

        Element** slots() noexcept { return reinterpret_cast<Element**>(this + 1); }

        static Block* create(std::size_t slotCount) {
            if (slotCount > UINT32_MAX / 2) {
                raise(RunTimeError::Overflow);
            }
            void* memory = ::operator new(sizeof(Block) + slotCount * sizeof(Element*));
            return new (memory) Block(static_cast<std::uint32_t>(slotCount));
        }

        static void destroy(Block* block) noexcept {
            block->~Block();
            ::operator delete(block);
        }

        // Where the element stands when it was not moved up singly; it may be anywhere.
        std::int64_t expectedIndex(const Element& element) const noexcept {
            return static_cast<std::int32_t>(element.slot_ - origin - first);
        }

        bool standsAt(std::int64_t index, const Element& element) noexcept {
            return index >= 0 && index < count && slots()[first + index] == &element;
        }

        // 1-based; 0 when the element is not here.
        std::size_t positionOf(const Element& element) noexcept {
            constexpr std::int64_t reach = 64;
            const std::int64_t expected = expectedIndex(element);
            for (std::int64_t distance = 0; distance <= reach; ++distance) {
                for (const std::int64_t index : {expected - distance, expected + distance}) {
                    if (standsAt(index, element)) {
                        return static_cast<std::size_t>(index) + 1;
                    }
                }
            }
            renumber();
            const std::int64_t index = expectedIndex(element);
            return standsAt(index, element) ? static_cast<std::size_t>(index) + 1 : 0;
        }

        void renumber() noexcept {
            for (std::uint32_t i = 0; i < count; ++i) {
                slots()[first + i]->slot_ = origin + first + i;
            }
        }

        // Elements are moved up on the side where they are fewer.
        bool opensAtFront(std::size_t index) const noexcept { return index < count - index; }

        bool hasRoom(bool atFront) const noexcept {
            return atFront ? first > 0 : first + count < capacity;
        }

        // Shares the free slots between both ends, the odd one for the end that needs it.
        void center(bool atFront) noexcept {
            const std::uint32_t free = capacity - count;
            const std::uint32_t newFirst = atFront ? (free + 1) / 2 : free / 2;
            std::memmove(slots() + newFirst, slots() + first, count * sizeof(Element*));
            origin += first - newFirst;
            first = newFirst;
        }

        // There must be room on the side that opens.
        void openSlot(std::size_t index, Element* element) noexcept {
            const auto position = static_cast<std::uint32_t>(index);
            Element** start = slots() + first;
            if (opensAtFront(index)) {
                std::memmove(start - 1, start, position * sizeof(Element*));
                --first;
            } else {
                std::memmove(start + position + 1, start + position,
                             (count - position) * sizeof(Element*));
            }
            ++count;
            slots()[first + position] = element;
            element->slot_ = origin + first + position;
        }

        Element* closeSlot(std::size_t index) noexcept {
            const auto position = static_cast<std::uint32_t>(index);
            Element** start = slots() + first;
            Element* element = start[position];
            if (position < count - position - 1) {
                std::memmove(start + 1, start, position * sizeof(Element*));
                ++first;
            } else {
                std::memmove(start + position, start + position + 1,
                             (count - position - 1) * sizeof(Element*));
            }
            --count;
            return element;
        }
    };

    static bool isBlock(Element* held) noexcept {
        return (reinterpret_cast<std::uintptr_t>(held) & 1U) != 0;
    }
    // An element's lowest bit marks a block, which only the pointer as a number shows.
    // NOLINTBEGIN(performance-no-int-to-ptr)
    static Block* blockOf(Element* held) noexcept {
        return reinterpret_cast<Block*>(reinterpret_cast<std::uintptr_t>(held) &
                                        ~std::uintptr_t{1});
    }
    bool hasBlock() const noexcept { return isBlock(only_); }
    Block* block() const noexcept { return blockOf(only_); }
    void setBlock(Block* block) noexcept {
        only_ = reinterpret_cast<Element*>(reinterpret_cast<std::uintptr_t>(block) | 1U);
    }
    // NOLINTEND(performance-no-int-to-ptr)

    KeyIndex<Element>& keyIndex() {
        if (!block()->keys) {
            block()->keys = std::make_unique<KeyIndex<Element>>();
        }
        return *block()->keys;
    }

    void requireNewKey(std::optional<std::string_view> key) const {
        if (key && find(*key)) {
            raise(RunTimeError::DuplicateKey);
        }
    }

    std::size_t existingPosition(const Value& index) const {
        std::size_t position = 0;
        if (index.isText()) {
            if (const Element* element = find(index.text())) {
                position = positionOf(*element);
            }
        } else if (index.isNumber()) {
            position = listPosition(index.number(), count());
        }
        return required(position);
    }

    static std::size_t required(std::size_t position) {
        if (position == 0) {
            raise(RunTimeError::InvalidProcedureCall);
        }
        return position;
    }

    // After this nothing that `insert` does can fail but filing the key.
    void requireRoomFor(const Place& place) {
        if (!hasBlock() && !only_ && !place.key) {
            return;
        }
        requireBlock();
        const bool atFront = block()->opensAtFront(place.position - 1);
        if (block()->hasRoom(atFront)) {
            return;
        }
        const std::uint32_t capacity = block()->capacity;
        // Centring pays only when it makes enough room to be seldom.
        if (block()->count <= capacity - capacity / 4) {
            block()->center(atFront);
        } else {
            grow(atFront);
        }
    }

    void requireBlock() {
        constexpr std::size_t smallestBlock = 4;
        if (!hasBlock()) {
            Block* fresh = Block::create(smallestBlock);
            if (only_) {
                fresh->openSlot(0, only_);
            }
            setBlock(fresh);
        }
    }

    // All the new room goes to the end that is growing.
    void grow(bool atFront) {
        Block* old = block();
        Block* fresh = Block::create(std::size_t{old->capacity} + old->capacity / 2);
        fresh->first = atFront ? fresh->capacity - old->count : 0;
        fresh->count = old->count;
        fresh->origin = old->origin + old->first - fresh->first;
        fresh->keys = std::move(old->keys);
        std::memcpy(fresh->slots() + fresh->first, old->slots() + old->first,
                    old->count * sizeof(Element*));
        Block::destroy(old);
        setBlock(fresh);
    }

    Element* only_ = nullptr;
};

}  // namespace quorvane
