#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "quorvane/stylesheet/StyleKind.h"
#include "quorvane/stylesheet/StyleProperty.h"

namespace quorvane {

/// An item of an extended style.
struct UpgradedItem {
    const StyleProperty* property = nullptr;
    /// Empty for an item that its word says.
    std::string value;

    /// The item as it is written.
    std::string text() const {
        return std::string(property->word) + (value.empty() ? "" : ": ") + value;
    }
    bool operator==(const UpgradedItem&) const = default;
};

using UpgradedItems = std::vector<UpgradedItem>;

/// The items of a format.
struct UpgradedFormat {
    UpgradedItems items = {};
    /// Why there are none: a sentence without a full stop; otherwise empty.
    std::string error = {};
};

/// The items that set the same as the control words of a paragraph or character style. Words that
/// no item stands for become raw ones, and all of them do where their order counts.
UpgradedFormat upgradedFormat(std::string_view words, StyleKind kind);

/// Puts an item into a list, in place of one that sets the same.
void setItem(UpgradedItems& items, const UpgradedItem& item);

/// What a style writes that is based on another one.
struct InheritedItems {
    /// All that the style has, which is what it had before.
    UpgradedItems all;
    /// The items that are not those of the base.
    UpgradedItems written;
    /// The words of the items that only the base had.
    std::vector<std::string_view> unset;
    /// False if one of those cannot be unset, and for raw words: the style cannot be based on the
    /// other one.
    bool canInherit = true;
};

/// Lets items inherit from those of the base.
InheritedItems inheritItems(const UpgradedItems& base, const UpgradedItems& own);

}  // namespace quorvane
