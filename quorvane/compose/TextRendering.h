#pragma once

#include <string>
#include <string_view>

#include "quorvane/compose/Text.h"
#include "quorvane/docmodel/InnerDocument.h"

namespace quorvane {

/// Makes the RTF of texts.
class TextRendering {
public:
    /// The document, whose styles the texts have, must outlive it.
    explicit TextRendering(const InnerDocument& document) : document_(document) {}

    /// The RTF of a text, valid until the next call.
    std::string_view rtfOf(const TextView& view);

private:
    void append(std::string_view marked);
    void appendNamed(char kind, std::string_view name);
    std::string_view wordsOf(std::string_view style) const;

    const InnerDocument& document_;
    // It keeps its memory for the next text.
    std::string rtf_;
};

}  // namespace quorvane
