#include "quorvane/stylesheet/StyleAnswers.h"

#include <utility>

#include "quorvane/base/text/textCase.h"

namespace quorvane {

namespace {

// A document that names more styles than this asks for them anew: what is kept stays bounded.
constexpr std::size_t mostNamesKept = 4096;

}  // namespace

std::string selectionWords(const Style& style, int number) {
    return "\\" + style.kind() + std::to_string(number) + style.format() + " ";
}

StyleAnswers::StyleAnswers(const StyleList& styles, std::string answerForUnknown)
    : answerForUnknown_(std::move(answerForUnknown)) {
    const int count = static_cast<int>(styles.count());
    answers_.reserve(styles.count());
    for (int position = 1; position <= count; ++position) {
        answers_.push_back(selectionWords(styles.at(position), styleNumber(position)));
    }
}

std::string_view StyleAnswers::find(const StyleList& styles, std::string_view name) const {
    auto asked = asked_.find(name);
    if (asked == asked_.end()) {
        if (asked_.size() >= mostNamesKept) {
            asked_.clear();
        }
        const int position = styles.find(lowerCase(name));
        asked = asked_.emplace(std::string(name), position).first;
    }
    return asked->second < 0 ? std::string_view(answerForUnknown_)
                             : answers_[static_cast<std::size_t>(asked->second) - 1];
}

}  // namespace quorvane
