#include "quorvane/diagnostics/KnownStyles.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <unordered_set>
#include <vector>

#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/StyleSheetOutline.h"
#include "quorvane/rtfgroups/NumberedTables.h"
#include "quorvane/stylesheet/ExtendedDefinition.h"
#include "quorvane/stylesheet/StyleList.h"
#include "quorvane/stylesheet/extendedStyleSheet.h"
#include "quorvane/stylesheet/stylesheetParser.h"

namespace quorvane {

namespace {

/// A definition without its errors.
struct RepairedDefinition {
    /// Empty when the definition has no names.
    std::string text;
    std::string names;
    bool isKindSure = true;
};

std::string withoutBraces(std::string_view text) {
    std::string kept(text);
    std::erase_if(kept, [](char character) { return character == '{' || character == '}'; });
    return kept;
}

/// The first item names the style, whatever its keyword; a definition that begins with another
/// item may name it later.
std::string_view likelyNamesOf(const OutlinedDefinition& definition) {
    const std::vector<StyleItem>& items = definition.items;
    if (items.empty() || !items.front().known) {
        return items.empty() ? std::string_view() : items.front().value;
    }
    const auto named = std::find_if(items.begin(), items.end(), [](const StyleItem& item) {
        return item.keyword == nameKeyword;
    });
    return named == items.end() ? std::string_view() : named->value;
}

/// True when an item other than the first may be a misspelled kind.
bool hasUnknownKeyword(const OutlinedDefinition& definition) {
    return std::any_of(definition.items.begin() + 1, definition.items.end(),
                       [](const StyleItem& item) { return !item.known; });
}

RepairedDefinition repairedDefinition(const OutlinedDefinition& definition) {
    RepairedDefinition repaired;
    repaired.names = withoutBraces(likelyNamesOf(definition));
    if (repaired.names.empty()) {
        return repaired;
    }
    bool hasKind = false;
    repaired.text = "{name:" + repaired.names;
    for (const StyleItem& item : definition.items) {
        const std::string value = withoutBraces(item.value);
        const bool isValid = item.known && item.known->accepts(lowerCase(value));
        if (item.is(kindKeyword)) {
            hasKind = true;
            repaired.isKindSure = repaired.isKindSure && isValid;
        }
        if (isValid) {
            repaired.text += ";" + item.keyword + ":" + value;
        }
    }
    repaired.isKindSure = repaired.isKindSure && (hasKind || !hasUnknownKeyword(definition));
    repaired.text += "}";
    return repaired;
}

/// A style with its format alone, as far as every document has its fonts and colors.
std::string repairedStyle(const ExtendedStyle& style, DocumentTables& tables) {
    std::string items = "{name:" + std::string(style.name) + ";" + std::string(kindKeyword.word) +
                        ":" + std::string(extendedKindWord(style.kind));
    if (style.kind == StyleKind::Cell) {
        items += style.format.empty() ? "" : ";background:" + style.format.front().text;
    } else {
        const std::string words = controlWordsOf(style.format, style.kind, tables);
        const StyleProperty& raw = *findStyleProperty("rtf");
        items += readStyleValue(raw, words) ? ";rtf:" + words : "";
    }
    return items + "}\n";
}

bool hasExtendedKind(const OutlinedDefinition& definition) {
    return std::any_of(definition.items.begin(), definition.items.end(), [](const StyleItem& item) {
        return item.is(kindKeyword) && extendedKindNamed(item.value);
    });
}

}  // namespace

struct KnownStyles::Parts {
    Parts(std::string_view styleSheet, TextEncoding encodingOfFile)
        : text(styleSheet), soundText(styleSheet), encoding(encodingOfFile) {}

    void load();
    void file(const StyleDefinition& definition);
    void repair();
    void repairOriginal();
    void repairExtended();

    StyleList& list(StyleKind kind) { return lists[static_cast<std::size_t>(kind)]; }
    std::unordered_set<std::string>& used(StyleKind kind) {
        return usedNames[static_cast<std::size_t>(kind)];
    }

    std::string text;
    std::string soundText;
    TextEncoding encoding;
    std::array<StyleList, 3> lists;
    SheetForm form;
    // In lower case, as the names of styles whose kind is uncertain.
    std::array<std::unordered_set<std::string>, 3> usedNames;
    std::unordered_set<std::string> ofAnyKind;
};

void KnownStyles::Parts::load() {
    for (StyleList& styles : lists) {
        styles.clear();
    }
    const auto add = [this](const StyleDefinition& definition) { file(definition); };
    if (isMarkedExtended(text)) {
        NumberedTables tables;
        parseExtendedStyleSheet(soundText, tables, add);
        form = extendedForm(list(StyleKind::Paragraph));
    } else {
        parseStyleSheet(soundText, add);
        form = originalForm(list(StyleKind::Paragraph));
    }
}

void KnownStyles::Parts::file(const StyleDefinition& definition) {
    for (const std::string& name : definition.names) {
        const StyleKind kind = styleKindNamed(Style{name, definition.record}.kind());
        list(kind).add(name, definition.record);
    }
}

void KnownStyles::Parts::repair() {
    soundText.clear();
    if (isMarkedExtended(text)) {
        repairExtended();
    } else {
        repairOriginal();
    }
}

void KnownStyles::Parts::repairExtended() {
    NumberedTables tables;
    soundText = std::string(extendedMark) + "\n";
    for (const ExtendedStyle& style : readExtendedStyleSheet(text, [](const auto&) {})) {
        soundText += repairedStyle(style, tables);
    }
    for (const OutlinedDefinition& definition : readStyleSheetOutline(text).definitions) {
        if (!hasExtendedKind(definition)) {
            for (const std::string_view name : namesOf(definition)) {
                ofAnyKind.insert(lowerCase(name));
            }
        }
    }
}

void KnownStyles::Parts::repairOriginal() {
    for (const OutlinedDefinition& definition : readStyleSheetOutline(text).definitions) {
        const RepairedDefinition repaired = repairedDefinition(definition);
        soundText += repaired.text;
        if (!repaired.isKindSure) {
            for (const std::string_view name : styleNamesIn(repaired.names)) {
                ofAnyKind.insert(lowerCase(name));
            }
        }
    }
}

KnownStyles::KnownStyles(std::string_view styleSheet, TextEncoding encoding)
    : parts_(std::make_unique<Parts>(styleSheet, encoding)) {
    try {
        parts_->load();
    } catch (const RtfError&) {
        parts_->repair();
        parts_->load();
    }
}

KnownStyles::KnownStyles(KnownStyles&& other) noexcept = default;
KnownStyles& KnownStyles::operator=(KnownStyles&& other) noexcept = default;
KnownStyles::~KnownStyles() = default;

const std::string& KnownStyles::text() const {
    return parts_->text;
}

TextEncoding KnownStyles::encoding() const {
    return parts_->encoding;
}

const std::string& KnownStyles::soundText() const {
    return parts_->soundText;
}

const StyleList& stylesOf(const KnownStyles& known, StyleKind kind) {
    return known.parts_->list(kind);
}

const SheetForm& formOf(const KnownStyles& known) {
    return known.parts_->form;
}

int KnownStyles::find(StyleKind kind, std::string_view name) const {
    return parts_->list(kind).find(lowerCase(name));
}

bool KnownStyles::lacks(StyleKind kind, std::string_view name) const {
    return find(kind, name) < 0 && !isOfAnyKind(name);
}

bool KnownStyles::isOfAnyKind(std::string_view name) const {
    return parts_->ofAnyKind.contains(lowerCase(name));
}

void KnownStyles::markUsed(StyleKind kind, std::string_view name) {
    parts_->used(kind).insert(lowerCase(name));
}

bool KnownStyles::isUsed(StyleKind kind, std::string_view name) const {
    return parts_->used(kind).contains(lowerCase(name));
}

}  // namespace quorvane
