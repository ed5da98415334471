#pragma once

#include "quorvane/diagnostics/description/StyleUses.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/driver/Vocabulary.h"
#include "quorvane/driver/driverFaults.h"

namespace quorvane {

/// The diagnostic that a fault of a description is reported as.
DiagnosticId diagnosticOf(DriverFault fault);

/// Reports violations of the rules of nodes and leaves as diagnostics with hints, and marks what
/// they concern as faulty. Of one leaf only the first is reported.
class ViolationReport {
public:
    /// `styles` are null for a description that is checked without a stylesheet.
    ViolationReport(const SourceText& source, const Vocabulary& vocabulary, StyleUses* styles,
                    DiagnosticEngine& engine)
        : source_(source), vocabulary_(vocabulary), styles_(styles), engine_(engine) {}

    void operator()(const Violation& violation) const;

private:
    void reportNode(const Violation& violation) const;
    bool meansText(const DescriptionNode& node) const;
    Hint hintFor(const Violation& violation) const;
    Hint keyHint(const Violation& violation) const;
    Hint takenKeyHint(const Violation& violation) const;

    const SourceText& source_;
    const Vocabulary& vocabulary_;
    StyleUses* styles_;
    DiagnosticEngine& engine_;
};

}  // namespace quorvane
