#include "quorvane/stylesheet/StyleLookup.h"

#include <cstddef>
#include <utility>

namespace quorvane {

std::string selectionWords(const Style& style, int number) {
    return "\\" + style.kind() + std::to_string(number) + style.format() + " ";
}

StyleLookup::StyleLookup(const StyleList& styles, const StyleNumbers& numbers,
                         std::string wordsForUnknown)
    : wordsForUnknown_(std::move(wordsForUnknown)) {
    const int count = static_cast<int>(styles.count());
    words_.reserve(styles.count());
    for (int position = 1; position <= count; ++position) {
        words_.push_back(selectionWords(styles.at(position), numbers.at(position)));
    }
}

std::string_view StyleLookup::find(const StyleList& styles, std::string_view name) const {
    const int position = positions_.find(styles, name);
    return position < 0 ? std::string_view(wordsForUnknown_)
                        : words_[static_cast<std::size_t>(position) - 1];
}

}  // namespace quorvane
