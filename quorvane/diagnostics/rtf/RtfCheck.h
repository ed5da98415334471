#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

class RtfChecker;

/// Checks an RTF file from any program, which is passed piece by piece: whether its groups balance,
/// its table rows are complete, everything that it refers to exists, and nothing follows its end.
/// It builds no tree and keeps no text, so its memory grows only with the tables of fonts and
/// styles, not with the file.
class RtfCheck {
public:
    /// The receiver gets each diagnostic as soon as it is certain, which is nearly the order of the
    /// places.
    explicit RtfCheck(DiagnosticReceiver receiver);
    RtfCheck(const RtfCheck&) = delete;
    RtfCheck& operator=(const RtfCheck&) = delete;
    ~RtfCheck();

    /// Checks the next bytes of the file.
    void feed(std::string_view bytes);

    /// Ends the file.
    void finish();

private:
    std::unique_ptr<RtfChecker> checker_;
};

/// Returns the diagnostics of a whole RTF file, in the order of their places.
std::vector<Diagnostic> checkRtf(std::string_view bytes);

}  // namespace quorvane
