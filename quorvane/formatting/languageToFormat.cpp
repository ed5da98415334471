#include "quorvane/formatting/languageToFormat.h"

#include <algorithm>
#include <string>

#include "quorvane/base/text/textCase.h"
#include "quorvane/diagnostics/StyleSheetOutline.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/driver/DescriptionLine.h"

namespace quorvane {

namespace {

bool hasKeyword(const StyleItem& item) {
    // A word without a ":" is not a keyword: it may be a statement in another language.
    return item.hasColon() && (item.keyword == nameKeyword || item.known);
}

bool isNamed(const OutlinedDefinition& definition) {
    return !namesOf(definition).empty();
}

bool hasItemBesideName(const OutlinedDefinition& definition) {
    return isNamed(definition) &&
           std::any_of(definition.items.begin() + 1, definition.items.end(), hasKeyword);
}

bool hasAnyKeyword(const OutlinedDefinition& definition) {
    return std::any_of(definition.items.begin(), definition.items.end(), hasKeyword);
}

bool beginsAsDescription(std::string_view text) {
    const std::string_view opening = openingOfDescription(text);
    const DescriptionLine line = descriptionLine(opening, originalDialect());
    return !opening.empty() &&
           (line.type != LineType::Leaf || originalVocabulary().isKey(line.key));
}

bool beginsAsStyleSheet(std::string_view text) {
    if (!firstLineOf(text).starts_with('{')) {
        return false;
    }
    const StyleSheetOutline outline = readStyleSheetOutline(text);
    return isNamed(outline.definitions.front()) &&
           std::any_of(outline.definitions.begin(), outline.definitions.end(), hasItemBesideName);
}

bool isStyleKind(const StyleItem& item) {
    return item.is(kindKeyword) && item.known->accepts(item.value);
}

/// Between other text, as in a program, braces with a name are not enough.
bool holdsStyles(std::string_view text) {
    const StyleSheetOutline outline = readStyleSheetOutline(text);
    return std::any_of(outline.definitions.begin(), outline.definitions.end(),
                       [](const OutlinedDefinition& definition) {
                           return isNamed(definition) &&
                                  std::any_of(definition.items.begin(), definition.items.end(),
                                              isStyleKind);
                       });
}

/// For a file named as a stylesheet: braces without any keyword belong to another language.
bool mayBeStyleSheet(std::string_view text) {
    const StyleSheetOutline outline = readStyleSheetOutline(text);
    return std::any_of(outline.definitions.begin(), outline.definitions.end(), hasAnyKeyword);
}

}  // namespace

std::optional<CheckedLanguage> languageToFormat(std::string_view text, std::string_view fileName) {
    // No text has a zero byte, except one in UTF-16.
    if (text.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    if (beginsAsDescription(text)) {
        return CheckedLanguage::Description;
    }
    const CheckedLanguage language = languageOf(text, fileName);
    const std::string name = lowerCase(fileName);
    if (name.ends_with(".rtfspec") || name.ends_with(".rtfss")) {
        const bool isOther =
            language == CheckedLanguage::Rtf ||
            (languageOf(text) == CheckedLanguage::StyleSheet && !mayBeStyleSheet(text));
        return isOther ? std::nullopt : std::optional(language);
    }
    return language == CheckedLanguage::StyleSheet && beginsAsStyleSheet(text)
               ? std::optional(language)
               : std::nullopt;
}

std::optional<CheckedLanguage> languageOfStreamToFormat(std::string_view text) {
    const std::optional<CheckedLanguage> language = languageToFormat(text, {});
    if (language || text.find('\0') != std::string_view::npos) {
        return language;
    }
    return languageOf(text) == CheckedLanguage::StyleSheet && holdsStyles(text)
               ? std::optional(CheckedLanguage::StyleSheet)
               : std::nullopt;
}

}  // namespace quorvane
