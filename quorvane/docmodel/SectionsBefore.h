#pragma once

namespace quorvane {

/// What the sections before one have that it would take over.
struct SectionsBefore {
    bool areThere = false;
    bool haveHeader = false;
    bool haveFooter = false;
};

}  // namespace quorvane
