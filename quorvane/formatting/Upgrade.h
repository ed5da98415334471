#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// What the author of a text should know about its upgrade.
struct UpgradeRemark {
    /// 1-based line of the text before.
    int line = 0;
    /// A sentence without a full stop.
    std::string message = {};
};

/// The message about what is refused in the extended language.
inline std::string cannotExpress(std::string_view why) {
    return "The extended language cannot express this: " + std::string(why);
}

/// A text in the extended language.
struct Upgrade {
    /// Empty if there are errors.
    std::string text = {};
    /// Why the text cannot be written in the extended language, in the order of the lines.
    std::vector<UpgradeRemark> errors = {};
    /// What is different, although each description that is upgraded with it stays the same.
    std::vector<UpgradeRemark> notes = {};
};

}  // namespace quorvane
