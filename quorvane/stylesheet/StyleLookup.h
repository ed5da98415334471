#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "quorvane/stylesheet/StyleList.h"
#include "quorvane/stylesheet/StylePositions.h"

namespace quorvane {

/// The control words that select the styles of a list, ready for rendering, which looks them up for
/// paragraphs and tokens.
class StyleLookup {
public:
    StyleLookup() = default;
    /// Prepares the words for the styles of a list. Names that it does not have get
    /// `wordsForUnknown`.
    StyleLookup(const StyleList& styles, const StyleNumbers& numbers, std::string wordsForUnknown);

    /// The words for a name in any case. Blanks around it count.
    std::string_view find(const StyleList& styles, std::string_view name) const;

    bool keepsNames() const noexcept { return positions_.areKept(); }

private:
    StylePositions positions_;
    std::vector<std::string> words_;
    std::string wordsForUnknown_;
};

/// The words that select a style by its number: `\s101` and the words of its format.
std::string selectionWords(const Style& style, int number);

}  // namespace quorvane
