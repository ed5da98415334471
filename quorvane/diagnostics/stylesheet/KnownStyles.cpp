#include "quorvane/diagnostics/stylesheet/KnownStyles.h"

#include <algorithm>
#include <vector>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetOutline.h"
#include "quorvane/stylesheet/stylesheetParser.h"

namespace quorvane {

namespace {

std::string searched(std::string_view name) {
    return lowerCase(name);
}

StyleKind kindOf(const std::string& word) {
    return word == "s" ? StyleKind::Paragraph
                       : (word == "cs" ? StyleKind::Character : StyleKind::Cell);
}

/// A definition without what is wrong with it.
struct MendedDefinition {
    std::string text;
    std::string names;
    bool isKindSure = true;
};

std::string withoutBraces(std::string_view text) {
    std::string kept(text);
    std::erase_if(kept, [](char character) { return character == '{' || character == '}'; });
    return kept;
}

bool isKeyword(std::string_view word) {
    return word == "style-def" || word == "format" || word == "based-on" || word == "next" ||
           word == "additive";
}

/// The first item names the style, whatever its keyword; a definition that begins with another
/// item may name it later.
std::string_view namesOf(const SheetDefinition& definition) {
    const std::vector<SheetItem>& items = definition.items;
    if (items.empty() || !isKeyword(items.front().keyword)) {
        return items.empty() ? std::string_view() : items.front().value;
    }
    const auto named = std::find_if(items.begin(), items.end(),
                                    [](const SheetItem& item) { return item.keyword == "name"; });
    return named == items.end() ? std::string_view() : named->value;
}

MendedDefinition mendedDefinition(const SheetDefinition& definition) {
    MendedDefinition mended;
    mended.names = withoutBraces(namesOf(definition));
    if (mended.names.empty()) {
        return mended;
    }
    bool hasKind = false;
    mended.text = "{name:" + mended.names;
    for (const SheetItem& item : definition.items) {
        const std::string value = withoutBraces(item.value);
        const std::string word = lowerCase(value);
        const bool isKind = word == "s" || word == "cs" || word == "cell";
        if (item.keyword == "style-def") {
            hasKind = true;
            mended.isKindSure = mended.isKindSure && isKind;
        }
        const bool isSound = item.keyword == "style-def"  ? isKind
                             : item.keyword == "additive" ? word == "yes" || word == "no"
                                                          : isKeyword(item.keyword);
        if (isSound) {
            mended.text += ";" + item.keyword + ":" + value;
        }
    }
    // A word that is no keyword may have been meant for style-def.
    const auto strange =
        std::count_if(definition.items.begin() + 1, definition.items.end(),
                      [](const SheetItem& item) { return !isKeyword(item.keyword); });
    mended.isKindSure = mended.isKindSure && (hasKind || strange == 0);
    mended.text += "}";
    return mended;
}

}  // namespace

std::string_view styleKindName(StyleKind kind) {
    constexpr std::string_view names[] = {"paragraph", "character", "cell"};
    return names[static_cast<std::size_t>(kind)];
}

KnownStyles::KnownStyles(std::string_view styleSheet) : text_(styleSheet), soundText_(styleSheet) {
    try {
        load();
        areLoaded_ = true;
    } catch (const RtfError&) {
        mend();
        load();
    }
}

void KnownStyles::load() {
    for (StyleList& list : lists_) {
        list.clear();
    }
    parseStyleSheet(soundText_, [this](const StyleDefinition& definition) {
        for (const std::string& name : definition.names) {
            const StyleKind kind = kindOf(Style{name, definition.record}.kind());
            lists_[static_cast<std::size_t>(kind)].add(name, definition.record);
        }
    });
}

void KnownStyles::mend() {
    soundText_.clear();
    for (const SheetDefinition& definition : readStyleSheetOutline(text_).definitions) {
        const MendedDefinition mended = mendedDefinition(definition);
        soundText_ += mended.text;
        if (!mended.isKindSure) {
            for (const std::string_view name : namesIn(mended.names)) {
                ofAnyKind_.insert(searched(name));
            }
        }
    }
}

int KnownStyles::find(StyleKind kind, std::string_view name) const {
    return styles(kind).find(searched(name));
}

bool KnownStyles::lacks(StyleKind kind, std::string_view name) const {
    return find(kind, name) < 0 && !isOfAnyKind(name);
}

bool KnownStyles::isOfAnyKind(std::string_view name) const {
    return ofAnyKind_.contains(searched(name));
}

void KnownStyles::markUsed(StyleKind kind, std::string_view name) {
    used_[static_cast<std::size_t>(kind)].insert(searched(name));
}

bool KnownStyles::isUsed(StyleKind kind, std::string_view name) const {
    return used_[static_cast<std::size_t>(kind)].contains(searched(name));
}

}  // namespace quorvane
