#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

/// The words that select the style of a token; nothing to give the walk up.
template <class Character>
using WordsOfToken = std::function<std::optional<std::basic_string<Character>>(
    std::basic_string_view<Character> name, bool hasValue)>;

/// Where a walk begins: the places of its "<" and of the last ">" before its next one.
struct BracketPlaces {
    std::size_t opening;
    std::size_t closing;
};

/// Replaces the inline styles of a text whose brackets come in any order, from two places on. Each
/// character is one place; `Character` is `char` or `char32_t`.
///
/// This is the walk: the next ">" is searched from the place after the last one. When it comes
/// after the "<" and a token is between the two, the token is replaced by a group of its style's
/// words and its value, here and everywhere else in the text. Then the next "<" is searched from
/// the place after the last one. Both places are counts of characters from the beginning of the
/// text as it is by then; a replacement does not move them. The walk ends when there is no next "<"
/// or ">", or the ">" comes first.
///
/// `wordsHoldTokens` is true when words that are already in the text hold a "<". Words that do can
/// make the walk endless: error 6 when the text grows too much.
///
/// The time is in proportion to the text, but for a logarithm, as long as each token has a segment
/// (a bracket and the text up to the next one) that is rare in the text. A token of hundreds of
/// segments that are all common takes time in proportion to the text by itself.
template <class Character>
std::optional<std::basic_string<Character>> walkBrackets(std::basic_string_view<Character> text,
                                                         BracketPlaces from, bool wordsHoldTokens,
                                                         const WordsOfToken<Character>& wordsOf);

}  // namespace quorvane
