#include "quorvane/support/CStringList.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>
#include <vector>

#include "quorvane/base/collections/listPosition.h"
#include "quorvane/base/collections/quicksort.h"
#include "quorvane/base/platform/RandomNumbers.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/base/text/wildcards.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/support/CIsisStringCompare.h"
#include "quorvane/support/published.h"

namespace quorvane {

void CStringList::Remove(const Value& Index) {
    erase(published([&] { return require(Index); }));
}

const std::string& CStringList::Item(const Value& Index) const {
    return entries_[published([&] { return require(Index); })].text;
}

void CStringList::setItem(const Value& Index, std::string item) {
    entries_[published([&] { return require(Index); })].text = std::move(item);
}

std::int32_t CStringList::Index(std::string_view Key) const {
    const std::optional<std::size_t> keyed = find(Key);
    if (!keyed) {
        return notFound;
    }
    const auto first = std::find_if(
        entries_.begin(), entries_.end(),
        [&text = entries_[*keyed].text](const Entry& entry) { return entry.text == text; });
    return static_cast<std::int32_t>(first - entries_.begin()) + 1;
}

bool CStringList::add(std::string Item, const Value& Key, const Value& Before, const Value& After) {
    Entry entry{std::move(Item), std::nullopt};
    if (!Key.isAbsent()) {
        if (!Key.isText() || find(Key)) {
            return false;
        }
        entry.key = lowerCase(Key.text());
    }
    const std::optional<std::size_t> place = placeFor(Before, After);
    if (!place) {
        return false;
    }
    insert(*place, std::move(entry));
    return true;
}

bool CStringList::AddTail(std::string Item, const Value& Key) {
    return add(std::move(Item), Key);
}

bool CStringList::AddHead(std::string Item, const Value& Key) {
    return IsEmpty() ? add(std::move(Item), Key) : add(std::move(Item), Key, 1);
}

void CStringList::removeTail() {
    if (!IsEmpty()) {
        erase(entries_.size() - 1);
    }
}

void CStringList::RemoveHead() {
    if (!IsEmpty()) {
        erase(0);
    }
}

void CStringList::Sort(const IStringCompare& Comparer) {
    std::vector<std::uint32_t> order(entries_.size());
    std::iota(order.begin(), order.end(), 0u);
    const auto compare = [&](std::uint32_t a, std::uint32_t b) {
        const std::int32_t result = Comparer.comp(entries_[a].text, entries_[b].text);
        return result != 0 ? result : a < b ? -1 : 1;
    };
    RandomNumbers random;
    quicksort(order.begin(), order.end(), compare, [&random](std::ptrdiff_t count) {
        return random.between(0, static_cast<std::int32_t>(count - 1));
    });

    std::deque<Entry> sorted;
    for (const std::uint32_t place : order) {
        if (const auto& key = entries_[place].key) {
            ordinals_[*key] = ordinalOf(sorted.size());
        }
        sorted.push_back(std::move(entries_[place]));
    }
    entries_ = std::move(sorted);
}

void CStringList::SortBySubField(std::string_view SubField) {
    CIsisStringCompare comparer;
    comparer.Create(std::string(SubField));
    Sort(comparer);
}

void CStringList::nAppend(const CStringList& Other) {
    const std::size_t count = Other.entries_.size();
    for (std::size_t place = 0; place < count; ++place) {
        AddTail(Other.entries_[place].text);
    }
}

std::string CStringList::ConCat(std::string_view Separator) const {
    std::size_t size = Separator.size() * entries_.size();
    for (const Entry& entry : entries_) {
        size += entry.text.size();
    }
    std::string joined;
    joined.reserve(size);
    for (const Entry& entry : entries_) {
        if (&entry != &entries_.front()) {
            joined += Separator;
        }
        joined += entry.text;
    }
    joined.resize(std::min(joined.find('\0'), joined.size()));
    return joined;
}

std::int32_t CStringList::Find(std::string_view Pattern) const {
    const auto found = published([&] {
        const WildcardPattern pattern(Pattern);
        return std::find_if(entries_.begin(), entries_.end(),
                            [&pattern](const Entry& entry) { return pattern.matches(entry.text); });
    });
    if (found == entries_.end()) {
        return notFound;
    }
    return static_cast<std::int32_t>(found - entries_.begin()) + 1;
}

void CStringList::clear() {
    *this = CStringList();
}

std::optional<std::size_t> CStringList::find(const Value& index) const {
    if (index.isText()) {
        const auto found = ordinals_.find(lowerCase(index.text()));
        if (found == ordinals_.end()) {
            return std::nullopt;
        }
        return static_cast<std::size_t>(found->second - firstOrdinal_);
    }
    if (!index.isNumber()) {
        return std::nullopt;
    }
    const std::size_t position = listPosition(index.number(), entries_.size());
    return position == 0 ? std::nullopt : std::optional(position - 1);
}

std::size_t CStringList::require(const Value& index) const {
    if (!index.isText() && !index.isNumber()) {
        raise(RunTimeError::TypeMismatch);
    }
    const std::optional<std::size_t> place = find(index);
    if (!place) {
        raise(RunTimeError::InvalidProcedureCall);
    }
    return *place;
}

std::optional<std::size_t> CStringList::placeFor(const Value& before, const Value& after) const {
    if (before.isAbsent() && after.isAbsent()) {
        return entries_.size();
    }
    if (!before.isAbsent() && !after.isAbsent()) {
        return std::nullopt;
    }
    if (after.isAbsent()) {
        return find(before);
    }
    const std::optional<std::size_t> place = find(after);
    return place ? std::optional(*place + 1) : std::nullopt;
}

void CStringList::insert(std::size_t place, Entry entry) {
    charSize_ = static_cast<std::int32_t>(
        std::min(static_cast<std::size_t>(charSize_) + characterCount(entry.text),
                 static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())));
    if (place == 0) {
        --firstOrdinal_;
    } else if (place < entries_.size()) {
        shiftKeys(ordinalOf(place), 1);
    }
    if (entry.key) {
        ordinals_.emplace(*entry.key, ordinalOf(place));
    }
    entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(place), std::move(entry));
}

void CStringList::erase(std::size_t place) {
    const auto erased = entries_.begin() + static_cast<std::ptrdiff_t>(place);
    if (erased->key) {
        ordinals_.erase(*erased->key);
    }
    if (place == 0) {
        ++firstOrdinal_;
    } else if (place + 1 < entries_.size()) {
        shiftKeys(ordinalOf(place + 1), -1);
    }
    entries_.erase(erased);
}

std::int64_t CStringList::ordinalOf(std::size_t place) const {
    return firstOrdinal_ + static_cast<std::int64_t>(place);
}

void CStringList::shiftKeys(std::int64_t from, std::int64_t distance) {
    for (auto& [key, ordinal] : ordinals_) {
        if (ordinal >= from) {
            ordinal += distance;
        }
    }
}

}  // namespace quorvane
