#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "quorvane/base/text/nowhere.h"
#include "quorvane/diagnostics/text/TextReporter.h"
#include "quorvane/rtf/RtfControl.h"

namespace quorvane {

/// Finds plain text between the control words of a format, which consists of them alone.
class FormatText {
public:
    FormatText(std::string_view format, TextReporter& reporter)
        : format_(format), reporter_(reporter) {}

    /// Takes a character that belongs to no control word.
    void takeCharacter(std::size_t at);

    /// Takes a control word or symbol.
    void takeControl(const RtfControl& control);

    /// The characters before `end` are swallowed by a backslash that is reported.
    void passOver(std::size_t end) { swallowedEnd_ = end; }

    /// Reports the text that ends here.
    void end();

private:
    bool isPrinted(std::size_t at) const;

    std::string_view format_;
    TextReporter& reporter_;
    // The text that is being read, and the control word before it.
    std::size_t begin_ = nowhere;
    std::size_t end_ = 0;
    std::optional<RtfControl> lastWord_;
    std::size_t swallowedEnd_ = 0;
    // Where the "^" is that begins the part of the format at hand.
    std::size_t partBegin_ = nowhere;
};

}  // namespace quorvane
