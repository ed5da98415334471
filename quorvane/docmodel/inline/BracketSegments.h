#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "quorvane/docmodel/inline/inlineToken.h"

namespace quorvane {

/// A text as a list of segments, each of which begins with a "<" or ">" and ends before the next
/// one. The segments know which others are equal to them, so that a replacement everywhere in the
/// text looks only at the places where it can be.
template <class Character>
class BracketSegments {
public:
    using Text = std::basic_string<Character>;
    using View = std::basic_string_view<Character>;

    /// Names a segment until it is replaced.
    using Id = std::uint32_t;

    /// The segment before the first bracket. It may be empty and is never replaced.
    static constexpr Id beginning = 0;
    /// What follows the last segment. It is equal to `beginning`, which follows no segment.
    static constexpr Id none = 0;

    struct ByOrder {
        const BracketSegments* segments;
        bool operator()(Id left, Id right) const { return segments->isBefore(left, right); }
    };

    /// Segments in the order of the text.
    using Ordered = std::set<Id, ByOrder>;

    explicit BracketSegments(View text) {
        segments_.reserve(
            1 + static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isBracket)));
        segments_.emplace_back();
        append(beginning, text);
    }

    BracketSegments(const BracketSegments&) = delete;
    BracketSegments& operator=(const BracketSegments&) = delete;

    const Text& operator[](Id segment) const { return segments_[segment].text; }
    Id next(Id segment) const { return segments_[segment].next; }
    Id previous(Id segment) const { return segments_[segment].previous; }

    bool isBefore(Id left, Id right) const {
        return segments_[left].order < segments_[right].order;
    }

    bool areEqual(Id left, Id right) const {
        return segments_[left].similar == segments_[right].similar &&
               segments_[left].text == segments_[right].text;
    }

    /// The segments whose texts have the same hash, most often the equal ones. Not for the
    /// beginning.
    const Ordered& similarTo(Id segment) const { return *segments_[segment].similar; }

    /// A segment from the first on and before the end to which few are similar; `none` when there
    /// is no such segment.
    Id rareSegment(Id first, Id end) const {
        const auto rare = rare_.lower_bound(first);
        return rare != rare_.end() && isBefore(*rare, end) ? *rare : none;
    }

    std::size_t brackets() const noexcept { return segments_.size() - unused_.size() - 1; }

    /// How many characters were put in, those of the original text included.
    std::uint64_t written() const noexcept { return written_; }

    /// Replaces the segments from the first to the last one by a text. What it has before its first
    /// bracket becomes part of the segment before.
    void replace(Id first, Id last, View text) {
        const Id left = previous(first);
        const Id right = next(last);
        for (Id segment = first; segment != right; segment = next(segment)) {
            size_ -= segments_[segment].text.size();
            removeFromIndex(segment);
            unused_.push_back(segment);
        }
        link(left, right);
        append(left, text);
    }

    Text text() const {
        Text all;
        all.reserve(size_);
        for (Id segment = beginning;;) {
            all += segments_[segment].text;
            segment = next(segment);
            if (segment == none) {
                return all;
            }
        }
    }

private:
    struct Segment {
        Text text;
        std::uint64_t hash = 14695981039346656037U;
        /// Grows from segment to segment, with room for others between them.
        std::uint64_t order = 0;
        Id previous = none;
        Id next = none;
        Ordered* similar = nullptr;
    };

    /// Adds a text to the end of a segment; from its first bracket on it makes segments of its own.
    void append(Id segment, View text) {
        size_ += text.size();
        written_ += text.size();
        std::size_t end = nextBracket(text, 0);
        removeFromIndex(segment);
        extend(segment, text.substr(0, end));
        addToIndex(segment);
        while (end < text.size()) {
            const std::size_t start = end;
            end = nextBracket(text, start + 1);
            segment = insertAfter(segment, text.substr(start, end - start));
        }
    }

    static std::size_t nextBracket(View text, std::size_t from) {
        constexpr std::array brackets{Character{'<'}, Character{'>'}};
        return std::min(text.find_first_of(brackets.data(), from, brackets.size()), text.size());
    }

    void extend(Id segment, View text) {
        constexpr std::uint64_t prime = 1099511628211U;
        segments_[segment].text += text;
        for (const Character character : text) {
            segments_[segment].hash ^= static_cast<std::uint64_t>(character);
            segments_[segment].hash *= prime;
        }
    }

    Id insertAfter(Id left, View text) {
        const Id segment = newSegment();
        const Id right = next(left);
        link(left, segment);
        link(segment, right);
        setOrder(segment);
        extend(segment, text);
        addToIndex(segment);
        return segment;
    }

    Id newSegment() {
        if (unused_.empty()) {
            segments_.emplace_back();
            return static_cast<Id>(segments_.size() - 1);
        }
        const Id segment = unused_.back();
        unused_.pop_back();
        segments_[segment] = Segment();
        return segment;
    }

    void link(Id left, Id right) {
        segments_[left].next = right;
        if (right != none) {
            segments_[right].previous = left;
        }
    }

    /// Gives a new segment its order. It stays close to the segment before, since the next one is
    /// most often inserted after it.
    void setOrder(Id segment) {
        constexpr std::uint64_t maxDistance = std::uint64_t{1} << 32U;
        constexpr std::uint64_t share = 64;
        const std::uint64_t left = segments_[previous(segment)].order;
        const std::uint64_t right = next(segment) == none
                                        ? std::numeric_limits<std::uint64_t>::max()
                                        : segments_[next(segment)].order;
        const std::uint64_t room = right - left;
        if (room > 1) {
            segments_[segment].order =
                left + std::clamp(room / share, std::uint64_t{1}, maxDistance);
        } else {
            spreadOrder();
        }
    }

    void spreadOrder() {
        const std::uint64_t room =
            std::numeric_limits<std::uint64_t>::max() / (segments_.size() + 1);
        std::uint64_t order = 0;
        for (Id segment = next(beginning); segment != none; segment = next(segment)) {
            segments_[segment].order = order += room;
        }
    }

    void addToIndex(Id segment) {
        if (segment == beginning) {
            return;
        }
        Ordered& similar =
            similar_.try_emplace(segments_[segment].hash, ByOrder{this}).first->second;
        segments_[segment].similar = &similar;
        similar.insert(similar.end(), segment);
        if (similar.size() <= maxRare) {
            rare_.insert(rare_.end(), segment);
        } else if (similar.size() == maxRare + 1) {
            for (const Id common : similar) {
                rare_.erase(common);
            }
        }
    }

    void removeFromIndex(Id segment) {
        if (segment == beginning) {
            return;
        }
        Ordered& similar = *segments_[segment].similar;
        similar.erase(segment);
        if (similar.size() < maxRare) {
            rare_.erase(segment);
        } else if (similar.size() == maxRare) {
            rare_.insert(similar.begin(), similar.end());
        }
        if (similar.empty()) {
            similar_.erase(segments_[segment].hash);
        }
    }

    std::vector<Segment> segments_;
    // Those that were replaced.
    std::vector<Id> unused_;
    // By the hash of the text.
    std::unordered_map<std::uint64_t, Ordered> similar_;
    static constexpr std::size_t maxRare = 4;
    // The segments of all sets of at most `maxRare`.
    Ordered rare_{ByOrder{this}};
    std::size_t size_ = 0;
    std::uint64_t written_ = 0;
};

}  // namespace quorvane
