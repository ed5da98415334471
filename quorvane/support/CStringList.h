#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "quorvane/base/values/TextCollection.h"
#include "quorvane/base/values/Value.h"
#include "quorvane/support/IStringCompare.h"

namespace quorvane {

/// Strings in an order of their own, some of them with a key. Positions count from 1; keys compare
/// without regard to case. Where an element is asked for by a `Value`, a text is its key and a
/// number, rounded half to even, its position. Adding and removing at either end and finding by
/// position or key take the same time however long the list is.
class CStringList : public TextCollection {
    struct Entry {
        std::string text;
        /// In lower case; nothing for an element without a key.
        std::optional<std::string> key;
    };

public:
    /// The strings of a list, as a range.
    class Strings {
    public:
        class Iterator {
        public:
            const std::string& operator*() const { return position_->text; }
            Iterator& operator++() {
                ++position_;
                return *this;
            }
            bool operator==(const Iterator&) const = default;

        private:
            friend class Strings;
            explicit Iterator(const std::deque<Entry>::const_iterator& position)
                : position_(position) {}
            std::deque<Entry>::const_iterator position_;
        };

        Iterator begin() const { return Iterator(entries_->begin()); }
        Iterator end() const { return Iterator(entries_->end()); }

    private:
        friend class CStringList;
        explicit Strings(const std::deque<Entry>& entries) : entries_(&entries) {}
        const std::deque<Entry>* entries_;
    };

    /// What `Index` and `Find` answer for what the list does not hold.
    static constexpr std::int32_t notFound = -1;

    std::int32_t Count() const override { return static_cast<std::int32_t>(entries_.size()); }

    /// Removes an element. Error 5 when there is none of that key or position, error 13 when the
    /// index is neither a text nor a number.
    void Remove(const Value& Index);

    /// The string, which is good until the list is changed. Errors as `Remove`.
    const std::string& Item(const Value& Index) const override;

    /// Replaces the string; its key and its place stay, and so does `CharSize`. Errors as `Remove`.
    void setItem(const Value& Index, std::string item);

    /// The first position whose string equals the one stored under the key; -1 when the key is
    /// absent.
    std::int32_t Index(std::string_view Key) const;

    /// Adds a string at the end, or before or after the element that `Before` or `After` names.
    /// A `Key`, `Before` or `After` that is missing or Empty was not given. Raises nothing: the
    /// answer is false, and the list as it was, when the key is present or no text, when `Before`
    /// or `After` names no element, or when both are given.
    bool add(std::string Item, const Value& Key = Missing{}, const Value& Before = Missing{},
             const Value& After = Missing{});

    /// The strings in order, for a loop over all of them. The list must outlive the loop.
    Strings NewEnum() const& { return Strings(entries_); }
    Strings NewEnum() const&& = delete;

    /// Adds a string at the end. Returns what `add` returns.
    bool AddTail(std::string Item, const Value& Key = Missing{});

    /// Adds a string at position 1. Returns what `add` returns.
    bool AddHead(std::string Item, const Value& Key = Missing{});

    /// Removes the last element, if there is one.
    void removeTail();

    /// Removes the first element, if there is one.
    void RemoveHead();

    /// The last string, which is good until the list is changed. Error 5 when the list is empty.
    const std::string& GetTail() const { return Item(Count()); }

    /// The first string, which is good until the list is changed. Error 5 when the list is empty.
    const std::string& GetHead() const { return Item(1); }

    /// Sorts the list. Strings that the comparer finds equal keep their order, and every string
    /// keeps its key. When the comparer throws, the list is as it was.
    void Sort(const IStringCompare& Comparer);

    /// Sorts records by the subfield of that code, without regard to case; for an empty code by the
    /// whole strings.
    void SortBySubField(std::string_view SubField);

    /// Adds all strings of another list at the end, without their keys. The other list may be this
    /// one.
    void nAppend(const CStringList& Other);

    /// The strings, joined with the separator between them, up to the first character of code 0.
    std::string ConCat(std::string_view Separator) const;

    /// The position of the first string that fits the pattern, -1 when none does. Error 5 for a
    /// pattern that is none (see `WildcardPattern`).
    std::int32_t Find(std::string_view Pattern) const;

    /// Removes all elements and sets `CharSize` to 0.
    void clear();

    bool IsEmpty() const { return entries_.empty(); }

    /// Number of characters of all strings that were ever added since the last `clear`; removing a
    /// string does not reduce it. It stays at 2,147,483,647 when there were more.
    std::int32_t CharSize() const { return charSize_; }

private:
    /// The 0-based place of the element that the index names; nothing when it names none.
    std::optional<std::size_t> find(const Value& index) const;
    /// The same, with the errors of `Remove`.
    std::size_t require(const Value& index) const;
    /// Where a new element goes; nothing when there is no such place.
    std::optional<std::size_t> placeFor(const Value& before, const Value& after) const;
    void insert(std::size_t place, Entry entry);
    void erase(std::size_t place);
    std::int64_t ordinalOf(std::size_t place) const;
    void shiftKeys(std::int64_t from, std::int64_t distance);

    std::deque<Entry> entries_;
    // Keys name elements by ordinals. The first element's changes when elements come or go before
    // it, so that the others' need not.
    std::unordered_map<std::string, std::int64_t> ordinals_;
    std::int64_t firstOrdinal_ = 0;
    std::int32_t charSize_ = 0;
};

}  // namespace quorvane
