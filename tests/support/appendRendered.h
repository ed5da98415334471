#pragma once

#include <string>

#include "quorvane/base/text/StringOutput.h"

namespace quorvane {

/// Appends what a group of the document renders.
template <class Group>
void appendRendered(const Group& group, std::string& rtf) {
    StringOutput output(rtf);
    group.render(output);
    output.flush();
}

}  // namespace quorvane
