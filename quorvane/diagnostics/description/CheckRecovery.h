#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/driver/DescriptionRecovery.h"
#include "quorvane/driver/Dialect.h"

namespace quorvane {

/// Reports what a parser comes across in a description as diagnostics, and lets it go on after an
/// error with what was most likely meant.
class CheckRecovery : public DescriptionRecovery {
public:
    CheckRecovery(const SourceText& source, const Dialect& dialect, DiagnosticEngine& engine)
        : source_(source), dialect_(dialect), engine_(engine) {}

    /// Sets the lines that the parser reads. They must outlive its reading.
    void setLines(const std::vector<SourceLine>& lines) { lines_ = &lines; }

    void violation(const Violation& violation) override;
    MeantLine unreadable(const Violation& violation, const DescriptionNode& open) override;
    void closedByOpener(const SourceLine& line, NodeKind opened, const DescriptionNode& closed,
                        bool isOpened) override;
    void added(const SourceLine& line, const DescriptionNode& node) override;
    void ended(const SourceLine& line) override;
    void repaired(RowRepair repair, const SourceLine& line) override;

private:
    Hint hintFor(const Violation& violation) const;
    std::string tooManyHint(NodeKind kind) const;
    void reportOutside(const SourceLine& line);

    const SourceText& source_;
    const Dialect& dialect_;
    DiagnosticEngine& engine_;
    const std::vector<SourceLine>* lines_ = nullptr;
    // The hint for an opener in a node that cannot hold it, when the openers of the nodes between
    // them are missing.
    std::string missingOpener_;
    bool hasDocument_ = false;
    bool isOutsideReported_ = false;
};

}  // namespace quorvane
