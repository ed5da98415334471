#pragma once

#include <string>

namespace quorvane {

/// The line of a page header or footer: what stands at its left, in its center and at its right.
/// See `CRtfDoc::setPageHeader`.
struct PageText {
    std::string left{};
    std::string center{};
    std::string right{};

    bool operator==(const PageText&) const = default;
};

}  // namespace quorvane
