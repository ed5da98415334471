#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

class RtfChecker;

/// Checks an RTF file, whoever wrote it, that is handed over piece by piece: whether its groups
/// balance, its table rows are whole, what it refers to is there, and nothing follows its end. It
/// builds no tree and keeps no text: its memory does not grow with the file, only with the tables
/// of fonts and styles.
class RtfCheck {
public:
    /// Diagnostics come in the order in which they are certain, which is nearly that of their
    /// places.
    explicit RtfCheck(DiagnosticReceiver receiver);
    RtfCheck(const RtfCheck&) = delete;
    RtfCheck& operator=(const RtfCheck&) = delete;
    ~RtfCheck();

    /// Takes the next bytes of the file.
    void feed(std::string_view bytes);

    /// Ends the file.
    void finish();

private:
    std::unique_ptr<RtfChecker> checker_;
};

/// The diagnostics of an RTF file that is held as a whole, in the order of their places.
std::vector<Diagnostic> checkRtf(std::string_view bytes);

}  // namespace quorvane
