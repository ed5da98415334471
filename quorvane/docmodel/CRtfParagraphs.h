#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/TableCollection.h"
#include "quorvane/docmodel/references.h"

namespace quorvane {

/// The paragraphs of a cell, in order. Who holds the collection holds the cell.
class CRtfParagraphs : public TableCollection<CRtfParagraphs, CRtfParagraph> {
public:
    /// The owning cell.
    Ref<CRtfTableCell> Parent() const { return Ref<CRtfTableCell>(&cell_); }

    /// 1-based position of a paragraph. Errors: 91 "The paragraph object is set to Nothing" for
    /// null, 5 when it is not in the list.
    std::int32_t indexOf(const CRtfParagraph* paragraph) const;

    /// Puts a new paragraph with this key, and with the text and the style of the old one, in
    /// its place, and answers it. Errors: 5 the old paragraph is not in the list, 457 the key is
    /// there already, the old paragraph's own included.
    Ref<CRtfParagraph> refile(const Ref<CRtfParagraph>& old, std::string_view key);

private:
    friend class TableCollection;
    friend class CRtfTableCell;
    friend void retain(CRtfParagraphs* paragraphs) noexcept;
    friend void release(CRtfParagraphs* paragraphs) noexcept;

    explicit CRtfParagraphs(CRtfTableCell& cell) : cell_(cell) {}

    TableDocument* document() const noexcept { return documentOf(cell_); }
    void insertNew(const List::Place& place, TableDocument& document);
    void removeAt(std::size_t position) noexcept;
    void takeFrom(CRtfParagraphs& other);
    void setForeColors(tColorIndex color) noexcept;
    void setAligns(tCellAlign align) noexcept;
    void render(TableRendering& rendering) const;

    CRtfTableCell& cell_;
};

}  // namespace quorvane
