#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/platform/Files.h"
#include "quorvane/base/text/TextOutput.h"
#include "quorvane/rtfgroups/GroupOwner.h"
#include "quorvane/stylesheet/CellColorLookup.h"
#include "quorvane/stylesheet/StyleKind.h"
#include "quorvane/stylesheet/StyleList.h"
#include "quorvane/stylesheet/StyleLookup.h"
#include "quorvane/stylesheet/stylesheetParser.h"

namespace quorvane {

/// The styles of a document: what a stylesheet defines, the group that is written for it, and the
/// lookups made while the document is rendered. Until a stylesheet is read without an error, the
/// group is empty and every lookup returns empty. Lookups ignore the case of a name but do not trim
/// it: no stylesheet has a name like "strong ". They never fail.
class CRtfGrpStyleSheetTable {
public:
    CRtfGrpStyleSheetTable(GroupOwner& owner, Files& files) : owner_(owner), files_(files) {}

    /// From then on stylesheets that are marked as extended are read as such. Colors and fonts that
    /// are not in the tables of the document go into `tables`; null, as it is at first, for
    /// stylesheets in the original language alone.
    void setExtendedTables(DocumentTables* tables) noexcept { tables_ = tables; }
    bool acceptsExtended() const noexcept { return tables_; }

    /// Name of the file of the stylesheet; empty when the styles come from a text.
    const std::string& StyleSheetFile() const { return fileName_; }
    /// Forgets all styles and reads those of a file (Windows-1252), whatever its extension. The
    /// document is marked changed on success, and when styles had been loaded before. A missing
    /// file is not an error: its name is kept and no styles are loaded. A file that exists but
    /// cannot be read counts as empty. Errors 445 and 31037 for a bad stylesheet; the name is empty
    /// then.
    void setStyleSheetFile(std::string sName);

    /// Forgets all styles and the file name and reads the styles of a text (UTF-8). Marks the
    /// document changed as `setStyleSheetFile` does. Errors 445 and 31037 for a bad stylesheet.
    void loadStyleSheetFromMemory(std::string_view text);

    /// True when a stylesheet was read without an error.
    bool StyleSheetOk() const noexcept { return loaded_; }

    /// True when there are styles, but none of this kind and name.
    bool lacks(StyleKind kind, std::string_view sName) const;

    /// True when the words of a character style hold a "<": only then can inline styles make a text
    /// endless.
    bool CharacterWordsHoldTokens() const noexcept { return characterWordsHoldTokens_; }

    /// True when a paragraph, character or cell style of that name exists.
    bool IsStyleDefined(std::string_view sName) const;

    /// The words that select the named paragraph style. For an unknown name those of the first
    /// paragraph style, with the number 0; empty without a paragraph style. Valid until the next
    /// load.
    std::string_view GetParagraphStyle(std::string_view sName) const;

    /// The words that select the named character style; empty for an unknown name. Valid until the
    /// next load.
    std::string_view GetCharacterStyle(std::string_view sName) const;

    /// Number in the color table of the color that the named cell style has as its format; 0 for an
    /// unknown style, "none", and a word that does not name a color.
    std::int32_t getCellStyleBackColor(std::string_view sName) const;

    /// The format words of the named cell style; empty for an unknown name.
    std::string GetMarkedFieldStyle(std::string_view sName) const;

    /// True when looking up a name again that was looked up before takes no memory.
    bool keepsNames() const noexcept {
        return paragraphLookup_.keepsNames() && characterLookup_.keepsNames() &&
               cellColors_.keepsNames();
    }

    /// Writes the group's text.
    void render(TextOutput& rtf) const;

private:
    // Removes what was loaded before.
    void clear() noexcept;
    void load(std::string_view text);
    void loadOriginal(std::string_view text);
    void loadExtended(std::string_view text);
    void prepare(const SheetForm& form);
    bool isExtended(std::string_view text) const;
    void file(const StyleDefinition& definition);

    GroupOwner& owner_;
    Files& files_;
    DocumentTables* tables_ = nullptr;
    std::string fileName_;
    bool loaded_ = false;
    bool characterWordsHoldTokens_ = false;
    // The group's text, which is the same for every rendering.
    std::string group_;
    StyleList paragraphStyles_;
    StyleList characterStyles_;
    StyleList cellStyles_;
    StyleLookup paragraphLookup_;
    StyleLookup characterLookup_;
    CellColorLookup cellColors_;
};

}  // namespace quorvane
