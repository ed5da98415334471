#pragma once

#include <cstdint>
#include <string_view>

#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/TableCollection.h"

namespace quorvane {

/// The paragraphs of a cell, in order. A host that holds the collection keeps the cell alive.
class CRtfParagraphs : public TableCollection<CRtfParagraphs, CRtfParagraph> {
public:
    /// Returns the cell; never null.
    Ref<CRtfTableCell> Parent() const;

    /// Returns the position of a paragraph, from 1. Errors: 91 "The paragraph object is set to
    /// Nothing" for null, 5 if it is not in the list.
    std::int32_t indexOf(const CRtfParagraph* paragraph) const;

    /// Replaces a paragraph with a new one that has this key and the old one's text, style and
    /// picture, and returns the new one. Errors: 5 if the old paragraph is not in the list, 457 if
    /// the key is already in the list, even as the old paragraph's own key.
    Ref<CRtfParagraph> refile(const Ref<CRtfParagraph>& old, std::string_view key);

protected:
    CRtfParagraphs() = default;
    ~CRtfParagraphs() = default;
};

}  // namespace quorvane
