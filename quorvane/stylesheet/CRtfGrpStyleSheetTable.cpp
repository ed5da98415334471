#include "quorvane/stylesheet/CRtfGrpStyleSheetTable.h"

#include <optional>
#include <utility>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/stylesheet/styleSheetGroup.h"
#include "quorvane/support/GFileSystem.h"

namespace quorvane {

namespace {

bool holdTokens(const StyleList& styles) {
    const int count = static_cast<int>(styles.count());
    for (int position = 1; position <= count; ++position) {
        if (styles.at(position).format().find('<') != std::string::npos) {
            return true;
        }
    }
    return false;
}

}  // namespace

void CRtfGrpStyleSheetTable::setStyleSheetFile(std::string sName) {
    owner_.beforeChange();
    clear();
    if (GFileSystem::fileExists(files_, sName)) {
        const std::string text = GFileSystem::loadStringFromFile(files_, sName);
        // An extended stylesheet is UTF-8: its bytes are those that the code page gives back.
        load(isExtended(text) ? codePage1252FromUtf8(text) : text);
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

bool CRtfGrpStyleSheetTable::lacks(StyleKind kind, std::string_view sName) const {
    const StyleList& styles = kind == StyleKind::Paragraph   ? paragraphStyles_
                              : kind == StyleKind::Character ? characterStyles_
                                                             : cellStyles_;
    return loaded_ && styles.find(lowerCase(sName)) < 0;
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
    if (tables_) {
        tables_->releaseNumbers();
    }
    fileName_.clear();
    loaded_ = false;
    characterWordsHoldTokens_ = false;
    paragraphStyles_.clear();
    characterStyles_.clear();
    cellStyles_.clear();
}

void CRtfGrpStyleSheetTable::load(std::string_view text) {
    if (isExtended(text)) {
        loadExtended(text);
    } else {
        loadOriginal(text);
    }
    characterWordsHoldTokens_ = holdTokens(characterStyles_);
    loaded_ = true;
    owner_.markChanged();
}

void CRtfGrpStyleSheetTable::loadOriginal(std::string_view text) {
    parseStyleSheet(text, [this](const StyleDefinition& definition) { file(definition); });
    cellColors_ = CellColorLookup(cellStyles_, CRtfGrpColorTable::colorNumber);
    prepare(originalForm(paragraphStyles_));
}

void CRtfGrpStyleSheetTable::loadExtended(std::string_view text) {
    parseExtendedStyleSheet(text, *tables_,
                            [this](const StyleDefinition& definition) { file(definition); });
    cellColors_ = CellColorLookup(cellStyles_, [this](const std::string& name) {
        const std::optional<RgbColor> color = readColor(name);
        return color ? tables_->colorNumber(*color) : 0;
    });
    prepare(extendedForm(paragraphStyles_));
}

void CRtfGrpStyleSheetTable::prepare(const SheetForm& form) {
    paragraphLookup_ = StyleLookup(
        paragraphStyles_, form.paragraph,
        form.unknown > 0 ? selectionWords(paragraphStyles_.at(form.unknown), 0) : std::string());
    characterLookup_ = StyleLookup(characterStyles_, form.character, {});
    group_ = styleSheetGroup(paragraphStyles_, characterStyles_, form);
}

bool CRtfGrpStyleSheetTable::isExtended(std::string_view text) const {
    return tables_ && isMarkedExtended(text);
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
