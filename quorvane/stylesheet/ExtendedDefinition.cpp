#include "quorvane/stylesheet/ExtendedDefinition.h"
#include "quorvane/rtf/escape.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "quorvane/base/text/asciiCharacters.h"
#include "quorvane/base/text/placeholders.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"

namespace quorvane {

namespace {

constexpr std::string_view kindWords[] = {"paragraph", "character", "cell"};

bool isPropertyWord(std::string_view word) {
    return findStyleProperty(word);
}

bool isBeyondAscii(char byte) {
    return static_cast<unsigned char>(byte) >= 0x80;
}

/// Letters, digits and what descriptions and RTF take for a part of a name. The text is sound UTF-8
/// without control characters.
bool isStyleName(std::string_view name) {
    const auto isWord = [](char byte) {
        return isAsciiLetter(byte) || isAsciiDigit(byte) || isBeyondAscii(byte);
    };
    return !name.empty() && isWord(name.front()) && !findUnshowable(name) &&
           std::all_of(name.begin(), name.end(), [&](char byte) {
               return isWord(byte) || byte == ' ' || byte == '-' || byte == '_' || byte == '.';
           });
}

std::string_view lastWordOf(std::string_view text) {
    const std::size_t blank = text.find_last_of(" \t\r\n");
    return blank == std::string_view::npos ? text.substr(text.size()) : text.substr(blank + 1);
}

/// The keyword before which a ";" is missing in an item; empty when none is.
std::string_view misplacedKeyword(std::string_view text) {
    const std::string_view found = keywordWithin(text, isExtendedKeyword);
    if (!found.empty()) {
        return found;
    }
    const std::string_view last = lastWordOf(text);
    return isPropertyWord(lowerCase(last)) ? last : text.substr(text.size());
}

}  // namespace

std::string_view extendedKindWord(StyleKind kind) {
    return kindWords[static_cast<std::size_t>(kind)];
}

std::optional<StyleKind> extendedKindNamed(std::string_view word) {
    for (const StyleKind kind : {StyleKind::Paragraph, StyleKind::Character, StyleKind::Cell}) {
        if (equalIgnoringCase(word, extendedKindWord(kind)) ||
            equalIgnoringCase(word, styleKindWords[static_cast<std::size_t>(kind)])) {
            return kind;
        }
    }
    return std::nullopt;
}

const std::vector<std::string_view>& extendedKeywords() {
    static const std::vector<std::string_view> keywords = [] {
        std::vector<std::string_view> words{kindKeyword.word, basedOnKeyword.word,
                                            nextKeyword.word};
        std::transform(styleProperties().begin(), styleProperties().end(),
                       std::back_inserter(words),
                       [](const StyleProperty& property) { return property.word; });
        return words;
    }();
    return keywords;
}

bool isExtendedKeyword(std::string_view word) {
    const std::vector<std::string_view>& words = extendedKeywords();
    return word == nameKeyword || std::find(words.begin(), words.end(), word) != words.end();
}

ExtendedDefinition::ExtendedDefinition(std::string_view brace, std::string_view body,
                                       const ExtendedViolationReport& report)
    : brace_(brace), report_(report) {
    StyleItems items(body);
    while (const StyleItem* const item = items.next()) {
        if (!item->whole.empty()) {
            items_.push_back(*item);
        }
    }
}

void ExtendedDefinition::read(std::vector<ExtendedStyle>& styles) {
    const std::vector<std::string_view> names = readNames();
    const std::optional<StyleKind> kind = readKind(names.empty() ? "" : names.front());
    style_.kind = kind.value_or(StyleKind::Paragraph);
    for (const StyleItem& item : items_) {
        if (&item != &items_.front() || item.keyword != nameKeyword) {
            readItem(item);
        }
    }
    for (const std::string_view name : names) {
        if (kind) {
            styles.push_back(style_);
            styles.back().name = name;
        }
    }
}

std::vector<std::string_view> ExtendedDefinition::readNames() {
    std::vector<std::string_view> names;
    if (items_.empty() || items_.front().keyword != nameKeyword) {
        refuse(ExtendedFault::NamelessStyle, items_.empty() ? brace_ : items_.front().whole);
        return names;
    }
    const StyleItem& item = items_.front();
    if (const std::string_view keyword = keywordWithin(item.value, isExtendedKeyword);
        !keyword.empty()) {
        refuse(ExtendedFault::MissingSemicolon, keyword, {keyword});
        return names;
    }
    for (const std::string_view name : styleNamesIn(item.value)) {
        if (isStyleName(name)) {
            names.push_back(name);
        } else {
            refuse(ExtendedFault::BadStyleName, name.empty() ? item.writtenKeyword : name,
                   {name.empty() ? std::string_view("An empty text") : name});
        }
    }
    return names;
}

std::optional<StyleKind> ExtendedDefinition::readKind(std::string_view name) {
    const auto item = std::find_if(items_.begin(), items_.end(), [](const StyleItem& candidate) {
        return candidate.is(kindKeyword);
    });
    if (item == items_.end()) {
        if (!name.empty()) {
            refuse(ExtendedFault::MissingKind, name, {name});
        }
        return std::nullopt;
    }
    const std::optional<StyleKind> kind = extendedKindNamed(item->value);
    if (!kind) {
        refuseValue(*item, ExtendedFault::BadKind, nullptr);
    }
    return kind;
}

void ExtendedDefinition::readItem(const StyleItem& item) {
    if (const StyleProperty* const property = findStyleProperty(item.keyword)) {
        readProperty(item, *property);
    } else if (!isExtendedKeyword(item.keyword) || item.keyword == nameKeyword) {
        refuseKeyword(item);
    } else if (!isRepeated(item) && !item.is(kindKeyword)) {
        readReference(item);
    }
}

void ExtendedDefinition::readProperty(const StyleItem& item, const StyleProperty& property) {
    if (!property.isFor(style_.kind)) {
        refuse(ExtendedFault::MisplacedItem, item.writtenKeyword,
               {extendedKindWord(style_.kind), property.word}, &property);
        return;
    }
    if (const StyleProperty* const other = findSetProperty(property)) {
        refuse(ExtendedFault::ItemTwice, item.writtenKeyword, {other->word}, &property);
        return;
    }
    const std::optional<StyleValue> value =
        item.hasColon() ? readStyleValue(property, item.value) : styleValueOfWordAlone(property);
    if (value) {
        style_.format.push_back(*value);
    } else {
        refuseValue(item, ExtendedFault::BadValue, &property);
    }
}

void ExtendedDefinition::readReference(const StyleItem& item) {
    if (item.is(nextKeyword) && style_.kind != StyleKind::Paragraph) {
        refuse(ExtendedFault::MisplacedItem, item.writtenKeyword,
               {extendedKindWord(style_.kind), item.keyword});
    } else if (!isStyleName(item.value)) {
        refuseValue(item, ExtendedFault::BadStyleName, nullptr);
    } else {
        (item.is(nextKeyword) ? style_.next : style_.basedOn) = item.value;
    }
}

void ExtendedDefinition::refuseKeyword(const StyleItem& item) {
    const std::string_view last = lastWordOf(item.writtenKeyword);
    if (isExtendedKeyword(lowerCase(last))) {
        refuse(ExtendedFault::MissingSemicolon, last, {last});
    } else {
        refuse(ExtendedFault::UnknownItem, item.writtenKeyword, {item.writtenKeyword});
    }
}

void ExtendedDefinition::refuseValue(const StyleItem& item, ExtendedFault fault,
                                     const StyleProperty* property) {
    if (item.value.empty()) {
        refuse(ExtendedFault::MissingValue, item.writtenKeyword, {item.keyword}, property);
    } else if (const std::string_view keyword = misplacedKeyword(item.value); !keyword.empty()) {
        refuse(ExtendedFault::MissingSemicolon, keyword, {keyword});
    } else {
        refuse(fault, item.value, {item.value, item.keyword}, property);
    }
}

bool ExtendedDefinition::isRepeated(const StyleItem& item) {
    const bool isKnown = std::find(seen_.begin(), seen_.end(), item.known->word) != seen_.end();
    if (isKnown) {
        refuse(ExtendedFault::ItemTwice, item.writtenKeyword, {item.keyword});
    }
    seen_.push_back(item.known->word);
    return isKnown;
}

const StyleProperty* ExtendedDefinition::findSetProperty(const StyleProperty& property) const {
    const auto found = std::find_if(
        style_.format.begin(), style_.format.end(),
        [&](const StyleValue& value) { return value.property->sharesGroupWith(property); });
    return found == style_.format.end() ? nullptr : found->property;
}

void ExtendedDefinition::refuse(ExtendedFault fault, std::string_view part,
                                std::initializer_list<std::string_view> arguments,
                                const StyleProperty* property) {
    report_(
        {fault, part, withArguments(extendedFaultText(fault), arguments), property, style_.kind});
}

}  // namespace quorvane
