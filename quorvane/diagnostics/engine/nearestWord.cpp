#include "quorvane/diagnostics/engine/nearestWord.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "quorvane/base/text/textCase.h"

namespace quorvane {

namespace {

// Longer words are not misspelled names.
constexpr std::size_t longestWord = 48;

using Row = std::array<std::size_t, longestWord + 1>;

// Both words are no longer than the longest.
std::size_t distance(std::string_view a, std::string_view b) {
    Row beforeLast{};
    Row last{};
    Row current{};
    for (std::size_t j = 0; j <= b.size(); ++j) {
        current[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        beforeLast = std::exchange(last, current);
        current[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            current[j] = std::min({last[j] + 1, current[j - 1] + 1, replaced});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                current[j] = std::min(current[j], beforeLast[j - 2] + 1);
            }
        }
    }
    return current[b.size()];
}

}  // namespace

std::string_view nearestWord(std::string_view word, std::span<const std::string_view> candidates) {
    std::string_view nearest;
    if (word.empty() || word.size() > longestWord || candidates.size() > maxCandidates) {
        return nearest;
    }
    const std::string wanted = lowerCase(word);
    std::size_t best = std::max<std::size_t>(1, word.size() / 3) + 1;
    for (const std::string_view candidate : candidates) {
        if (candidate.empty() || candidate.size() > longestWord) {
            continue;
        }
        // A word of one character is near to every other one.
        const std::size_t changes = distance(wanted, lowerCase(candidate));
        if (changes < best && changes < candidate.size()) {
            best = changes;
            nearest = candidate;
        }
    }
    return nearest;
}

std::string_view certainWord(std::string_view word, std::span<const std::string_view> candidates) {
    constexpr std::size_t shortestWord = 4;
    constexpr std::size_t longWord = 8;
    const std::string_view nearest = nearestWord(word, candidates);
    if (nearest.empty()) {
        return {};
    }
    const std::string wanted = lowerCase(word);
    const std::string found = lowerCase(nearest);
    const std::size_t changes = distance(wanted, found);
    const std::size_t length = std::max(word.size(), nearest.size());
    const bool isShort = nearest.size() < shortestWord - 1 || length < shortestWord;
    if (changes > 0 && (isShort || changes > (length < longWord ? 1U : 2U))) {
        return {};
    }
    const bool isAlone =
        std::all_of(candidates.begin(), candidates.end(), [&](std::string_view candidate) {
            const std::string other = lowerCase(candidate);
            return other == found || candidate.size() > longestWord ||
                   distance(wanted, other) > changes + (changes > 1 ? 1 : 0);
        });
    return isAlone ? nearest : std::string_view();
}

Hint spellingHint(std::string_view word, std::span<const std::string_view> candidates) {
    Hint hint(didYouMean(word, candidates));
    if (const std::string_view certain = certainWord(word, candidates); !certain.empty()) {
        hint.replacement = std::string(certain);
    }
    return hint;
}

std::string didYouMean(std::string_view word, std::span<const std::string_view> candidates) {
    const std::string_view nearest = nearestWord(word, candidates);
    return nearest.empty() ? std::string() : "did you mean " + std::string(nearest) + "?";
}

}  // namespace quorvane
