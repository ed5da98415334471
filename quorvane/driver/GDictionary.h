#pragma once

#include <cstdint>
#include <vector>

#include "quorvane/support/RandomNumbers.h"
#include "quorvane/support/Value.h"

namespace quorvane {

// Helpers over lists of values, texts and numbers mixed. Positions count from 0. An empty list is
// as good as any other.

/// What `FilterType` looks for. A Boolean, a date or an object is neither.
enum class ValueKind {
    Text = 0,
    Number = 1,
};

/// True when the value is text.
bool IsString(const Value& value);

/// The elements of that kind, in the order of the list.
std::vector<Value> FilterType(const std::vector<Value>& list, ValueKind kind);

/// True when an element equals the value.
bool isMember(const Value& value, const std::vector<Value>& list);

/// Sorts the list ascending: numbers by value, then texts by their characters' codes. Error 13 when
/// an element is neither and has to be compared; the list's order is then any.
void SortVariant(std::vector<Value>& list);

/// True when no element is smaller (ascending) or greater (descending) than the one before it.
/// Error 13 as `SortVariant`.
bool isSorted(const std::vector<Value>& list, bool ascending);

/// Sorts the elements from `low` to `high`, both inclusive, by quicksort with random pivots. Does
/// nothing when `low` is not below `high`. Error 13 as `SortVariant`.
void SortVariantHelp(std::vector<Value>& list, std::int32_t low, std::int32_t high,
                     RandomNumbers& random);

/// Exchanges two elements.
void VariantSwap(std::vector<Value>& list, std::int32_t a, std::int32_t b);

/// A whole number from low to high, both inclusive. `low` must not be above `high`.
std::int32_t GetRandom(std::int32_t low, std::int32_t high, RandomNumbers& random);

/// The list with the first element that equals `oldValue` replaced by `newValue`.
std::vector<Value> variantSubst(const Value& oldValue, const Value& newValue,
                                std::vector<Value> list);

}  // namespace quorvane
