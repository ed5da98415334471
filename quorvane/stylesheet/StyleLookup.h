#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "quorvane/stylesheet/StyleList.h"

namespace quorvane {

/// The control words that select the styles of a list, ready for rendering, which looks them up
/// once for every paragraph and token.
class StyleLookup {
public:
    StyleLookup() = default;
    /// Prepares the words for the styles of a list. Names that it does not have get
    /// `wordsForUnknown`.
    StyleLookup(const StyleList& styles, std::string wordsForUnknown);

    /// The words for a name in any case. Blanks around it count.
    std::string_view find(const StyleList& styles, std::string_view name) const;

private:
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>{}(text);
        }
    };

    std::vector<std::string> words_;
    std::string wordsForUnknown_;
    // Positions of the names that were looked up, as they were written; -1 for unknown ones.
    mutable std::unordered_map<std::string, int, TextHash, std::equal_to<>> lookedUp_;
};

/// The words that select a style by its number: `\s101` and the words of its format.
std::string selectionWords(const Style& style, int number);

}  // namespace quorvane
