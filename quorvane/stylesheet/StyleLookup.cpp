#include "quorvane/stylesheet/StyleLookup.h"

#include <utility>

#include "quorvane/base/text/textCase.h"

namespace quorvane {

namespace {

// A document that names more styles than this looks them up again: what is kept stays bounded.
constexpr std::size_t maxNamesKept = 4096;

}  // namespace

std::string selectionWords(const Style& style, int number) {
    return "\\" + style.kind() + std::to_string(number) + style.format() + " ";
}

StyleLookup::StyleLookup(const StyleList& styles, std::string wordsForUnknown)
    : wordsForUnknown_(std::move(wordsForUnknown)) {
    const int count = static_cast<int>(styles.count());
    words_.reserve(styles.count());
    for (int position = 1; position <= count; ++position) {
        words_.push_back(selectionWords(styles.at(position), styleNumber(position)));
    }
}

std::string_view StyleLookup::find(const StyleList& styles, std::string_view name) const {
    auto known = lookedUp_.find(name);
    if (known == lookedUp_.end()) {
        if (lookedUp_.size() >= maxNamesKept) {
            lookedUp_.clear();
        }
        const int position = styles.find(lowerCase(name));
        known = lookedUp_.emplace(std::string(name), position).first;
    }
    return known->second < 0 ? std::string_view(wordsForUnknown_)
                             : words_[static_cast<std::size_t>(known->second) - 1];
}

}  // namespace quorvane
