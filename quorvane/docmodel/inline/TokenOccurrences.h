#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "quorvane/docmodel/inline/BracketSegments.h"

namespace quorvane {

/// Finds where a token is in a text: from the left to the right, each occurrence after the end of
/// the one before.
///
/// A token is compared with the text around the segments that are equal to one of its own, the
/// rarest that it has. Where even that one is so common that the comparisons would take longer than
/// one pass over all segments, they are given up and the pass is made.
template <class Character>
class TokenOccurrences {
public:
    using Segments = BracketSegments<Character>;
    using Id = typename Segments::Id;

    /// A token's place: the segments that begin with its "<", hold its first "=" and begin with its
    /// ">".
    struct Place {
        Id first;
        Id equals;
        Id last;
    };

    TokenOccurrences(const Segments& segments, const Place& token)
        : segments_(segments), token_(token) {}

    std::vector<Place> find() const {
        std::vector<Place> all;
        const Id own = rarestSegment();
        const auto& similar = segments_.similarTo(own);
        std::size_t comparisonsLeft = segments_.brackets() + 1;
        for (auto other = similar.begin(); other != similar.end();) {
            const std::optional<Place> found = placeAround(own, *other, comparisonsLeft);
            if (comparisonsLeft == 0) {
                return findInOnePass();
            }
            if (found && (all.empty() || segments_.isBefore(all.back().last, found->first))) {
                all.push_back(*found);
                other = similar.upper_bound(found->last);
            } else {
                ++other;
            }
        }
        return all;
    }

private:
    /// A segment of the token to which few are similar, if it has one. Otherwise the one with the
    /// fewest among its first and its last segments.
    Id rarestSegment() const {
        if (const Id rare = segments_.rareSegment(token_.first, token_.last);
            rare != Segments::none) {
            return rare;
        }
        constexpr int samples = 64;
        Id rarest = token_.first;
        const auto consider = [&](Id segment) {
            if (segments_.similarTo(segment).size() < segments_.similarTo(rarest).size()) {
                rarest = segment;
            }
        };
        Id segment = token_.first;
        for (int i = 0; i < samples && segment != token_.last; ++i) {
            consider(segment);
            segment = segments_.next(segment);
        }
        segment = token_.last;
        for (int i = 0; i < samples && segment != token_.first; ++i) {
            segment = segments_.previous(segment);
            consider(segment);
        }
        return rarest;
    }

    /// The occurrence of the token in which the segment `other` is in the place of the token's
    /// `own`, if there is one. With no comparisons left the search is over.
    std::optional<Place> placeAround(Id own, Id other, std::size_t& comparisonsLeft) const {
        if (other == own) {
            return token_;
        }
        Place place{.first = other, .equals = other, .last = other};
        for (Id segment = own; segment != token_.first;) {
            segment = segments_.previous(segment);
            place.first = segments_.previous(place.first);
            if (--comparisonsLeft == 0 || !segments_.areEqual(segment, place.first)) {
                return std::nullopt;
            }
            if (segment == token_.equals) {
                place.equals = place.first;
            }
        }
        // At the end of the text this compares with the beginning, which equals no other segment.
        for (Id segment = own; segment != token_.last; segment = segments_.next(segment)) {
            if (--comparisonsLeft == 0 || !segments_.areEqual(segment, place.last)) {
                return std::nullopt;
            }
            if (segment == token_.equals) {
                place.equals = place.last;
            }
            place.last = segments_.next(place.last);
        }
        return beginsWithClosing(place.last) ? std::optional(place) : std::nullopt;
    }

    bool beginsWithClosing(Id segment) const {
        return segments_[segment].starts_with(Character{'>'});
    }

    /// The algorithm of Knuth, Morris and Pratt.
    std::vector<Place> findInOnePass() const {
        std::vector<Id> token;
        std::size_t equalsIndex = 0;
        for (Id segment = token_.first; segment != token_.last; segment = segments_.next(segment)) {
            if (segment == token_.equals) {
                equalsIndex = token.size();
            }
            token.push_back(segment);
        }
        const std::vector<std::size_t> borders = bordersOf(token);
        std::vector<Place> all;
        std::vector<Id> passed;
        std::size_t matched = 0;
        for (Id segment = segments_.next(Segments::beginning); segment != Segments::none;
             segment = segments_.next(segment)) {
            if (matched == token.size() && beginsWithClosing(segment)) {
                const std::size_t first = passed.size() - matched;
                all.push_back({passed[first], passed[first + equalsIndex], segment});
                matched = 0;
            } else {
                matched = matchedWith(segment, token, borders, matched);
            }
            passed.push_back(segment);
        }
        return all;
    }

    /// For each beginning of the token, how many of its first segments are also its last ones.
    std::vector<std::size_t> bordersOf(const std::vector<Id>& token) const {
        std::vector<std::size_t> borders{0, 0};
        for (std::size_t i = 1; i < token.size(); ++i) {
            borders.push_back(matchedWith(token[i], token, borders, borders.back()));
        }
        return borders;
    }

    /// How many of the token's first segments end with this segment, when `matched` of them end
    /// before it.
    std::size_t matchedWith(Id segment, const std::vector<Id>& token,
                            const std::vector<std::size_t>& borders, std::size_t matched) const {
        if (matched == token.size()) {
            matched = borders[matched];
        }
        while (matched > 0 && !segments_.areEqual(segment, token[matched])) {
            matched = borders[matched];
        }
        return segments_.areEqual(segment, token[matched]) ? matched + 1 : matched;
    }

    const Segments& segments_;
    Place token_;
};

}  // namespace quorvane
