#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/base/values/Value.h"

namespace quorvane {

// Helpers over lists of values, texts and numbers mixed. Positions count from 0. An empty list is
// valid.

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
void SortVariantHelp(std::vector<Value>& list, std::int32_t low, std::int32_t high);

/// Exchanges two elements.
void VariantSwap(std::vector<Value>& list, std::int32_t a, std::int32_t b);

/// A whole number from low to high, both inclusive. `low` must not be above `high`. The generator
/// is seeded once per process, on the first call.
std::int32_t GetRandom(std::int32_t low, std::int32_t high);

/// The list with the first element that equals `oldValue` replaced by `newValue`.
std::vector<Value> variantSubst(const Value& oldValue, const Value& newValue,
                                std::vector<Value> list);

/// The list without the first element that equals the value.
std::vector<Value> variantRemove(const Value& value, std::vector<Value> list);

/// The list with the value in front of its elements.
std::vector<Value> variantCons(const Value& value, std::vector<Value> list);

/// The elements as texts, numbers in their shortest form, with the separator between them. Error 13
/// for an element that is neither.
std::string listToString(const std::vector<Value>& list, std::string_view separator = " ");

}  // namespace quorvane
