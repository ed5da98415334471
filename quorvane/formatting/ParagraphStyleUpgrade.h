#pragma once

#include <optional>
#include <string>

#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// The style that a paragraph without one, or with one that the stylesheet does not have, must name
/// to look the same in the extended language. There such paragraphs have the style "normal", in the
/// original language the first one.
class ParagraphStyleUpgrade {
public:
    /// Without a stylesheet, or with an extended one, no paragraph needs another style.
    explicit ParagraphStyleUpgrade(const std::optional<std::string>& styleSheet);

    /// Empty for a paragraph that keeps what it has.
    std::string styleFor(const DescriptionNode& paragraph) const;

private:
    std::optional<KnownStyles> styles_;
    std::string first_;
};

}  // namespace quorvane
