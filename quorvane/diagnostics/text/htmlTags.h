#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// A tag of HTML that stands in a text, where it is nothing but text.
struct HtmlTag {
    /// The tag as it is written; a view into the text.
    std::string_view tag;
    /// What does here what the tag does there.
    Hint hint;
};

/// The tags of HTML in a paragraph's text; of a pair, the opening one. Styles, which may be null,
/// are those whose names serve in the hints.
std::vector<HtmlTag> htmlTagsIn(std::string_view text, const KnownStyles* styles);

}  // namespace quorvane
