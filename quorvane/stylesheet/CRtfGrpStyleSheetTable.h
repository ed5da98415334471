#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/platform/Files.h"
#include "quorvane/rtfgroups/GroupOwner.h"
#include "quorvane/stylesheet/StyleAnswers.h"
#include "quorvane/stylesheet/StyleList.h"
#include "quorvane/stylesheet/stylesheetParser.h"

namespace quorvane {

/// The document's styles: what a stylesheet text defines, the group that is written for it, and the
/// lookups made while the document is rendered. Until a stylesheet was read without an error the
/// group is empty and every lookup answers empty. Lookups take no regard of the case of the name
/// that they are asked for, but do not trim it: "strong " is a name that no sheet has. They never
/// fail.
class CRtfGrpStyleSheetTable {
public:
    CRtfGrpStyleSheetTable(GroupOwner& owner, Files& files) : owner_(owner), files_(files) {}

    /// Name of the stylesheet's file; empty when the styles come from a text.
    const std::string& StyleSheetFile() const { return fileName_; }
    /// Forgets all styles and reads those of a file (Windows-1252), whatever its extension. The
    /// document is marked changed on success, and when styles had been loaded before. A missing
    /// file raises nothing: its name is kept and no styles are loaded. A file that exists but
    /// cannot be read counts as empty. Errors 445 and 31037 for a bad stylesheet; the name is empty
    /// then.
    void setStyleSheetFile(std::string sName);

    /// Forgets all styles and the file name and reads the styles of a text (UTF-8). Marks the
    /// document changed as `setStyleSheetFile` does. Errors 445 and 31037 for a bad stylesheet.
    void loadStyleSheetFromMemory(std::string_view text);

    /// True when a stylesheet was read without an error.
    bool StyleSheetOk() const noexcept { return loaded_; }

    /// True when a "<" stands in the words of a character style: only then can inline styles make a
    /// text endless.
    bool CharacterWordsHoldTokens() const noexcept { return characterWordsHoldTokens_; }

    /// True when a paragraph, character or cell style of that name exists.
    bool IsStyleDefined(std::string_view sName) const;

    /// The words that select the named paragraph style. For an unknown name those of the first
    /// paragraph style, with number 0; empty when there is no paragraph style. Good until the next
    /// load.
    std::string_view GetParagraphStyle(std::string_view sName) const;

    /// The words that select the named character style; empty when there is none. Good until the
    /// next load.
    std::string_view GetCharacterStyle(std::string_view sName) const;

    /// Number in the colour table of the colour that the named cell style has as its format; 0 for
    /// an unknown style, "none", and a word that names no colour.
    std::int32_t getCellStyleBackColor(std::string_view sName) const;

    /// The format words of the named style among the cell styles; empty when there is none.
    std::string GetMarkedFieldStyle(std::string_view sName) const;

    /// Appends the group's text.
    void render(std::string& rtf) const;

private:
    // Takes away what was loaded before; the document then differs from its text.
    void clear() noexcept;
    void load(std::string_view text);
    void file(const StyleDefinition& definition);

    GroupOwner& owner_;
    Files& files_;
    std::string fileName_;
    bool loaded_ = false;
    bool characterWordsHoldTokens_ = false;
    // The group's text, which is the same for every rendering.
    std::string group_;
    StyleList paragraphStyles_;
    StyleList characterStyles_;
    StyleList cellStyles_;
    StyleAnswers paragraphAnswers_;
    StyleAnswers characterAnswers_;
};

}  // namespace quorvane
