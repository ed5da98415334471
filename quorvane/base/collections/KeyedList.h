#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
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
        if (!hasBlock()) {
            return nullptr;
        }
        if (block()->isNumbered) {
            if (Element* element = block()->findNumber(numberOfKey(key))) {
                return element;
            }
        }
        return block()->keys ? block()->keys->find(key) : nullptr;
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
        // A number whose decimal text is the key; 0 for none.
        std::uint32_t number = 0;
        // True when all elements have numbers, and smaller ones.
        bool isNext = false;
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

    /// The place at the end for an element that has the decimal text of a number from 1 to
    /// 999,999,999 as its key. Error 457 when the key is there already. In a list whose elements
    /// are all added with ascending numbers, a key costs next to nothing.
    Place placeForNumber(std::uint32_t number) const {
        const bool isNext = canTakeNumber(number);
        if (!isNext) {
            requireNewKey(std::to_string(number));
        }
        return {count() + 1, std::nullopt, number, isNext};
    }

    /// Puts the element at a place that `placeFor` or `placeForNumber` returned.
    void insert(const Place& place, Ref<Element> element) {
        if (place.isNext) {
            insertNumbered(place.number, std::move(element));
            return;
        }
        if (isLongNumbered()) {
            fileNumbers();
        }
        requireRoomFor(place);
        if (place.number != 0) {
            keyIndex().add(std::to_string(place.number), element.get());
        } else if (place.key) {
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
        if (isLongNumbered()) {
            fileNumbers();
        }
        keyIndex().add(key, element.get());
        Element*& slot = block()->slots()[block()->first + position - 1];
        if (block()->isNumbered) {
            block()->numbers()[block()->first + position - 1] = 0;
        }
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
    static constexpr std::size_t smallestBlock = 4;
    // So many numbers are searched one by one. In a longer list they are all there, in ascending
    // order.
    static constexpr std::uint32_t fewNumbers = 64;

    struct Block {
        std::uint32_t capacity : 31;
        // True when the elements may have numbers as keys, which follow the slots; 0 for none.
        std::uint32_t isNumbered : 1;
        std::uint32_t first = 0;
        std::uint32_t count = 0;
        // An element's slot less this is where it stands here. Moving all elements together changes
        // only this number; those that are moved up singly keep their old slots until a search
        // finds too much out of place.
        std::uint32_t origin = 0;
        std::unique_ptr<KeyIndex<Element>> keys;

        Block(std::uint32_t slotCount, bool numbered)
            : capacity(slotCount & INT32_MAX), isNumbered(numbered) {}

        Element** slots() noexcept { return reinterpret_cast<Element**>(this + 1); }
        std::uint32_t* numbers() noexcept {
            return reinterpret_cast<std::uint32_t*>(slots() + capacity);
        }
        std::uint32_t& lastNumber() noexcept { return numbers()[first + count - 1]; }

        static Block* create(std::size_t slotCount, bool numbered) {
            if (slotCount > INT32_MAX) {
                raise(RunTimeError::Overflow);
            }
            const std::size_t slotSize = sizeof(Element*) + (numbered ? sizeof(std::uint32_t) : 0);
            void* memory = ::operator new(sizeof(Block) + slotCount * slotSize);
            return new (memory) Block(static_cast<std::uint32_t>(slotCount), numbered);
        }

        Element* findNumber(std::uint32_t number) noexcept {
            const std::uint32_t* begin = numbers() + first;
            const std::uint32_t* end = begin + count;
            const std::uint32_t* found = count > fewNumbers ? std::lower_bound(begin, end, number)
                                                            : std::find(begin, end, number);
            return number == 0 || found == end || *found != number ? nullptr
                                                                   : slots()[found - numbers()];
        }

        // True when no element has another key or none.
        bool allAreNumbered() noexcept {
            const std::uint32_t* begin = numbers() + first;
            return std::find(begin, begin + count, 0U) == begin + count;
        }

        // Moves elements with their numbers, from one slot on to another.
        void move(std::uint32_t from, std::uint32_t to, std::uint32_t length) noexcept {
            std::memmove(slots() + to, slots() + from, length * sizeof(Element*));
            if (isNumbered) {
                std::memmove(numbers() + to, numbers() + from, length * sizeof(std::uint32_t));
            }
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
            move(first, newFirst, count);
            origin += first - newFirst;
            first = newFirst;
        }

        // There must be room on the side that opens.
        void openSlot(std::size_t index, Element* element) noexcept {
            const auto position = static_cast<std::uint32_t>(index);
            if (opensAtFront(index)) {
                move(first, first - 1, position);
                --first;
            } else {
                move(first + position, first + position + 1, count - position);
            }
            ++count;
            slots()[first + position] = element;
            if (isNumbered) {
                numbers()[first + position] = 0;
            }
            element->slot_ = origin + first + position;
        }

        Element* closeSlot(std::size_t index) noexcept {
            const auto position = static_cast<std::uint32_t>(index);
            Element* element = slots()[first + position];
            if (position < count - position - 1) {
                move(first, first + 1, position);
                ++first;
            } else {
                move(first + position + 1, first + position, count - position - 1);
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

    // The number whose decimal text a key is; 0 for any other key.
    static std::uint32_t numberOfKey(std::string_view key) noexcept {
        std::uint32_t number = 0;
        const auto [end, error] = std::from_chars(key.data(), key.data() + key.size(), number);
        const bool isDecimal = error == std::errc() && end == key.data() + key.size();
        return isDecimal && key.front() != '0' ? number : 0;
    }

    bool canTakeNumber(std::uint32_t number) const noexcept {
        if (!hasBlock()) {
            return !only_;
        }
        return block()->isNumbered && !block()->keys && block()->lastNumber() != 0 &&
               block()->lastNumber() < number &&
               (block()->count != fewNumbers || block()->allAreNumbered());
    }

    // True when an element without a number cannot be added.
    bool isLongNumbered() const noexcept {
        return hasBlock() && block()->isNumbered && block()->count >= fewNumbers;
    }

    void insertNumbered(std::uint32_t number, Ref<Element> element) {
        if (!hasBlock()) {
            setBlock(Block::create(smallestBlock, true));
        } else if (!block()->hasRoom(false)) {
            grow(false);
        }
        block()->openSlot(block()->count, element.detach());
        block()->lastNumber() = number;
    }

    // Files the numbers as all other keys are filed. A failure changes nothing.
    void fileNumbers() {
        KeyIndex<Element>& keys = keyIndex();
        const std::uint32_t first = block()->first;
        std::uint32_t next = first;
        try {
            for (; next < first + block()->count; ++next) {
                if (const std::uint32_t number = block()->numbers()[next]; number != 0) {
                    keys.add(std::to_string(number), block()->slots()[next]);
                }
            }
        } catch (...) {
            while (next-- > first) {
                if (block()->numbers()[next] != 0) {
                    keys.remove(block()->slots()[next]);
                }
            }
            throw;
        }
        block()->isNumbered = false;
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
        if (!hasBlock() && !only_ && !place.key && place.number == 0) {
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
        if (!hasBlock()) {
            Block* fresh = Block::create(smallestBlock, false);
            if (only_) {
                fresh->openSlot(0, only_);
            }
            setBlock(fresh);
        }
    }

    // All the new room goes to the end that is growing.
    void grow(bool atFront) {
        Block* old = block();
        Block* fresh =
            Block::create(std::size_t{old->capacity} + old->capacity / 2, old->isNumbered);
        fresh->first = atFront ? fresh->capacity - old->count : 0;
        fresh->count = old->count;
        fresh->origin = old->origin + old->first - fresh->first;
        fresh->keys = std::move(old->keys);
        std::memcpy(fresh->slots() + fresh->first, old->slots() + old->first,
                    old->count * sizeof(Element*));
        if (old->isNumbered) {
            std::memcpy(fresh->numbers() + fresh->first, old->numbers() + old->first,
                        old->count * sizeof(std::uint32_t));
        }
        Block::destroy(old);
        setBlock(fresh);
    }

    Element* only_ = nullptr;
};

}  // namespace quorvane
