#pragma once

#include <string>
#include <string_view>

#include "quorvane/docmodel/inline/inlineStyles.h"

namespace quorvane {

/// The text of a document with its inline character styles in RTF.
inline std::string withCharacterStyles(const TableDocument& document, std::string_view text) {
    return std::string(InlineStyles(document).replace(text));
}

}  // namespace quorvane
