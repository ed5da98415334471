#include "quorvane/diagnostics/KnownStyles.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <unordered_set>
#include <vector>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/StyleSheetOutline.h"
#include "quorvane/stylesheet/StyleList.h"
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

}  // namespace

std::string_view styleKindName(StyleKind kind) {
    constexpr std::string_view names[] = {"paragraph", "character", "cell"};
    return names[static_cast<std::size_t>(kind)];
}

struct KnownStyles::Parts {
    Parts(std::string_view styleSheet, TextEncoding encodingOfFile)
        : text(styleSheet), soundText(styleSheet), encoding(encodingOfFile) {}

    void load();
    void repair();

    StyleList& list(StyleKind kind) { return lists[static_cast<std::size_t>(kind)]; }
    std::unordered_set<std::string>& used(StyleKind kind) {
        return usedNames[static_cast<std::size_t>(kind)];
    }

    std::string text;
    std::string soundText;
    TextEncoding encoding;
    std::array<StyleList, 3> lists;
    // In lower case, as the names of styles whose kind is uncertain.
    std::array<std::unordered_set<std::string>, 3> usedNames;
    std::unordered_set<std::string> ofAnyKind;
};

void KnownStyles::Parts::load() {
    for (StyleList& styles : lists) {
        styles.clear();
    }
    parseStyleSheet(soundText, [this](const StyleDefinition& definition) {
        for (const std::string& name : definition.names) {
            const StyleKind kind = styleKindNamed(Style{name, definition.record}.kind());
            list(kind).add(name, definition.record);
        }
    });
}

void KnownStyles::Parts::repair() {
    soundText.clear();
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
