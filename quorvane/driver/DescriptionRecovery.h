#pragma once

#include <cstddef>

#include "quorvane/driver/DescriptionLine.h"
#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/driverFaults.h"
#include "quorvane/support/SourceLine.h"

namespace quorvane {

/// What a line that cannot be read was most likely meant to be.
struct MeantLine {
    DescriptionLine line;
    /// True for a leaf whose value goes on in the next lines.
    bool goesOn = false;
};

/// A repair of unclosed rows.
enum class RowRepair {
    /// The first of two openers of a row was dropped.
    RepeatedOpener,
    /// A closer was put in front of the opener.
    UnclosedRow,
};

/// With a recovery a parser goes on after errors instead of raising the first one: it reports them
/// here, together with what it came across.
class DescriptionRecovery {
public:
    virtual ~DescriptionRecovery() = default;

    /// Reports an error at which a parser without recovery stops.
    virtual void violation(const Violation& violation) = 0;

    /// Reports a line that cannot be read, and returns what it was meant to be. `open` is the
    /// innermost open node.
    virtual MeantLine unreadable(const Violation& violation, const DescriptionNode& open) = 0;

    /// Reports that an opener closed nodes, `closed` and maybe others around it, because it could
    /// not stand in them. `isOpened` is false when it closed the whole document.
    virtual void closedByOpener(const SourceLine&, NodeKind /*opened*/,
                                const DescriptionNode& /*closed*/, bool /*isOpened*/) {}

    /// Reports a line whose leaf or node is in the tree: it is in this node, or opens it.
    virtual void added(const SourceLine&, const DescriptionNode&) {}

    /// Reports the first line that is not read because the document ended before.
    virtual void ended(const SourceLine&) {}

    /// Reports what repairing made of a line.
    virtual void repaired(RowRepair, const SourceLine&) {}

    /// Reports each line that was read, with the number of nodes that it stands in.
    virtual void lineRead(const SourceLine&, const DescriptionLine&, std::size_t /*depth*/) {}

    /// True when the parser reads all lines, also those after the end of the document, and opens
    /// nodes at the top that no other node can hold.
    virtual bool readsAllLines() const { return false; }
};

}  // namespace quorvane
