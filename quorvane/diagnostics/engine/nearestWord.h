#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// So many candidates are compared with a word at most; of more none is nearest.
inline constexpr std::size_t maxCandidates = 500;

/// The candidate that the word was most likely meant to be: the one that it becomes by the fewest
/// changes (a character put in, left out, replaced, or exchanged with the next), at most one in
/// three characters. Case does not count. Empty when none is near.
std::string_view nearestWord(std::string_view word, std::span<const std::string_view> candidates);

/// "did you mean dark-red?" for the nearest of the candidates; empty when none is near.
std::string didYouMean(std::string_view word, std::span<const std::string_view> candidates);

/// The candidate that the word is certainly meant to be: the same but for case, or at most one
/// change away (two in words of eight characters and more) where no other candidate is nearly as
/// close. Short words are never certain. Empty where it would be a guess.
std::string_view certainWord(std::string_view word, std::span<const std::string_view> candidates);

/// What `didYouMean` says, with the candidate as replacement where it is certain.
Hint spellingHint(std::string_view word, std::span<const std::string_view> candidates);

}  // namespace quorvane
