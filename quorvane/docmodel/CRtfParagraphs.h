#pragma once

#include <cstdint>
#include <string_view>

#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/TableCollection.h"

namespace quorvane {

/// The paragraphs of a cell, in order. A reference to the collection holds the cell.
class CRtfParagraphs : public TableCollection<CRtfParagraphs, CRtfParagraph> {
public:
    /// The owning cell.
    Ref<CRtfTableCell> Parent() const;

    /// 1-based position of a paragraph. Errors: 91 "The paragraph object is set to Nothing" for
    /// null, 5 when it is not in the list.
    std::int32_t indexOf(const CRtfParagraph* paragraph) const;

    /// Puts a new paragraph with this key, and with the text and the style of the old one, in
    /// its place, and returns it. Errors: 5 the old paragraph is not in the list, 457 the key is
    /// there already, the old paragraph's own included.
    Ref<CRtfParagraph> refile(const Ref<CRtfParagraph>& old, std::string_view key);

protected:
    CRtfParagraphs() = default;
    ~CRtfParagraphs() = default;
};

}  // namespace quorvane
