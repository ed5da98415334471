#pragma once

#include <cstddef>
#include <vector>

#include "quorvane/driver/DescriptionParser.h"

namespace quorvane {

/// The lines of a description as the parser takes them, and in how many nodes they stand.
class LineDepths : public DescriptionRecovery {
public:
    struct Entry {
        int number;
        DescriptionLine line;
        std::size_t depth;
        /// The node that the line opens or whose leaf it is; null for others.
        const DescriptionNode* node = nullptr;
    };

    enum class Extent {
        /// All lines, also those after the document.
        WholeText,
        Document,
    };

    /// Fills an empty tree with the nodes and leaves of the lines. The tree and the text of the
    /// lines must outlive the object.
    LineDepths(const std::vector<SourceLine>& lines, const Dialect& dialect, Extent extent,
               DescriptionTree& tree);

    const std::vector<Entry>& entries() const { return entries_; }

private:
    void violation(const Violation&) override {}
    MeantLine unreadable(const Violation&, const DescriptionNode&) override { return {}; }
    bool readsAllLines() const override { return extent_ == Extent::WholeText; }
    void added(const SourceLine&, const DescriptionNode& node) override { added_ = &node; }
    void lineRead(const SourceLine& line, const DescriptionLine& parts, std::size_t depth) override;

    Extent extent_;
    const DescriptionNode* added_ = nullptr;
    std::vector<Entry> entries_;
};

}  // namespace quorvane
