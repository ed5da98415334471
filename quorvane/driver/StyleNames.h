#pragma once

#include <string>
#include <string_view>

#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/stylesheet/StyleKind.h"

namespace quorvane {

/// The names of styles that a document is given, which must be in its stylesheet.
class StyleNames {
public:
    /// The document must outlive them.
    explicit StyleNames(const CRtfDoc& document) : document_(inner(document)) {}

    /// Does nothing for a name that is in the stylesheet, for an empty one, and without a
    /// stylesheet; otherwise a `LeafError` of the fault `UndefinedStyle`.
    void require(StyleKind kind, std::string_view name);
    /// For when the document gets another stylesheet.
    void forget();

private:
    const InnerDocument& document_;
    // Those looked up last, which are in the stylesheet: most neighbors have the same style.
    std::string knownParagraphStyle_;
    std::string knownCellStyle_;
};

}  // namespace quorvane
