#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// Looks up the styles that a description names, marks them as used and warns of those that the
/// stylesheet lacks.
class StyleUses {
public:
    StyleUses(KnownStyles& styles, const SourceText& source, DiagnosticEngine& engine)
        : styles_(styles), source_(source), engine_(engine) {}

    void findCellStyle(const Leaf& leaf);
    void findParagraphStyle(const Leaf& leaf);
    /// The inline styles in a literal text. What opens no style is text there; one that was most
    /// likely meant to open a style is reported.
    void findLiteralInlineStyles(const Leaf& leaf);
    /// The inline styles in the text of a paragraph, a view into the source.
    void findInlineStyles(std::string_view text);

    bool lacks(StyleKind kind, std::string_view name) const { return styles_.lacks(kind, name); }
    void markUsed(StyleKind kind, std::string_view name) { styles_.markUsed(kind, name); }
    /// What was most likely meant by a name that the stylesheet lacks.
    Hint hintFor(StyleKind kind, std::string_view name);

private:
    std::vector<std::string_view> unclosedInlineStyles(std::string_view text) const;
    void reportUnclosed(std::string_view name, std::string_view place);

    // Looking for the style that was meant takes a while.
    static constexpr int maxHints = 1000;

    KnownStyles& styles_;
    const SourceText& source_;
    DiagnosticEngine& engine_;
    int hints_ = 0;
};

}  // namespace quorvane
