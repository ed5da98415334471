#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "quorvane/stylesheet/StyleList.h"

namespace quorvane {

/// The control words that select the styles of a list, ready for rendering, which asks for them
/// once for every paragraph and token.
class StyleAnswers {
public:
    StyleAnswers() = default;
    /// Prepares the answers for a list. `answerForUnknown` is what a name that is not in it gets.
    StyleAnswers(const StyleList& styles, std::string answerForUnknown);

    /// The answer for a name in any case. Blanks around it count.
    std::string_view find(const StyleList& styles, std::string_view name) const;

private:
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>{}(text);
        }
    };

    std::vector<std::string> answers_;
    std::string answerForUnknown_;
    // Positions of names as they were asked for, -1 for unknown ones.
    mutable std::unordered_map<std::string, int, TextHash, std::equal_to<>> asked_;
};

/// The words that select a style of a list by its number: `\s101` and the format's words.
std::string selectionWords(const Style& style, int number);

}  // namespace quorvane
