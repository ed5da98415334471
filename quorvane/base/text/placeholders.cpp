#include "quorvane/base/text/placeholders.h"

#include "quorvane/base/text/asciiCharacters.h"

namespace quorvane {

namespace {

constexpr std::size_t placeholderLength = 3;

bool beginsWithPlaceholder(std::string_view text) {
    return text.size() >= placeholderLength && text[0] == '{' && isAsciiDigit(text[1]) &&
           text[2] == '}';
}

}  // namespace

std::string withReplacements(std::string_view pattern,
                             const std::function<std::string_view(std::size_t)>& replacementOf) {
    std::string text;
    while (!pattern.empty()) {
        if (beginsWithPlaceholder(pattern)) {
            text += replacementOf(static_cast<std::size_t>(pattern[1] - '0'));
            pattern.remove_prefix(placeholderLength);
        } else {
            text += pattern.front();
            pattern.remove_prefix(1);
        }
    }
    return text;
}

std::string withArguments(std::string_view pattern,
                          std::initializer_list<std::string_view> arguments) {
    return withReplacements(pattern, [&](std::size_t number) {
        return number < arguments.size() ? arguments.begin()[number] : std::string_view();
    });
}

}  // namespace quorvane
