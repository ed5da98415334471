#include "quorvane/base/text/fileNamePattern.h"

#include <cstddef>

#include "quorvane/base/text/utf8.h"

namespace quorvane {

bool hasWildcard(std::string_view text) noexcept {
    return text.find_first_of("*?") != std::string_view::npos;
}

bool matchesFileNamePattern(std::string_view pattern, std::string_view name) {
    constexpr std::size_t none = std::string_view::npos;
    std::size_t inPattern = 0;
    std::size_t inName = 0;
    // Where to go on when the rest does not match: after the last *, which then takes one more.
    std::size_t afterStar = none;
    std::size_t nameAtStar = 0;
    while (inName < name.size()) {
        const bool patternGoesOn = inPattern < pattern.size();
        if (patternGoesOn && pattern[inPattern] == '*') {
            afterStar = ++inPattern;
            nameAtStar = inName;
        } else if (patternGoesOn && pattern[inPattern] == '?') {
            ++inPattern;
            inName += utf8CharacterAt(name, inName).length;
        } else if (patternGoesOn && pattern[inPattern] == name[inName]) {
            ++inPattern;
            ++inName;
        } else if (afterStar != none) {
            inPattern = afterStar;
            nameAtStar += utf8CharacterAt(name, nameAtStar).length;
            inName = nameAtStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', inPattern) == none;
}

}  // namespace quorvane
