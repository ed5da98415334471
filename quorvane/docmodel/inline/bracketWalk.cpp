#include "quorvane/docmodel/inline/bracketWalk.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/inline/BracketSegments.h"
#include "quorvane/docmodel/inline/TokenOccurrences.h"

namespace quorvane {

namespace {

/// The limit for what comes of an amount when words put tokens in. Small amounts may grow a
/// thousandfold, large ones less, since a host waits meanwhile.
std::uint64_t maxGrown(std::uint64_t size, std::uint64_t room, std::uint64_t max) {
    return std::min((size + room) * 1000, max + size * 8);
}

template <class Character>
class BracketWalk {
public:
    using Text = std::basic_string<Character>;
    using View = std::basic_string_view<Character>;

    BracketWalk(View text, bool wordsHoldTokens, const WordsOfToken<Character>& wordsOf)
        : segments_(text),
          wordsOf_(wordsOf),
          wordsHoldTokens_(wordsHoldTokens),
          maxWritten_(maxGrown(text.size(), 1000, 2'000'000)),
          maxBrackets_(maxGrown(segments_.brackets(), 20, 200'000)),
          stepsLeft_(maxBrackets_) {}

    std::optional<Text> run(BracketPlaces from) {
        std::size_t open = moveTo(opening_, Character{'<'}, from.opening);
        std::size_t close = from.closing;
        while (open != nowhere) {
            takeStep();
            close = moveTo(closing_, Character{'>'}, close + 1);
            if (close == nowhere || close <= open) {
                break;
            }
            if (isToken() && !replaceToken()) {
                return std::nullopt;
            }
            open = moveTo(opening_, Character{'<'}, open + 1);
        }
        return segments_.text();
    }

private:
    using Segments = BracketSegments<Character>;
    using Id = typename Segments::Id;
    static constexpr std::size_t nowhere = View::npos;

    struct Mark {
        Id segment = Segments::beginning;
        /// The place of the segment's first character.
        std::size_t place = 0;
    };

    /// Counts a step of a walk that may be endless.
    void takeStep() {
        if (wordsHoldTokens_ && (stepsLeft_ == 0 || segments_.brackets() > maxBrackets_ ||
                                 segments_.written() > maxWritten_)) {
            raise(RunTimeError::Overflow);
        }
        stepsLeft_ -= stepsLeft_ > 0 ? 1 : 0;
    }

    /// Moves the mark to the first such bracket at or after a place, and returns its place.
    std::size_t moveTo(Mark& mark, Character bracket, std::size_t from) {
        while (mark.place > from) {
            mark.segment = segments_.previous(mark.segment);
            mark.place -= segments_[mark.segment].size();
        }
        while (mark.place < from || !segments_[mark.segment].starts_with(bracket)) {
            if (segments_.next(mark.segment) == Segments::none) {
                return nowhere;
            }
            mark.place += segments_[mark.segment].size();
            mark.segment = segments_.next(mark.segment);
        }
        return mark.place;
    }

    /// True when there is a token between the marks.
    bool isToken() {
        const Text& first = segments_[opening_.segment];
        return first.size() > 1 && beginsInlineToken(first[1]) && findEquals();
    }

    /// Finds the first "=" between the marks. When there is none, the next search from a "<"
    /// further on continues where this one ended.
    bool findEquals() {
        equals_ = segments_.isBefore(opening_.segment, noEqualsBefore_) ? noEqualsBefore_
                                                                        : opening_.segment;
        for (; equals_ != closing_.segment; equals_ = segments_.next(equals_)) {
            equalsAt_ = segments_[equals_].find(Character{'='});
            if (equalsAt_ != nowhere) {
                return true;
            }
        }
        noEqualsBefore_ = closing_.segment;
        return false;
    }

    /// Replaces the token between the marks everywhere; false when the walk is given up.
    bool replaceToken() {
        const bool hasValue = equalsAt_ + 1 < segments_[equals_].size() ||
                              segments_.next(equals_) != closing_.segment;
        const std::optional<Text> words = wordsOf_(tokenName(), hasValue);
        if (!words) {
            return false;
        }
        wordsHoldTokens_ = wordsHoldTokens_ || words->find(Character{'<'}) != nowhere;
        using Occurrences = TokenOccurrences<Character>;
        const Occurrences occurrences(segments_, {opening_.segment, equals_, closing_.segment});
        for (const typename Occurrences::Place& place : occurrences.find()) {
            replace(place.first, place.equals,
                    Character{'{'} + *words + segments_[place.equals].substr(equalsAt_ + 1));
            replace(place.last, place.last, Character{'}'} + segments_[place.last].substr(1));
        }
        noEqualsBefore_ = Segments::beginning;
        return true;
    }

    Text tokenName() const {
        Text name;
        for (Id segment = opening_.segment; segment != equals_; segment = segments_.next(segment)) {
            name += segments_[segment];
        }
        name += segments_[equals_].substr(0, equalsAt_);
        return name.substr(1);
    }

    /// Replaces segments and adjusts the marks: one that is on them moves to the segment before.
    void replace(Id first, Id last, const Text& text) {
        const Id left = segments_.previous(first);
        std::size_t removed = 0;
        for (Id segment = first; segment != segments_.next(last);
             segment = segments_.next(segment)) {
            for (Mark* mark : {&opening_, &closing_}) {
                if (mark->segment == segment) {
                    *mark = {left, mark->place - removed - segments_[left].size()};
                }
            }
            removed += segments_[segment].size();
        }
        for (Mark* mark : {&opening_, &closing_}) {
            if (segments_.isBefore(last, mark->segment)) {
                mark->place = mark->place - removed + text.size();
            }
        }
        segments_.replace(first, last, text);
    }

    Segments segments_;
    const WordsOfToken<Character>& wordsOf_;
    bool wordsHoldTokens_;
    const std::uint64_t maxWritten_;
    const std::uint64_t maxBrackets_;
    std::uint64_t stepsLeft_;
    Mark opening_;
    Mark closing_;
    // The segment with the first "=" after the opening mark, and its index there.
    Id equals_ = Segments::none;
    std::size_t equalsAt_ = 0;
    // From the opening mark on, no segment before this one has a "=".
    Id noEqualsBefore_ = Segments::beginning;
};

}  // namespace

template <class Character>
std::optional<std::basic_string<Character>> walkBrackets(std::basic_string_view<Character> text,
                                                         BracketPlaces from, bool wordsHoldTokens,
                                                         const WordsOfToken<Character>& wordsOf) {
    return BracketWalk<Character>(text, wordsHoldTokens, wordsOf).run(from);
}

template std::optional<std::string> walkBrackets(std::string_view, BracketPlaces, bool,
                                                 const WordsOfToken<char>&);
template std::optional<std::u32string> walkBrackets(std::u32string_view, BracketPlaces, bool,
                                                    const WordsOfToken<char32_t>&);

}  // namespace quorvane
