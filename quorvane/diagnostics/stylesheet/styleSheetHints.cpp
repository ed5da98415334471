#include "quorvane/diagnostics/stylesheet/styleSheetHints.h"

#include <vector>

#include "quorvane/base/text/textCase.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

namespace quorvane {

namespace {

std::vector<std::string_view> viewsOf(const std::vector<std::string>& texts) {
    return {texts.begin(), texts.end()};
}

const std::vector<std::string>& cellColorNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> list{"none"};
        for (int number = 1; number <= CRtfGrpColorTable::colorCount; ++number) {
            list.push_back(CRtfGrpColorTable::colorName(number));
        }
        return list;
    }();
    return names;
}

Hint kindHint(const std::string& value) {
    if (value.empty()) {
        return "write s, cs or cell";
    }
    if (value.starts_with("p")) {
        return "write s for a paragraph style";
    }
    if (value.starts_with("ch")) {
        return "write cs for a character style";
    }
    return spellingHint(value, kindKeyword.values);
}

}  // namespace

Hint firstStyleKeywordHint(const StyleItem& first) {
    constexpr std::string_view name[] = {nameKeyword};
    if (first.keyword.starts_with(nameKeyword) && first.value.empty()) {
        return "write a : after the keyword name";
    }
    Hint hint("a definition begins with name:");
    if (!certainWord(first.keyword, name).empty()) {
        hint.replacement = "name";
    }
    return hint;
}

Hint styleKeywordHint(std::string_view keyword) {
    if (keyword.empty()) {
        return "write only one ; between two items";
    }
    if (keyword == nameKeyword) {
        return "name must be the first item of a definition";
    }
    const std::string_view word = keyword.substr(0, keyword.find_first_of(" \t\r\n="));
    if (word.size() < keyword.size() && findStyleKeyword(word)) {
        return "write a : after the keyword " + std::string(word);
    }
    return spellingHint(keyword, styleKeywordWords());
}

Hint styleValueHint(const StyleItem& item) {
    if (std::string separator = missingSeparatorHint(item.value); !separator.empty()) {
        return separator;
    }
    return item.is(kindKeyword) ? kindHint(lowerCase(item.value)) : Hint("write yes or no");
}

Hint cellColorHint(std::string_view color) {
    return color.empty() ? Hint("write none for no color")
                         : spellingHint(color, viewsOf(cellColorNames()));
}

std::string missingSeparatorHint(std::string_view value) {
    const std::string_view keyword =
        keywordWithin(value, [](std::string_view word) { return findStyleKeyword(word); });
    return keyword.empty() ? std::string() : "write a ; before " + lowerCase(keyword);
}

}  // namespace quorvane
