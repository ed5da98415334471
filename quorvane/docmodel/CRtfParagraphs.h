#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/TableCollection.h"
#include "quorvane/docmodel/references.h"

namespace quorvane {

/// The paragraphs of a cell, in order. A host that holds the collection keeps the cell alive.
class CRtfParagraphs : public TableCollection<CRtfParagraphs, CRtfParagraph> {
public:
    /// Returns the cell; never null.
    Ref<CRtfTableCell> Parent() const { return Ref<CRtfTableCell>(&cell_); }

    /// Returns the position of a paragraph, from 1. Errors: 91 "The paragraph object is set to
    /// Nothing" for null, 5 if it is not in the list.
    std::int32_t indexOf(const CRtfParagraph* paragraph) const;

    /// Replaces a paragraph with a new one that has this key and the old one's text and style, and
    /// returns the new one. Errors: 5 if the old paragraph is not in the list, 457 if the key is
    /// already in the list, even as the old paragraph's own key.
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
