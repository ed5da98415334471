#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quorvane {

/// A text with a mark on one "<" and one on a ">" behind it, in which what stands between the marks
/// is replaced wherever it stands. The marks move on by places that count from the text's beginning
/// as it is by then.
///
/// The text lies in segments, each from one bracket to the next, that know those of equal text: a
/// replacement touches only the segments where something is replaced. A walk over all brackets
/// takes time in proportion to the text (but for a logarithm), also when tokens reach over one
/// another, as long as each has a segment that at most a few are like. A token that reaches over
/// hundreds of segments, all of which repeat themselves elsewhere, takes time in proportion to the
/// text by itself.
template <class Character>
class BracketedText {
public:
    using Text = std::basic_string<Character>;
    using View = std::basic_string_view<Character>;

    static constexpr std::size_t nowhere = View::npos;
    static constexpr Character opening{'<'};
    static constexpr Character closing{'>'};

    static constexpr bool isBracket(Character character) {
        return character == opening || character == closing;
    }

    /// What stands between "<" and ">" is a token when it begins with a character from "A" to "z"
    /// (the six punctuation characters between the letters included) and an "=" follows.
    static constexpr bool beginsToken(Character character) {
        return character >= 'A' && character <= 'z';
    }

    struct Token {
        /// What stands in front of the first "=".
        Text name;
        /// Whether anything stands behind it.
        bool hasValue;
    };

    explicit BracketedText(View text) {
        segments_.reserve(
            1 + static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isBracket)));
        segments_.emplace_back();
        append(beginning, text);
    }

    BracketedText(const BracketedText&) = delete;
    BracketedText& operator=(const BracketedText&) = delete;

    /// How many characters were written, those of the text at first among them. What a replacement
    /// moves counts again.
    std::uint64_t written() const noexcept { return written_; }

    std::size_t brackets() const noexcept { return segments_.size() - unused_.size() - 1; }

    Text text() const {
        Text all;
        all.reserve(size_);
        for (Index segment = beginning;;) {
            all += segments_[segment].text;
            segment = segments_[segment].next;
            if (segment == none) {
                return all;
            }
        }
    }

    /// Moves the mark to the first "<" at a place or behind it, and tells where that is.
    std::size_t markOpening(std::size_t from) { return moveTo(opening_, opening, from); }

    /// Moves the mark to the first ">" at a place or behind it, and tells where that is.
    std::size_t markClosing(std::size_t from) { return moveTo(closing_, closing, from); }

    /// The token between the marks, which both are in the text, the ">" behind the "<".
    std::optional<Token> token() {
        const Text& first = segments_[opening_.segment].text;
        if (first.size() < 2 || !beginsToken(first[1]) || !findEquals()) {
            return std::nullopt;
        }
        Text name;
        for (Index segment = opening_.segment; segment != equals_; segment = next(segment)) {
            name += segments_[segment].text;
        }
        const View last = segments_[equals_].text;
        name += last.substr(0, equalsAt_);
        name.erase(0, 1);
        return Token{std::move(name),
                     equalsAt_ + 1 < last.size() || next(equals_) != closing_.segment};
    }

    /// Replaces the token that was found last, from the left to the right wherever it stands, by a
    /// group of these words and its value.
    void replaceToken(View words) {
        Text start;
        start += Character{'{'};
        start += words;
        for (const Occurrence& occurrence : occurrences()) {
            const Text value = segments_[occurrence.equals].text.substr(equalsAt_ + 1);
            replace(occurrence.first, occurrence.equals, start + value);
            Text rest = segments_[occurrence.last].text;
            rest[0] = '}';
            replace(occurrence.last, occurrence.last, rest);
        }
        noEqualsBefore_ = beginning;
    }

private:
    using Index = std::uint32_t;

    /// The segment in front of the first bracket, which may be empty and is never replaced. It is
    /// behind no other one, so that its index stands for the end, too.
    static constexpr Index beginning = 0;
    static constexpr Index none = 0;

    struct ByOrder {
        const BracketedText* text;
        bool operator()(Index left, Index right) const { return text->isBefore(left, right); }
    };

    /// Segments from the left to the right; most often those of one hash.
    using Alike = std::set<Index, ByOrder>;

    struct Segment {
        Text text;
        std::uint64_t hash = 14695981039346656037U;
        /// Grows from segment to segment, with room between them.
        std::uint64_t order = 0;
        Index previous = none;
        Index next = none;
        Alike* alike = nullptr;
    };

    struct Mark {
        Index segment = beginning;
        /// Where the segment begins.
        std::size_t place = 0;
    };

    struct Occurrence {
        Index first;
        /// The segment with the first "=".
        Index equals;
        /// The segment that begins with the token's ">".
        Index last;
    };

    Index next(Index segment) const { return segments_[segment].next; }
    Index previous(Index segment) const { return segments_[segment].previous; }

    bool beginsWith(Index segment, Character bracket) const {
        return segments_[segment].text.starts_with(bracket);
    }

    bool isBefore(Index left, Index right) const {
        return segments_[left].order < segments_[right].order;
    }

    std::size_t moveTo(Mark& mark, Character bracket, std::size_t from) {
        while (mark.place > from) {
            mark.segment = previous(mark.segment);
            mark.place -= segments_[mark.segment].text.size();
        }
        while (mark.place < from || !beginsWith(mark.segment, bracket)) {
            if (next(mark.segment) == none) {
                return nowhere;
            }
            mark.place += segments_[mark.segment].text.size();
            mark.segment = next(mark.segment);
        }
        return mark.place;
    }

    /// Finds the first "=" between the marks. Without one, the search from a "<" further on begins
    /// where this one ended.
    bool findEquals() {
        equals_ = isBefore(opening_.segment, noEqualsBefore_) ? noEqualsBefore_ : opening_.segment;
        for (; equals_ != closing_.segment; equals_ = next(equals_)) {
            equalsAt_ = segments_[equals_].text.find(Character{'='});
            if (equalsAt_ != nowhere) {
                return true;
            }
        }
        noEqualsBefore_ = closing_.segment;
        return false;
    }

    /// Where the token stands that was found last, in the text's order, none over another one.
    std::vector<Occurrence> occurrences() const {
        std::vector<Occurrence> all;
        const Index sample = rarestSegment();
        const Alike& alike = *segments_[sample].alike;
        std::size_t comparisonsLeft = segments_.size();
        for (auto other = alike.begin(); other != alike.end();) {
            const auto occurrence = occurrenceAround(sample, *other, comparisonsLeft);
            if (comparisonsLeft == 0) {
                return occurrencesOfManyLikeSegments();
            }
            if (occurrence && (all.empty() || isBefore(all.back().last, occurrence->first))) {
                all.push_back(*occurrence);
                other = alike.upper_bound(occurrence->last);
            } else {
                ++other;
            }
        }
        return all;
    }

    /// The same in one pass over all segments, by the algorithm of Knuth, Morris and Pratt: where
    /// the token's segments are like many others, each of these would be compared with many.
    std::vector<Occurrence> occurrencesOfManyLikeSegments() const {
        std::vector<Index> token;
        std::size_t equalsIndex = 0;
        for (Index segment = opening_.segment; segment != closing_.segment;
             segment = next(segment)) {
            if (segment == equals_) {
                equalsIndex = token.size();
            }
            token.push_back(segment);
        }
        const std::vector<std::size_t> borders = bordersOf(token);
        std::vector<Occurrence> all;
        std::vector<Index> passed;
        std::size_t matched = 0;
        for (Index segment = next(beginning); segment != none; segment = next(segment)) {
            if (matched == token.size() && beginsWith(segment, closing)) {
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

    /// Of each beginning of the token, how many of its first segments are its last ones, too.
    std::vector<std::size_t> bordersOf(const std::vector<Index>& token) const {
        std::vector<std::size_t> borders{0, 0};
        for (std::size_t i = 1; i < token.size(); ++i) {
            borders.push_back(matchedWith(token[i], token, borders, borders.back()));
        }
        return borders;
    }

    /// How many of the token's first segments stand before and with a segment, when so many of them
    /// stand before it.
    std::size_t matchedWith(Index segment, const std::vector<Index>& token,
                            const std::vector<std::size_t>& borders, std::size_t matched) const {
        if (matched == token.size()) {
            matched = borders[matched];
        }
        while (matched > 0 && !isEqual(segment, token[matched])) {
            matched = borders[matched];
        }
        return isEqual(segment, token[matched]) ? matched + 1 : matched;
    }

    /// A segment of the token that few are like, if there is one. Otherwise that one of its first
    /// segments and its last ones which the fewest are like.
    Index rarestSegment() const {
        const auto rare = rare_.lower_bound(opening_.segment);
        if (rare != rare_.end() && isBefore(*rare, closing_.segment)) {
            return *rare;
        }
        constexpr int samples = 64;
        Index rarest = opening_.segment;
        const auto consider = [&](Index segment) {
            if (segments_[segment].alike->size() < segments_[rarest].alike->size()) {
                rarest = segment;
            }
        };
        Index segment = next(opening_.segment);
        for (int i = 0; i < samples && segment != closing_.segment; ++i) {
            consider(segment);
            segment = next(segment);
        }
        if (segment != closing_.segment) {
            for (int i = 0; i < samples; ++i) {
                segment = i == 0 ? previous(closing_.segment) : previous(segment);
                consider(segment);
            }
        }
        return rarest;
    }

    /// The token's occurrence in which another segment stands for one of its own, if there is one
    /// and comparisons are left to find it. With none left the search is over.
    std::optional<Occurrence> occurrenceAround(Index own, Index other,
                                               std::size_t& comparisonsLeft) const {
        if (other == own) {
            return Occurrence{opening_.segment, equals_, closing_.segment};
        }
        Occurrence occurrence{.first = other, .equals = other, .last = other};
        for (Index segment = own; segment != opening_.segment;) {
            segment = previous(segment);
            occurrence.first = previous(occurrence.first);
            if (--comparisonsLeft == 0 || !isEqual(segment, occurrence.first)) {
                return std::nullopt;
            }
            if (segment == equals_) {
                occurrence.equals = occurrence.first;
            }
        }
        // The last segment is followed by the beginning, which has no bracket.
        for (Index segment = own; segment != closing_.segment; segment = next(segment)) {
            if (--comparisonsLeft == 0 || !isEqual(segment, occurrence.last)) {
                return std::nullopt;
            }
            if (segment == equals_) {
                occurrence.equals = occurrence.last;
            }
            occurrence.last = next(occurrence.last);
        }
        return beginsWith(occurrence.last, closing) ? std::optional(occurrence) : std::nullopt;
    }

    bool isEqual(Index left, Index right) const {
        return segments_[left].alike == segments_[right].alike &&
               segments_[left].text == segments_[right].text;
    }

    /// Puts a text in the place of the segments from the first to the last one.
    void replace(Index first, Index last, View text) {
        const Index left = previous(first);
        const Index right = next(last);
        std::size_t removed = 0;
        for (Index segment = first; segment != right; segment = next(segment)) {
            for (Mark* mark : {&opening_, &closing_}) {
                if (mark->segment == segment) {
                    *mark = {left, mark->place - removed - segments_[left].text.size()};
                }
            }
            removed += segments_[segment].text.size();
            removeFromIndex(segment);
            unused_.push_back(segment);
        }
        for (Mark* mark : {&opening_, &closing_}) {
            if (isBefore(last, mark->segment)) {
                mark->place = mark->place - removed + text.size();
            }
        }
        link(left, right);
        size_ -= removed;
        append(left, text);
    }

    /// Puts a text behind a segment's own, in segments of its own from its first bracket on.
    void append(Index segment, View text) {
        size_ += text.size();
        written_ += text.size();
        std::size_t end = std::min(nextBracket(text, 0), text.size());
        removeFromIndex(segment);
        extend(segment, text.substr(0, end));
        index(segment);
        while (end < text.size()) {
            const std::size_t start = end;
            end = std::min(nextBracket(text, start + 1), text.size());
            segment = insertBehind(segment, text.substr(start, end - start));
        }
    }

    static std::size_t nextBracket(View text, std::size_t from) {
        constexpr std::array brackets{opening, closing};
        return text.find_first_of(brackets.data(), from, brackets.size());
    }

    void extend(Index segment, View text) {
        constexpr std::uint64_t prime = 1099511628211U;
        segments_[segment].text += text;
        for (const Character character : text) {
            segments_[segment].hash ^= static_cast<std::uint64_t>(character);
            segments_[segment].hash *= prime;
        }
    }

    Index insertBehind(Index left, View text) {
        const Index segment = newSegment();
        const Index right = next(left);
        link(left, segment);
        link(segment, right);
        // Little room is taken, as the next one is most often put in behind this one.
        constexpr std::uint64_t mostRoom = std::uint64_t{1} << 32U;
        constexpr std::uint64_t share = 64;
        const std::uint64_t end =
            right == none ? std::numeric_limits<std::uint64_t>::max() : segments_[right].order;
        const std::uint64_t room = end - segments_[left].order;
        if (room > 1) {
            segments_[segment].order =
                segments_[left].order + std::clamp(room / share, std::uint64_t{1}, mostRoom);
        } else {
            spreadOrder();
        }
        extend(segment, text);
        index(segment);
        return segment;
    }

    Index newSegment() {
        if (unused_.empty()) {
            segments_.emplace_back();
            return static_cast<Index>(segments_.size() - 1);
        }
        const Index segment = unused_.back();
        unused_.pop_back();
        segments_[segment] = Segment();
        return segment;
    }

    void link(Index left, Index right) {
        segments_[left].next = right;
        if (right != none) {
            segments_[right].previous = left;
        }
    }

    void spreadOrder() {
        const std::uint64_t room =
            std::numeric_limits<std::uint64_t>::max() / (segments_.size() + 1);
        std::uint64_t order = 0;
        for (Index segment = next(beginning); segment != none; segment = next(segment)) {
            segments_[segment].order = order += room;
        }
    }

    void index(Index segment) {
        if (segment != beginning) {
            const auto alike = alike_.try_emplace(segments_[segment].hash, ByOrder{this}).first;
            segments_[segment].alike = &alike->second;
            alike->second.insert(alike->second.end(), segment);
            if (alike->second.size() <= mostAlikeRare) {
                rare_.insert(rare_.end(), segment);
            } else if (alike->second.size() == mostAlikeRare + 1) {
                for (const Index common : alike->second) {
                    rare_.erase(common);
                }
            }
        }
    }

    void removeFromIndex(Index segment) {
        if (segment != beginning) {
            Alike& alike = *segments_[segment].alike;
            alike.erase(segment);
            if (alike.size() < mostAlikeRare) {
                rare_.erase(segment);
            } else if (alike.size() == mostAlikeRare) {
                rare_.insert(alike.begin(), alike.end());
            }
            if (alike.empty()) {
                alike_.erase(segments_[segment].hash);
            }
        }
    }

    std::vector<Segment> segments_;
    // Those that were replaced.
    std::vector<Index> unused_;
    std::unordered_map<std::uint64_t, Alike> alike_;
    // The segments that few are like: a token with one of them is found without a search.
    static constexpr std::size_t mostAlikeRare = 4;
    Alike rare_{ByOrder{this}};
    std::size_t size_ = 0;
    std::uint64_t written_ = 0;
    Mark opening_;
    Mark closing_;
    // The first "=" behind the mark on "<".
    Index equals_ = none;
    std::size_t equalsAt_ = 0;
    // From the mark on "<", no segment in front of this one has an "=".
    Index noEqualsBefore_ = beginning;
};

}  // namespace quorvane
