// Any pattern on any texts, and the search of a list for them.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "quorvane/base/text/utf8.h"
#include "quorvane/base/text/wildcards.h"
#include "quorvane/support/CStringList.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/documentChecks.h"

namespace {

using namespace quorvane;

using Codes = std::vector<char32_t>;

Codes codesOf(const std::string& text) {
    Codes codes;
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Character character = utf8CharacterAt(text, at);
        codes.push_back(character.code);
        at += character.length;
    }
    return codes;
}

/// One character of a list, and whether the list is one that is read.
std::optional<bool> isInList(const Codes& list, char32_t code) {
    std::size_t at = list.size() > 1 && list[0] == U'!' ? 1 : 0;
    const bool isNegated = at == 1;
    const std::size_t first = at;
    bool isListed = false;
    while (at < list.size()) {
        const bool isRange =
            at + 2 < list.size() && list[at + 1] == U'-' && !(at == first && list[at] == U'-');
        const char32_t last = isRange ? list[at + 2] : list[at];
        if (last < list[at]) {
            return std::nullopt;
        }
        isListed = isListed || (code >= list[at] && code <= last);
        at += isRange ? 3 : 1;
    }
    return isListed != isNegated;
}

/// A table of which beginnings of the pattern fit which beginnings of the text; nothing for a
/// invalid pattern.
std::optional<bool> plainMatch(const Codes& pattern, const Codes& text) {
    std::vector<bool> fits(text.size() + 1, false);
    fits[0] = true;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        std::vector<bool> next(text.size() + 1, false);
        if (pattern[at] == U'*') {
            bool any = false;
            for (std::size_t i = 0; i <= text.size(); ++i) {
                any = any || fits[i];
                next[i] = any;
            }
        } else if (pattern[at] == U'[') {
            Codes list;
            for (++at; at < pattern.size() && pattern[at] != U']'; ++at) {
                list.push_back(pattern[at]);
            }
            if (at == pattern.size() || !isInList(list, U'x')) {
                return std::nullopt;
            }
            if (list.empty()) {
                continue;
            }
            for (std::size_t i = 0; i < text.size(); ++i) {
                next[i + 1] = fits[i] && *isInList(list, text[i]);
            }
        } else {
            for (std::size_t i = 0; i < text.size(); ++i) {
                const bool accepts =
                    pattern[at] == U'?' || (pattern[at] == U'#' ? text[i] >= U'0' && text[i] <= U'9'
                                                                : text[i] == pattern[at]);
                next[i + 1] = fits[i] && accepts;
            }
        }
        fits = next;
    }
    return fits[text.size()];
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t mostTexts = 5;
    FuzzInput input(data, size);
    const std::vector<std::string> pieces = input.pieces('\n', mostTexts + 1);
    const std::string& pattern = pieces[0];
    CStringList list;
    std::int32_t expectedPlace = CStringList::notFound;
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        list.AddTail(pieces[i]);
        const std::optional<bool> expected = plainMatch(codesOf(pattern), codesOf(pieces[i]));
        bool matches = false;
        const std::int32_t error =
            errorOfCall([&] { matches = matchesWildcards(pieces[i], pattern); });
        require(error == (expected ? 0 : 5), "an invalid pattern is error 5");
        if (expected) {
            require(matches == *expected, "a pattern fits where its table says so");
            if (*expected && expectedPlace == CStringList::notFound) {
                expectedPlace = static_cast<std::int32_t>(i);
            }
        }
    }
    std::int32_t place = CStringList::notFound;
    errorOfCall([&] { place = list.Find(pattern); });
    require(place == expectedPlace, "the first text that fits is found");
    return 0;
}
