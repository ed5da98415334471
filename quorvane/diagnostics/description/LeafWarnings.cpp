#include "quorvane/diagnostics/description/LeafWarnings.h"

#include <cstddef>
#include <string>
#include <utility>

#include "quorvane/diagnostics/description/nodeNouns.h"
#include "quorvane/diagnostics/text/htmlTags.h"
#include "quorvane/diagnostics/text/rtfText.h"
#include "quorvane/driver/soundLeaf.h"

namespace quorvane {

LeafWarnings::LeafWarnings(KnownStyles* styles, const SourceText& source, DiagnosticEngine& engine)
    : styles_(styles), source_(source), engine_(engine) {
    if (styles) {
        styleUses_.emplace(*styles, source, engine);
    }
}

void LeafWarnings::findInLeaves(const DescriptionNode& node) {
    for (const Leaf& leaf : node.leaves()) {
        if (leaf.isFaulty) {
            continue;
        }
        findCutValue(leaf);
        switch (leaf.key.known) {
            case DescriptionKey::RowKey:
            case DescriptionKey::CellKey:
            case DescriptionKey::ParaKey:
                findLeadingZeros(leaf);
                findLostAlignment(node, leaf);
                break;
            case DescriptionKey::CellMarkedField:
            case DescriptionKey::ParaMarkedField:
                findInFieldData(leaf);
                break;
            case DescriptionKey::CellStyle:
                findLeadingZeros(leaf);
                if (styleUses_) {
                    styleUses_->findCellStyle(leaf);
                }
                break;
            case DescriptionKey::ParaStyle:
                findLeadingZeros(leaf);
                if (styleUses_) {
                    styleUses_->findParagraphStyle(leaf);
                }
                break;
            case DescriptionKey::ParaText:
                findInText(leaf);
                break;
            default:
                break;
        }
    }
}

/// A value with a "(" that ends at the first ")" while another one stands in the comment after
/// the leaf.
void LeafWarnings::findCutValue(const Leaf& leaf) {
    constexpr std::string_view escape = "\\'29";
    std::ptrdiff_t open = 0;
    for (std::size_t at = 0; at < leaf.text.size(); ++at) {
        const bool isClosed = leaf.text.substr(at).starts_with(escape) && open > 0;
        open += leaf.text[at] == '(' ? 1 : (isClosed ? -1 : 0);
    }
    if (open == 0) {
        return;
    }
    const char* const valueEnd = leaf.text.data() + leaf.text.size();
    const std::size_t end =
        source_.text().find(')', static_cast<std::size_t>(valueEnd - source_.text().data()));
    if (end == std::string_view::npos) {
        return;
    }
    const std::string_view rest = source_.text().substr(end);
    const std::string_view line = rest.substr(0, rest.find_first_of("\r\n"));
    if (const std::size_t last = line.rfind(')'); last > 0) {
        engine_.report(DiagnosticId::CutValue, source_.placeOf(line.substr(0, last + 1)),
                       {line.substr(0, last)},
                       leaf.key.known == DescriptionKey::ParaText
                           ? "write \\'29 for a literal )"
                           : "this value cannot contain a )");
    }
}

void LeafWarnings::findLeadingZeros(const Leaf& leaf) {
    const std::string read = leaf.valueText();
    if (read != leaf.text) {
        report(DiagnosticId::LeadingZeros, leaf, {leaf.text, read});
    }
}

void LeafWarnings::findLostAlignment(const DescriptionNode& node, const Leaf& leaf) {
    const Leaf* alignment =
        soundLeaf(node, node.kind == NodeKind::Cell ? DescriptionKey::CellAlignment
                                                    : DescriptionKey::ParaAlignment);
    if (alignment) {
        report(DiagnosticId::LostAlignment, *alignment, {leaf.key.name, nodeNoun(node.kind)});
    }
}

void LeafWarnings::findInFieldData(const Leaf& leaf) {
    findTextWarnings(leaf.text, TextUse::FieldData, styles_, source_, engine_);
    if (leaf.isNumber()) {
        report(DiagnosticId::RefusedMarkedField, leaf, {leaf.text},
               "put a letter in front of the number: N" + std::string(leaf.text));
    }
}

void LeafWarnings::findInText(const Leaf& leaf) {
    if (leaf.text.empty()) {
        engine_.report(DiagnosticId::EmptyText, source_.placeOf(leaf.text));
    }
    findTextWarnings(leaf.text, TextUse::Text, styles_, source_, engine_);
    for (HtmlTag& tag : htmlTagsIn(leaf.text, styles_)) {
        engine_.report(DiagnosticId::HtmlTag, source_.placeOf(tag.tag), {tag.tag},
                       std::move(tag.hint));
    }
    if (styleUses_) {
        styleUses_->findInlineStyles(leaf.text);
    }
}

void LeafWarnings::report(DiagnosticId id, const Leaf& leaf,
                          std::initializer_list<std::string_view> arguments, Hint hint) {
    engine_.report(id, source_.placeOf(leaf.text), arguments, std::move(hint));
}

}  // namespace quorvane
