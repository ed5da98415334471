#include "quorvane/stylesheet/stylesheetSyntax.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "quorvane/base/text/nowhere.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"

namespace quorvane {

namespace {

constexpr const StyleKeyword* keywords[] = {&kindKeyword, &formatKeyword, &basedOnKeyword,
                                            &nextKeyword, &additiveKeyword};

constexpr auto keywordWords = [] {
    std::array<std::string_view, std::size(keywords)> words;
    std::transform(std::begin(keywords), std::end(keywords), words.begin(),
                   [](const StyleKeyword* keyword) { return keyword->word; });
    return words;
}();

BracedText bracedText(std::string_view text, std::size_t open, std::size_t close) {
    const std::size_t length = close > open ? close - open - 1 : 0;
    return {open, close, text.substr(open + 1, length)};
}

}  // namespace

bool StyleKeyword::accepts(std::string_view value) const {
    return values.empty() || std::find(values.begin(), values.end(), value) != values.end();
}

std::span<const std::string_view> styleKeywordWords() {
    return keywordWords;
}

const StyleKeyword* findStyleKeyword(std::string_view word) {
    const auto* const found =
        std::find_if(std::begin(keywords), std::end(keywords),
                     [&](const StyleKeyword* keyword) { return keyword->word == word; });
    return found == std::end(keywords) ? nullptr : *found;
}

StyleItem readStyleItem(std::string_view text) {
    const std::size_t colon = text.find(':');
    StyleItem item;
    item.whole = trimWhitespace(text);
    item.writtenKeyword = colon == nowhere ? item.whole : trimWhitespace(text.substr(0, colon));
    item.keyword = lowerCase(item.writtenKeyword);
    item.known = findStyleKeyword(item.keyword);
    item.value =
        colon == nowhere ? text.substr(text.size()) : trimWhitespace(text.substr(colon + 1));
    return item;
}

std::string_view keywordWithin(std::string_view value,
                               const std::function<bool(std::string_view)>& isKeyword) {
    // Longer than any keyword with blanks around it: the search costs no more in a long value.
    constexpr std::size_t longestWord = 40;
    for (std::size_t colon = value.find(':'); colon != nowhere;
         colon = value.find(':', colon + 1)) {
        const std::string_view before = trimWhitespace(
            value.substr(colon - std::min(colon, longestWord), std::min(colon, longestWord)));
        const std::size_t last = before.find_last_of(" \t\r\n,");
        const std::string_view word = before.substr(last == nowhere ? 0 : last + 1);
        if (last != nowhere && isKeyword(lowerCase(word))) {
            return word;
        }
    }
    return value.substr(value.size());
}

std::optional<StyleSheetFault> faultOfFirst(const StyleItem& item) {
    return item.keyword == nameKeyword ? std::nullopt : std::optional(StyleSheetFault::BadKeyword);
}

std::optional<StyleSheetFault> faultOf(const StyleItem& item, std::string_view lowerValue) {
    if (!item.known) {
        return StyleSheetFault::BadKeyword;
    }
    if (item.known->accepts(lowerValue)) {
        return std::nullopt;
    }
    return item.is(kindKeyword) ? StyleSheetFault::BadStyleKind : StyleSheetFault::BadAdditive;
}

const StyleItem* StyleItems::next() {
    const std::optional<std::string_view> piece = pieces_.next();
    if (!piece || (pieces_.areAllRead() && trimWhitespace(*piece).empty())) {
        return nullptr;
    }
    item_ = readStyleItem(*piece);
    return &item_;
}

std::vector<std::string_view> styleNamesIn(std::string_view value) {
    std::vector<std::string_view> names;
    Pieces pieces(value, ',');
    while (const std::optional<std::string_view> piece = pieces.next()) {
        names.push_back(trimWhitespace(*piece));
    }
    return names;
}

BraceCount countBraces(std::string_view text) {
    return {std::count(text.begin(), text.end(), '{'), std::count(text.begin(), text.end(), '}')};
}

std::optional<StyleSheetFault> faultOf(const BraceCount& braces) {
    if (braces.opened == braces.closed) {
        return std::nullopt;
    }
    return braces.opened < braces.closed ? StyleSheetFault::BracesUnderflow
                                         : StyleSheetFault::BracesOverflow;
}

std::string_view findLoneBrace(std::string_view text) {
    std::size_t open = nowhere;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '{' && text[at] != '}') {
            continue;
        }
        const bool opens = text[at] == '{';
        if (opens == (open != nowhere)) {
            return text.substr(opens ? open : at, 1);
        }
        open = opens ? at : nowhere;
    }
    return open == nowhere ? text.substr(0, 0) : text.substr(open, 1);
}

std::optional<BracedText> bracedTextFrom(std::string_view text, std::size_t from) {
    const std::size_t open = text.find('{', from);
    if (open == nowhere) {
        return std::nullopt;
    }
    return bracedText(text, open, std::min(text.find('}', open), text.size()));
}

BracedTexts::BracedTexts(std::string_view text)
    : text_(text), open_(text.find('{')), close_(text.find('}')) {}

std::optional<BracedText> BracedTexts::next() {
    if (close_ == nowhere) {
        return std::nullopt;
    }
    const BracedText definition = bracedText(text_, open_, close_);
    open_ = text_.find('{', open_ + 1);
    close_ = text_.find('}', close_ + 1);
    return definition;
}

}  // namespace quorvane
