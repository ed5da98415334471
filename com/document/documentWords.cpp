#include "com/document/documentWords.h"

#include <algorithm>
#include <vector>

#include "com/document/documentErrors.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane::com {

namespace {

std::string listed(const std::vector<std::string_view>& words) {
    std::string list;
    for (std::size_t i = 0; i < words.size(); ++i) {
        list += i == 0 ? "" : i + 1 == words.size() ? " or " : ", ";
        list += "\"" + std::string(words[i]) + "\"";
    }
    return list;
}

[[noreturn]] void refuseWord(std::string_view word, const char* what,
                             const std::vector<std::string_view>& words) {
    refuseValue("\"" + std::string(word) + "\" is not " + what + ". Write " + listed(words) + ".");
}

/// The word that a function of the vocabulary knows as the value.
template <class Named, class Value>
std::string wordFor(const std::vector<std::string_view>& words, Named named, Value value) {
    const auto found = std::find_if(words.begin(), words.end(), [&](std::string_view word) {
        return (extendedVocabulary().*named)(word) == value;
    });
    return found == words.end() ? std::string() : std::string(*found);
}

template <class Value>
using Named = std::optional<Value> (Vocabulary::*)(std::string_view) const;

}  // namespace

tCellAlign alignmentNamed(std::string_view word) {
    if (const auto found = extendedVocabulary().alignmentNamed(word)) {
        return *found;
    }
    refuseWord(word, "an alignment", extendedVocabulary().alignmentNames());
}

tBorderWidth borderNamed(std::string_view word) {
    if (const auto found = extendedVocabulary().borderNamed(word)) {
        return *found;
    }
    refuseWord(word, "the width of a border", extendedVocabulary().borderNames());
}

std::string nameOf(tCellAlign align) {
    return wordFor(extendedVocabulary().alignmentNames(),
                   Named<tCellAlign>(&Vocabulary::alignmentNamed), align);
}

std::string nameOf(tBorderWidth width) {
    return wordFor(extendedVocabulary().borderNames(),
                   Named<tBorderWidth>(&Vocabulary::borderNamed), width);
}

}  // namespace quorvane::com
