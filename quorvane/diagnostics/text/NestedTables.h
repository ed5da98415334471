#pragma once

#include <string_view>
#include <vector>

#include "quorvane/diagnostics/text/TextReporter.h"
#include "quorvane/rtf/RtfControl.h"
#include "quorvane/rtf/RtfWord.h"

namespace quorvane {

/// The tables within the text of a cell. They are sound when their rows are whole and the text
/// returns to the table that it stands in.
class NestedTables {
public:
    /// True for the control words of a table within a cell.
    static bool have(RtfRole role);

    /// Takes such a control word; `shown` is the part of the text that it takes up.
    void add(RtfRole role, const RtfControl& control, std::string_view shown);

    /// Takes a control word that takes the text back to the table that it stands in.
    void leave() { isInside_ = false; }

    /// Reports the control words if the tables in the text are not sound.
    void report(std::string_view text, TextReporter& reporter) const;

private:
    std::vector<std::string_view> controls_;
    bool isInside_ = false;
};

}  // namespace quorvane
