#include "quorvane/docmodel/inline/inlineStyles.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/base/text/nowhere.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/text/utf16Units.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/docmodel/inline/bracketWalk.h"
#include "quorvane/docmodel/inline/inlineToken.h"

namespace quorvane {

namespace {

/// What decides how the inline styles of a text are replaced.
struct TextForm {
    bool isAscii = true;
    /// Every "<" is followed by a ">" before the next "<".
    bool bracketsAlternate = true;
};

// Texts are short, but there are many: eight characters at a time.
TextForm formOf(std::string_view text) {
    constexpr std::uint64_t ones = 0x0101010101010101U;
    constexpr std::uint64_t highBits = 0x80 * ones;
    TextForm form;
    std::uint64_t all = 0;
    bool isOpen = false;
    const auto note = [&](char character) {
        if (isBracket(character)) {
            form.bracketsAlternate = form.bracketsAlternate && !(isOpen && character == '<');
            isOpen = character == '<';
        }
    };
    while (text.size() >= sizeof all) {
        std::uint64_t block = 0;
        std::memcpy(&block, text.data(), sizeof block);
        all |= block;
        // The brackets differ in one bit. A byte that is 0 here is one of them.
        const std::uint64_t zeroForBracket = (block | '\x02' * ones) ^ '>' * ones;
        if (((zeroForBracket - ones) & ~zeroForBracket & highBits) != 0) {
            std::for_each_n(text.begin(), sizeof block, note);
        }
        text.remove_prefix(sizeof block);
    }
    for (const char character : text) {
        all |= static_cast<unsigned char>(character);
        note(character);
    }
    form.isAscii = (all & highBits) == 0;
    return form;
}

/// The words of a character style.
struct StyleWords {
    std::string_view all;
    /// For a token without a value.
    std::string_view trimmed;
    bool areAscii = true;
    bool holdOpening = false;
    bool holdBracket = false;
};

/// Looks the words of the tokens up. Most tokens name the same style as the one before.
class TokenWords {
public:
    explicit TokenWords(const TableDocument& document) noexcept : document_(document) {}

    const StyleWords& find(std::string_view name) {
        if (!isKnown_ || name != name_) {
            isKnown_ = false;
            name_ = name;
            const std::string_view words = document_.GetCharacterStyle(name);
            words_.all = words;
            words_.trimmed = trimBlanks(words);
            words_.areAscii = asciiRunEnd(words, 0) == words.size();
            words_.holdOpening = words.find('<') != nowhere;
            words_.holdBracket = std::any_of(words.begin(), words.end(), isBracket);
            isKnown_ = true;
        }
        return words_;
    }
    const StyleWords& find(std::u32string_view name) {
        nameOfUnits_.clear();
        appendTextOfUtf16Units(name, nameOfUnits_);
        return find(nameOfUnits_);
    }

private:
    const TableDocument& document_;
    bool isKnown_ = false;
    std::string name_;
    std::string nameOfUnits_;
    StyleWords words_;
};

void append(std::string_view words, std::string& text) {
    text += words;
}

void append(std::string_view words, std::u32string& text) {
    appendUtf16Units(words, text);
}

struct Span {
    std::size_t start;
    std::size_t length;
};

/// The tokens that were replaced, each with the place of its group. A text can have tens of
/// thousands, most of which are looked up once, in vain: a slot has part of the token's hash, so
/// that only the slots need to be in the processor's cache.
template <class View>
class ReplacedTokens {
public:
    /// Where the group of the token is; null for a token that was not added.
    const Span* find(View token) const {
        if (slots_.empty()) {
            return nullptr;
        }
        const std::uint32_t hash = hashOf(token);
        std::size_t slot = hash & (slots_.size() - 1);
        while (slots_[slot].number != 0 && !isAt(slots_[slot], token, hash)) {
            slot = (slot + 1) & (slots_.size() - 1);
        }
        return slots_[slot].number == 0 ? nullptr : &entries_[slots_[slot].number - 1].group;
    }

    /// Forgets the tokens and keeps the memory.
    void clear() noexcept {
        entries_.clear();
        slots_.clear();
    }

    /// Adds a token that `find` does not find.
    void add(View token, Span group) {
        constexpr std::size_t smallestTable = 16;
        if (4 * (entries_.size() + 1) > 3 * slots_.size()) {
            // In the memory of the slots before, when there was as much room already.
            slots_.assign(std::max(2 * slots_.size(), smallestTable), Slot());
            for (std::size_t i = 0; i < entries_.size(); ++i) {
                put(entries_[i].hash, i);
            }
        }
        entries_.push_back({token, group, hashOf(token)});
        put(entries_.back().hash, entries_.size() - 1);
    }

private:
    struct Entry {
        View token;
        Span group;
        std::uint32_t hash;
    };
    struct Slot {
        std::uint32_t hash = 0;
        // Of the entry, from 1; 0 for none.
        std::uint32_t number = 0;
    };

    static std::uint32_t hashOf(View token) {
        return static_cast<std::uint32_t>(std::hash<View>{}(token));
    }

    void put(std::uint32_t hash, std::size_t index) {
        std::size_t slot = hash & (slots_.size() - 1);
        while (slots_[slot].number != 0) {
            slot = (slot + 1) & (slots_.size() - 1);
        }
        slots_[slot] = {hash, static_cast<std::uint32_t>(index + 1)};
    }

    bool isAt(const Slot& slot, View token, std::uint32_t hash) const {
        return slot.hash == hash && entries_[slot.number - 1].token == token;
    }

    std::vector<Entry> entries_;
    std::vector<Slot> slots_;
};

/// The walk over a body whose characters are its places.
template <class Character>
class InlineStyleWalk {
public:
    using Text = std::basic_string<Character>;
    using View = std::basic_string_view<Character>;

    explicit InlineStyleWalk(TokenWords& words) noexcept : words_(words) {}

    /// The body with its tokens replaced, valid until the next call. Nothing when the words of a
    /// style have characters that are more than one place: a byte is one place in ASCII only.
    std::optional<View> apply(View body, bool bracketsAlternate) {
        body_ = body;
        next_ = 0;
        done_.clear();
        replaced_.clear();
        placesAreRight_ = true;
        wordsHoldTokens_ = false;
        if (bracketsAlternate) {
            walkOnce();
        } else {
            done_ = body_;
            const std::size_t open = done_.find(opening);
            walkOver({open, open});
        }
        return placesAreRight_ ? std::optional(View(done_)) : std::nullopt;
    }

    /// False when a walk took memory that is not there for the next one.
    bool keepsItsMemory() const noexcept { return keepsItsMemory_; }

private:
    static constexpr Character opening{'<'};
    static constexpr Character closing{'>'};

    static bool isToken(View inner) {
        return !inner.empty() && beginsInlineToken(inner[0]) &&
               inner.find(Character{'='}) != nowhere;
    }

    /// One pass for a body whose brackets alternate. What the walk has passed is in `done_`. The
    /// rest is as it was in the body: a token that was replaced already is replaced there when the
    /// walk reaches it.
    void walkOnce() {
        std::optional<std::size_t> close;
        while (advanceToOpening()) {
            const std::size_t open = done_.size();
            const std::size_t from = close.value_or(open) + 1;
            if (from < open && done_.find(closing, from) != nowhere) {
                break;
            }
            const std::size_t tokenEnd = body_.find(closing, next_);
            const std::size_t tokenClose = open + (tokenEnd - next_);
            const View inner = body_.substr(next_ + 1, tokenEnd - next_ - 1);
            const bool leavesStep = tokenEnd == nowhere || from > tokenClose;
            const bool isReplaced = !leavesStep && isToken(inner);
            if (isReplaced) {
                appendGroup(inner, done_);
                if (!placesAreRight_) {
                    return;
                }
            }
            // The value has no bracket, or the brackets would not alternate.
            if (leavesStep || (isReplaced && lastWordsHoldBracket_)) {
                done_.resize(open);
                appendRest();
                walkOver({open, close.value_or(open)});
                return;
            }
            close = tokenClose;
            if (isReplaced) {
                // The last token does not come again.
                if (body_.find(opening, tokenEnd) != nowhere) {
                    replaced_.add(body_.substr(next_, tokenEnd - next_ + 1),
                                  Span{open, done_.size() - open});
                }
                next_ = tokenEnd + 1;
            } else {
                done_ += opening;
                ++next_;
            }
        }
        appendRest();
    }

    /// Advances to the next "<" that does not begin a token replaced before.
    bool advanceToOpening() {
        for (;;) {
            const std::size_t open = body_.find(opening, next_);
            if (open == nowhere) {
                return false;
            }
            done_ += body_.substr(next_, open - next_);
            next_ = open;
            const std::size_t end = body_.find(closing, open);
            const Span* known =
                end == nowhere ? nullptr : replaced_.find(body_.substr(open, end - open + 1));
            if (!known) {
                return true;
            }
            done_.append(done_, known->start, known->length);
            next_ = end + 1;
        }
    }

    void appendRest() {
        while (advanceToOpening()) {
            done_ += opening;
            ++next_;
        }
        done_ += body_.substr(next_);
        next_ = body_.size();
    }

    /// The walk as it is defined, for a body of any form.
    void walkOver(BracketPlaces from) {
        if (from.opening == nowhere || done_.find(closing, from.closing + 1) == nowhere) {
            return;
        }
        keepsItsMemory_ = false;
        const WordsOfToken<Character> wordsOf = [this](View name, bool hasValue) {
            Text words;
            appendWords(name, hasValue, words);
            return placesAreRight_ ? std::optional(std::move(words)) : std::nullopt;
        };
        if (auto walked = walkBrackets(View(done_), from, wordsHoldTokens_, wordsOf)) {
            done_ = *std::move(walked);
        }
    }

    /// Appends the group that replaces a token.
    void appendGroup(View inner, Text& text) {
        const std::size_t equals = inner.find(Character{'='});
        const View value = inner.substr(equals + 1);
        text += Character{'{'};
        appendWords(inner.substr(0, equals), !value.empty(), text);
        text += value;
        text += Character{'}'};
    }

    void appendWords(View name, bool hasValue, Text& text) {
        const StyleWords& words = words_.find(name);
        append(hasValue ? words.all : words.trimmed, text);
        wordsHoldTokens_ = wordsHoldTokens_ || words.holdOpening;
        lastWordsHoldBracket_ = words.holdBracket;
        if constexpr (sizeof(Character) == 1) {
            placesAreRight_ = placesAreRight_ && words.areAscii;
        }
    }

    TokenWords& words_;
    View body_;
    std::size_t next_ = 0;
    Text done_;
    // Where in `done_` each token was replaced first.
    ReplacedTokens<View> replaced_;
    bool placesAreRight_ = true;
    // Words that were put in hold a "<". Otherwise each token that is replaced leaves one "<" less.
    bool wordsHoldTokens_ = false;
    bool lastWordsHoldBracket_ = false;
    bool keepsItsMemory_ = true;
};

}  // namespace

class InlineStyles::Walks {
public:
    explicit Walks(const TableDocument& document) : words_(document) {}

    std::string_view replace(std::string_view text) {
        const TextForm form = formOf(text);
        if (form.isAscii) {
            if (const auto styled = overBytes_.apply(text, form.bracketsAlternate)) {
                return *styled;
            }
        }
        units_.clear();
        appendUtf16Units(text, units_);
        styled_.clear();
        appendTextOfUtf16Units(*overUnits_.apply(units_, form.bracketsAlternate), styled_);
        return styled_;
    }

    bool keepsItsMemory() const noexcept {
        return overBytes_.keepsItsMemory() && overUnits_.keepsItsMemory();
    }

private:
    TokenWords words_;
    InlineStyleWalk<char> overBytes_{words_};
    InlineStyleWalk<char32_t> overUnits_{words_};
    std::u32string units_;
    std::string styled_;
};

InlineStyles::InlineStyles(const TableDocument& document) noexcept : document_(document) {}

InlineStyles::~InlineStyles() = default;

std::string_view InlineStyles::replace(std::string_view text) {
    if (!walks_) {
        walks_ = std::make_unique<Walks>(document_);
    }
    return walks_->replace(text);
}

bool InlineStyles::keepsItsMemory() const noexcept {
    return !walks_ || walks_->keepsItsMemory();
}

}  // namespace quorvane
