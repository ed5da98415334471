#include "quorvane/diagnostics/description/trialDocument.h"

#include <optional>
#include <string>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/DescriptionTree.h"
#include "quorvane/driver/DocumentBuilder.h"

namespace quorvane {

namespace {

/// The nodes and leaves of the trial document, where a line's number stands for a leaf: its
/// position among all leaves, from 1 on.
class TrialTree {
public:
    TrialTree(OutlineNode& doc, const Vocabulary& vocabulary) : vocabulary_(vocabulary) {
        copy(doc, tree_.root());
    }

    const DescriptionNode& root() const { return tree_.root(); }
    OutlineLeaf* leafAt(int number) const {
        const auto index = static_cast<std::size_t>(number) - 1;
        return index < leaves_.size() ? leaves_[index] : nullptr;
    }

private:
    void copy(OutlineNode& node, DescriptionNode& target) {
        for (OutlineLeaf& leaf : node.leaves) {
            if (!leaf.isFaulty) {
                leaves_.push_back(&leaf);
                tree_.addLeaf(target, {.key = vocabulary_.leafKey(leaf.key),
                                       .text = leaf.text,
                                       .number = leaf.number.value_or(0),
                                       .kind = leaf.number ? LeafKind::Number : LeafKind::Text,
                                       .line = static_cast<int>(leaves_.size())});
            }
        }
        // No deeper than rows, cells and paragraphs.
        for (OutlineNode* child : builtChildren(node)) {
            copy(*child, tree_.AddNode(target, child->kind, child->number, 0));
        }
    }

    const Vocabulary& vocabulary_;
    DescriptionTree tree_;
    std::vector<OutlineLeaf*> leaves_;
};

/// What the check says of an error of a leaf; nothing where a driver tells it as it is.
std::optional<DiagnosticId> idOf(const RtfError& error) {
    return error.is(RunTimeError::Overflow)       ? std::optional(DiagnosticId::Overflow)
           : error.is(RunTimeError::DuplicateKey) ? std::optional(DiagnosticId::TakenKey)
                                                  : std::nullopt;
}

}  // namespace

std::vector<OutlineNode*> builtChildren(const OutlineNode& node) {
    std::vector<OutlineNode*> built;
    for (OutlineNode* child : node.children) {
        if (!child->isFaulty && nests(node.kind, child->kind)) {
            built.push_back(child);
        }
    }
    return built;
}

Ref<CRtfDoc> buildTrialDocument(DescriptionOutline& outline, const SourceText& source,
                                const Vocabulary& vocabulary, const KnownStyles* styles,
                                Platform& platform, DiagnosticEngine& engine) {
    if (!outline.doc) {
        return nullptr;
    }
    // Each attempt costs as much as the build: what goes wrong so often is not looked at further.
    constexpr int mostAttempts = 20;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        Ref<CRtfDoc> document = CRtfDoc::create(platform);
        if (styles) {
            document->LoadStyleSheetFromMemmory(styles->soundText());
        }
        const TrialTree tree(*outline.doc, vocabulary);
        try {
            DocumentBuilder(*document, vocabulary).build(tree.root());
            return document;
        } catch (const RtfError& error) {
            OutlineLeaf* leaf = tree.leafAt(error.line);
            const std::optional<DiagnosticId> id = idOf(error);
            if (!leaf || !id) {
                return nullptr;
            }
            leaf->isFaulty = true;
            engine.report(*id, source.placeOf(leaf->text), {error.description});
        }
    }
    return nullptr;
}

}  // namespace quorvane
