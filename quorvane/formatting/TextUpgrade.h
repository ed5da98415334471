#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/inline/inlineStyles.h"
#include "quorvane/formatting/ShownTexts.h"

namespace quorvane {

/// The values that a paragraph of the extended language has in place of a text in RTF.
struct UpgradedText {
    /// Control words, which come before the text, and the text; nothing for none.
    std::optional<std::string> rtf = {};
    std::optional<std::string> text = {};
    /// Why there is neither: a sentence without a full stop; empty where there is one.
    std::string error = {};
};

/// Turns texts in RTF into literal ones where they hold no more than characters and inline styles,
/// with the words before them that format them. All others stay raw RTF. Both show the same as
/// before.
class TextUpgrade {
public:
    /// The document has the stylesheet of the texts, if it is known, and must outlive the object.
    TextUpgrade(CRtfDoc& document, bool hasStyleSheet);

    /// A value of several lines has LF between them, and each of its lines so many blanks more than
    /// are shown.
    UpgradedText upgraded(std::string_view text, std::size_t indent);

private:
    std::optional<UpgradedText> literalForm(std::string_view text, std::string_view styled,
                                            std::size_t indent);

    CRtfDoc& document_;
    bool hasStyleSheet_;
    InlineStyles inlineStyles_;
    ShownTexts shown_;
};

}  // namespace quorvane
