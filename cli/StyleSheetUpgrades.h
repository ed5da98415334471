#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "cli/FormatOptions.h"
#include "quorvane/base/platform/Platform.h"

namespace quorvane::cli {

/// The stylesheets that `quorvane format --upgrade` upgrades after the descriptions: those that it
/// is given, and those of the descriptions that it is given. A description has the stylesheet of
/// `--stylesheet`, or else the one of the same name beside it. Until the descriptions are upgraded
/// the stylesheets stay as they are, because a description is read with the original ones.
class StyleSheetUpgrades {
public:
    /// Upgrades a stylesheet without writing it; false if that failed, which was reported.
    using Rehearsal = std::function<bool(const std::string& file)>;

    /// All that is given must outlive the object.
    StyleSheetUpgrades(const FormatOptions& options, Platform& platform)
        : options_(options), platform_(platform) {}

    /// Takes a stylesheet that is given.
    void add(const std::string& file);
    /// The stylesheet of a description, to upgrade with it; nothing if it has none. `name` is that
    /// of the description, also where it is standard input, with which no stylesheet is upgraded.
    std::optional<std::string> addFor(const std::string& file, const std::string& name);
    /// True if the stylesheet can be upgraded. It is tried once.
    bool canUpgrade(const std::string& styleSheet, const Rehearsal& rehearse);
    /// Leaves a stylesheet as it is, since a description with it cannot be upgraded.
    void holdBack(const std::string& styleSheet) { wanted_[styleSheet].isHeldBack = true; }

    struct Wanted {
        std::string file;
        /// The description with which it is upgraded; empty for a stylesheet that is given.
        std::string description;
    };

    /// The stylesheets to upgrade, in the order in which they came.
    std::vector<Wanted> toUpgrade() const;

private:
    struct State {
        std::string description;
        bool isWanted = false;
        bool isHeldBack = false;
        std::optional<bool> canUpgrade;
    };

    const FormatOptions& options_;
    Platform& platform_;
    std::map<std::string, State> wanted_;
    std::vector<std::string> order_;
};

}  // namespace quorvane::cli
