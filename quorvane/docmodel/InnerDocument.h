#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "quorvane/base/memory/SharedText.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/InnerRows.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/rtfgroups/CRtfGrpBody.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/rtfgroups/CRtfGrpDocumentFormat.h"
#include "quorvane/rtfgroups/CRtfGrpFontTable.h"
#include "quorvane/rtfgroups/CRtfGrpHeader.h"
#include "quorvane/rtfgroups/DocumentTables.h"
#include "quorvane/stylesheet/CRtfGrpStyleSheetTable.h"
#include "quorvane/support/GError.h"

namespace quorvane {

/// What a document is inside.
class InnerDocument final : public CRtfDoc, public TableDocument, public DocumentTables {
public:
    explicit InnerDocument(Platform& platform);

    void commit(const std::string& path);
    const std::string& contents();
    void refresh();
    void clearStructure();
    void setExtendedStyleSheets(bool accept);
    const PageAdditions& page() const noexcept;
    bool changed() const noexcept { return staleness_ != Staleness::None; }
    void setChanged(bool changed) noexcept;
    template <class Setting>
    void set(Setting PageAdditions::*setting, Setting value);
    // Finds what rendering could not write, before it begins: a `LayoutError`.
    void checkLayout();
    tColorIndex addColor(RgbColor color);
    std::int32_t addFont(std::string_view name);
    // Renders the document as it is now, and keeps no text. Cannot be interrupted by a change: that
    // is error 5.
    void renderOnce(TextOutput& out);
    // Writes all that comes before the rows of the table that are not in the page header.
    void renderBeginning(TableRendering& rendering);
    // Writes all that comes after them.
    void renderEnd(TextOutput& out) const;
    // True when the document has a stylesheet, but that no style of the kind and name.
    bool lacksStyle(StyleKind kind, std::string_view name) const;
    // True when the document has a short text, and has it in memory.
    bool holdsShortText() const noexcept;
    // True when a cell spans others.
    bool hasSpans() const noexcept {
        return memory().additions && !memory().additions->spans.empty();
    }

    CRtfDoc* document() noexcept override { return this; }
    void markChanged() noexcept override { staleness_ = Staleness::Changed; }
    std::int32_t TextAreaWidth() const override;
    std::string_view GetParagraphStyle(std::string_view sName) const override;
    std::string_view GetCharacterStyle(std::string_view sName) const override;
    std::int32_t cellStyleColor(std::string_view sName) const override;
    const SharedText& sharedName(std::string_view sName) override;
    GError& errors() noexcept override { return errors_; }
    std::int32_t colorNumber(const RgbColor& color) override;
    std::int32_t fontNumber(const std::string& name) override;
    void releaseNumbers() noexcept override;

private:
    friend class CRtfDoc;

    ~InnerDocument() override = default;

    enum class Staleness : std::uint8_t {
        /// The text shows the document.
        None,
        Changed,
        /// Changed, and nothing since the layout was found to be sound.
        Checked
    };

    void initAllGroups();
    template <class Table, class Entry>
    std::int32_t numberIn(Table DocumentAdditions::*table, const Entry& entry, TableUser user);
    bool hasLayout() const;
    bool refreshIfChanged(const char* procedure);
    void render();
    void renderInto(std::string& rtf);
    void render(TableRendering& rendering);
    void renderPageLines(TableRendering& rendering);
    bool streams() const noexcept;
    std::optional<RtfError> stream(const std::string& path);
    void keepText() override;
    void refuseWhileWriting() const;
    void releaseContents() noexcept override;

    Files& files_;
    GError errors_;
    Staleness staleness_ = Staleness::None;
    // Somebody asked for the text, or a change needed it: it stays in memory from then on.
    bool keepsText_ = false;
    // The text with its outer braces; empty while it is in a file only.
    std::string contents_ = "{}";
    CRtfGrpHeader header_;
    CRtfGrpFontTable fontTable_;
    CRtfGrpColorTable colorTable_;
    std::unique_ptr<CRtfGrpStyleSheetTable> styleSheet_;
    std::unique_ptr<CRtfGrpDocumentFormat> format_;
    CRtfGrpBody<InnerRows> body_;
    // Names of styles set lately, at the place of their hash: equal ones share their characters.
    std::array<SharedText, 16> names_;
};

template <class Setting>
void InnerDocument::set(Setting PageAdditions::*setting, Setting value) {
    if (page().*setting == value) {
        return;
    }
    beforeChange();
    memory().makeAdditions().page.*setting = std::move(value);
    markChanged();
}

inline InnerDocument& inner(CRtfDoc& document) noexcept {
    return static_cast<InnerDocument&>(document);
}
inline const InnerDocument& inner(const CRtfDoc& document) noexcept {
    return static_cast<const InnerDocument&>(document);
}

}  // namespace quorvane
