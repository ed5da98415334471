#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace quorvane {

/// So many candidates are compared with a word at most; of more none is nearest.
inline constexpr std::size_t mostCandidates = 500;

/// The candidate that the word was most likely meant to be: the one that it becomes by the fewest
/// changes (a character put in, left out, replaced, or exchanged with the next), at most one in
/// three characters. Case does not count. Empty when none is near.
std::string_view nearestWord(std::string_view word, std::span<const std::string_view> candidates);

/// "did you mean dark-red?" for the nearest of the candidates; empty when none is near.
std::string didYouMean(std::string_view word, std::span<const std::string_view> candidates);

}  // namespace quorvane
