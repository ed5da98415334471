#include "cli/StyleSheetUpgrades.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "cli/RenderOptions.h"
#include "quorvane/base/text/textCase.h"

namespace quorvane::cli {

namespace {

/// The name of the stylesheet beside a description; empty if its name does not end as those do.
std::string styleSheetBeside(const std::string& name) {
    constexpr std::string_view extension = ".rtfspec";
    return lowerCase(name).ends_with(extension)
               ? name.substr(0, name.size() - extension.size()) + ".rtfss"
               : std::string();
}

}  // namespace

void StyleSheetUpgrades::add(const std::string& file) {
    State& state = wanted_[file];
    state.description.clear();
    if (!std::exchange(state.isWanted, true)) {
        order_.push_back(file);
    }
}

std::optional<std::string> StyleSheetUpgrades::addFor(const std::string& file,
                                                      const std::string& name) {
    const std::string styleSheet = options_.styleSheet.value_or(styleSheetBeside(name));
    if (styleSheet.empty() || (!options_.styleSheet && !platform_.fileExists(styleSheet))) {
        return std::nullopt;
    }
    State& state = wanted_[styleSheet];
    if (file != standardStream && !state.isWanted) {
        state.description = name;
        state.isWanted = true;
        order_.push_back(styleSheet);
    }
    return styleSheet;
}

bool StyleSheetUpgrades::canUpgrade(const std::string& styleSheet, const Rehearsal& rehearse) {
    State& state = wanted_[styleSheet];
    if (!state.canUpgrade) {
        state.canUpgrade = rehearse(styleSheet);
        state.isHeldBack = state.isHeldBack || !*state.canUpgrade;
    }
    return *state.canUpgrade;
}

std::vector<StyleSheetUpgrades::Wanted> StyleSheetUpgrades::toUpgrade() const {
    std::vector<Wanted> wanted;
    for (const std::string& file : order_) {
        const State& state = wanted_.at(file);
        if (!state.isHeldBack) {
            wanted.push_back({file, state.description});
        }
    }
    return wanted;
}

}  // namespace quorvane::cli
