#include "quorvane/base/text/wildcards.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

#include "quorvane/base/text/utf8.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane {

namespace {

char32_t takeCode(std::string_view& text) {
    const Utf8Character character = utf8CharacterAt(text, 0);
    text.remove_prefix(character.length);
    return character.code;
}

}  // namespace

WildcardPattern::WildcardPattern(std::string_view pattern) {
    while (!pattern.empty()) {
        const char32_t code = takeCode(pattern);
        switch (code) {
            case U'*':
                items_.push_back({true, false, {}});
                break;
            case U'?':
                items_.push_back({false, false, {{0, std::numeric_limits<char32_t>::max()}}});
                break;
            case U'#':
                items_.push_back({false, false, {{U'0', U'9'}}});
                break;
            case U'[': {
                const std::size_t length = pattern.find(']');
                if (length == std::string_view::npos) {
                    raise(RunTimeError::InvalidProcedureCall);
                }
                addList(pattern.substr(0, length));
                pattern.remove_prefix(length + 1);
                break;
            }
            default:
                items_.push_back({false, false, {{code, code}}});
        }
    }
}

void WildcardPattern::addList(std::string_view list) {
    if (list.empty()) {
        return;
    }
    Item item;
    if (list.size() > 1 && list.front() == '!') {
        item.isNegated = true;
        list.remove_prefix(1);
    }
    bool isFirst = true;
    while (!list.empty()) {
        Range range;
        range.first = takeCode(list);
        range.last = range.first;
        const bool isLoneHyphen = isFirst && range.first == U'-';
        if (!isLoneHyphen && list.size() > 1 && list.front() == '-') {
            list.remove_prefix(1);
            range.last = takeCode(list);
        }
        if (range.last < range.first) {
            raise(RunTimeError::InvalidProcedureCall);
        }
        item.ranges.push_back(range);
        isFirst = false;
    }
    items_.push_back(std::move(item));
}

bool WildcardPattern::Item::accepts(char32_t code) const {
    const bool isListed = std::any_of(ranges.begin(), ranges.end(), [code](const Range& range) {
        return code >= range.first && code <= range.last;
    });
    return isListed != isNegated;
}

bool WildcardPattern::matches(std::string_view text) const {
    // Where to try again when a later item does not fit: the run that was met last takes one
    // character more. Runs before it need no second look.
    bool hasRun = false;
    auto itemAfterRun = items_.end();
    std::string_view textAfterRun;

    auto item = items_.begin();
    while (!text.empty() || item != items_.end()) {
        if (item != items_.end() && item->isRun) {
            hasRun = true;
            itemAfterRun = ++item;
            textAfterRun = text;
            continue;
        }
        if (text.empty()) {
            return false;
        }
        std::string_view rest = text;
        if (item != items_.end() && item->accepts(takeCode(rest))) {
            ++item;
            text = rest;
            continue;
        }
        if (!hasRun) {
            return false;
        }
        takeCode(textAfterRun);
        item = itemAfterRun;
        text = textAfterRun;
    }
    return true;
}

bool matchesWildcards(std::string_view text, std::string_view pattern) {
    return WildcardPattern(pattern).matches(text);
}

}  // namespace quorvane
