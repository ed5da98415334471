#include "quorvane/driver/unencodableCharacter.h"

#include <cstddef>

#include "quorvane/docmodel/inline/InlineTokens.h"
#include "quorvane/driver/DescriptionKey.h"
#include "quorvane/rtf/unicodeWords.h"

namespace quorvane {

namespace {

std::optional<std::string_view> findInStyleNames(std::string_view text) {
    const InlineTokens tokens(text);
    for (std::size_t open = text.find('<'); open != std::string_view::npos;
         open = text.find('<', open + 1)) {
        const std::optional<std::string_view> name = tokens.nameAt(open);
        if (const auto character = name ? findBeyondCodePage1252(*name) : std::nullopt) {
            return character;
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string_view> findUnencodableCharacter(const Leaf& leaf) {
    return leaf.key.known == DescriptionKey::ParaText ? findInStyleNames(leaf.text)
                                                      : findBeyondCodePage1252(leaf.text);
}

}  // namespace quorvane
