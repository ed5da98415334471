#pragma once

#include <string>

namespace quorvane {

/// The control words that open the document.
class CRtfGrpHeader {
public:
    /// Appends the group's text.
    void render(std::string& rtf) const { rtf += R"(\rtf1\ansicpg1252\uc0\deff0)"; }
};

}  // namespace quorvane
