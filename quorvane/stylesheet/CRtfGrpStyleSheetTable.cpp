#include "quorvane/stylesheet/CRtfGrpStyleSheetTable.h"

#include <utility>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/support/GFileSystem.h"

namespace quorvane {

namespace {

std::string reference(std::string_view word, const StyleList& styles, const std::string& name) {
    const int position = name.empty() ? -1 : styles.find(name);
    return position < 0 ? std::string() : std::string(word) + std::to_string(styleNumber(position));
}

std::string paragraphEntry(const StyleList& styles, int position) {
    const Style& style = styles.at(position);
    std::string words;
    if (style.name != "normal") {
        words = "\\" + style.kind() + std::to_string(styleNumber(position));
    }
    words += " " + style.format();
    if (style.isAdditive()) {
        words += " \\additive";
    }
    words += reference(" \\sbasedon", styles, style.basedOn());
    words += reference(" \\snext", styles, style.next());
    words += " " + style.name;
    return "{" + std::string(trimBlanks(words)) + ";}";
}

std::string characterEntry(const StyleList& styles, int position) {
    const Style& style = styles.at(position);
    std::string words = "\\*\\" + style.kind() + std::to_string(styleNumber(position));
    if (style.isAdditive()) {
        words += " \\additive";
    }
    words += reference(" \\sbasedon", styles, style.basedOn());
    return "{" + words + " " + style.format() + " " + style.name + ";}";
}

bool holdTokens(const StyleList& styles) {
    const int count = static_cast<int>(styles.count());
    for (int position = 1; position <= count; ++position) {
        if (styles.at(position).format().find('<') != std::string::npos) {
            return true;
        }
    }
    return false;
}

template <class Entry>
void appendEntries(const StyleList& styles, Entry entry, std::string& rtf) {
    const int count = static_cast<int>(styles.count());
    for (int position = 1; position <= count; ++position) {
        rtf += "\r\n";
        rtf += entry(styles, position);
    }
}

}  // namespace

void CRtfGrpStyleSheetTable::setStyleSheetFile(std::string sName) {
    owner_.beforeChange();
    clear();
    if (GFileSystem::fileExists(files_, sName)) {
        load(GFileSystem::loadStringFromFile(files_, sName));
    }
    fileName_ = std::move(sName);
}

void CRtfGrpStyleSheetTable::loadStyleSheetFromMemory(std::string_view text) {
    owner_.beforeChange();
    clear();
    load(text);
}

bool CRtfGrpStyleSheetTable::IsStyleDefined(std::string_view sName) const {
    const std::string name = lowerCase(sName);
    return loaded_ && (paragraphStyles_.find(name) > 0 || characterStyles_.find(name) > 0 ||
                       cellStyles_.find(name) > 0);
}

std::string_view CRtfGrpStyleSheetTable::GetParagraphStyle(std::string_view sName) const {
    return loaded_ ? paragraphLookup_.find(paragraphStyles_, sName) : std::string_view();
}

std::string_view CRtfGrpStyleSheetTable::GetCharacterStyle(std::string_view sName) const {
    return loaded_ ? characterLookup_.find(characterStyles_, sName) : std::string_view();
}

std::int32_t CRtfGrpStyleSheetTable::getCellStyleBackColor(std::string_view sName) const {
    return loaded_ ? cellColors_.find(cellStyles_, sName) : 0;
}

std::string CRtfGrpStyleSheetTable::GetMarkedFieldStyle(std::string_view sName) const {
    const int position = loaded_ ? cellStyles_.find(lowerCase(sName)) : -1;
    return position < 0 ? std::string() : cellStyles_.at(position).format();
}

void CRtfGrpStyleSheetTable::render(TextOutput& rtf) const {
    if (loaded_) {
        rtf << group_;
    }
}

void CRtfGrpStyleSheetTable::clear() noexcept {
    if (loaded_) {
        owner_.markChanged();
    }
    fileName_.clear();
    loaded_ = false;
    characterWordsHoldTokens_ = false;
    paragraphStyles_.clear();
    characterStyles_.clear();
    cellStyles_.clear();
}

void CRtfGrpStyleSheetTable::load(std::string_view text) {
    parseStyleSheet(text, [this](const StyleDefinition& definition) { file(definition); });
    // A paragraph of an unknown style gets the first one, under a number that no style has.
    paragraphLookup_ = StyleLookup(
        paragraphStyles_,
        paragraphStyles_.empty() ? std::string() : selectionWords(paragraphStyles_.at(1), 0));
    characterLookup_ = StyleLookup(characterStyles_, {});
    cellColors_ = CellColorLookup(cellStyles_);
    group_ = "\r\n{\\stylesheet";
    appendEntries(paragraphStyles_, paragraphEntry, group_);
    appendEntries(characterStyles_, characterEntry, group_);
    group_ += '}';
    characterWordsHoldTokens_ = holdTokens(characterStyles_);
    loaded_ = true;
    owner_.markChanged();
}

void CRtfGrpStyleSheetTable::file(const StyleDefinition& definition) {
    for (const std::string& name : definition.names) {
        const StyleKind kind = styleKindNamed(Style{name, definition.record}.kind());
        StyleList& styles = kind == StyleKind::Paragraph   ? paragraphStyles_
                            : kind == StyleKind::Character ? characterStyles_
                                                           : cellStyles_;
        styles.add(name, definition.record);
    }
}

}  // namespace quorvane
