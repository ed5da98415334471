#pragma once

#include "quorvane/base/text/TextOutput.h"

namespace quorvane {

/// The control words that open the document.
class CRtfGrpHeader {
public:
    /// Writes the group's text.
    void render(TextOutput& rtf) const { rtf << R"(\rtf1\ansicpg1252\uc0\deff0)"; }
};

}  // namespace quorvane
