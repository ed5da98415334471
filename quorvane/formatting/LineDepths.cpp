#include "quorvane/formatting/LineDepths.h"

#include <utility>

namespace quorvane {

LineDepths::LineDepths(const std::vector<SourceLine>& lines, const Dialect& dialect, Extent extent,
                       DescriptionTree& tree)
    : extent_(extent) {
    entries_.reserve(lines.size());
    DescriptionParser(dialect, this).treeWalkerBuild(tree, lines);
}

void LineDepths::lineRead(const SourceLine& line, const DescriptionLine& parts, std::size_t depth) {
    entries_.push_back({line.number, parts, depth, std::exchange(added_, nullptr)});
}

}  // namespace quorvane
