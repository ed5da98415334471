#pragma once

#include <optional>
#include <string>

#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// The styles that paragraphs and cells must name to look the same in the extended language. There
/// paragraphs without a style have the style "normal", in the original language the first one, and
/// so have those with a name that the stylesheet lacks, which is an error there.
class StyleNameUpgrade {
public:
    /// Without a stylesheet all names stay as they are.
    explicit StyleNameUpgrade(const std::optional<std::string>& styleSheet);

    /// The name for a leaf; empty if it must go.
    std::string nameFor(const Leaf& leaf, StyleKind kind) const;
    /// The name for paragraphs without a style; empty if they stay without one.
    const std::string& inPlaceOfNone() const { return inPlaceOfNone_; }

private:
    // Those that the upgraded stylesheet has.
    std::optional<KnownStyles> styles_;
    std::string inPlaceOfNone_;
};

}  // namespace quorvane
