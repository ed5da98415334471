#include "quorvane/driver/GDictionary.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

#include "quorvane/base/collections/quicksort.h"
#include "quorvane/base/platform/RandomNumbers.h"
#include "quorvane/base/text/numberText.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/support/published.h"

namespace quorvane {

namespace {

bool isOfKind(const Value& value, ValueKind kind) {
    return kind == ValueKind::Text ? value.isText() : value.isNumber();
}

// Negative, 0 or positive as a belongs before, with or after b.
int compareVariants(const Value& a, const Value& b) {
    const auto isComparable = [](const Value& value) { return value.isText() || value.isNumber(); };
    if (!isComparable(a) || !isComparable(b)) {
        raise(RunTimeError::TypeMismatch);
    }
    if (a.isText() && b.isText()) {
        return a.text().compare(b.text());
    }
    if (a.isText() != b.isText()) {
        return a.isText() ? 1 : -1;
    }
    return a.number() < b.number() ? -1 : a.number() > b.number() ? 1 : 0;
}

}  // namespace

bool IsString(const Value& value) {
    return value.isText();
}

std::vector<Value> FilterType(const std::vector<Value>& list, ValueKind kind) {
    std::vector<Value> filtered;
    std::copy_if(list.begin(), list.end(), std::back_inserter(filtered),
                 [kind](const Value& value) { return isOfKind(value, kind); });
    return filtered;
}

bool isMember(const Value& value, const std::vector<Value>& list) {
    return std::find(list.begin(), list.end(), value) != list.end();
}

void SortVariant(std::vector<Value>& list) {
    if (!isSorted(list, true)) {
        SortVariantHelp(list, 0, static_cast<std::int32_t>(list.size()) - 1);
    }
}

bool isSorted(const std::vector<Value>& list, bool ascending) {
    return published([&] {
        return std::is_sorted(
            list.begin(), list.end(), [ascending](const Value& a, const Value& b) {
                return ascending ? compareVariants(a, b) < 0 : compareVariants(a, b) > 0;
            });
    });
}

void SortVariantHelp(std::vector<Value>& list, std::int32_t low, std::int32_t high) {
    if (low >= high) {
        return;
    }
    const auto pick = [](std::ptrdiff_t count) {
        return GetRandom(0, static_cast<std::int32_t>(count) - 1);
    };
    published(
        [&] { quicksort(list.begin() + low, list.begin() + high + 1, compareVariants, pick); });
}

void VariantSwap(std::vector<Value>& list, std::int32_t a, std::int32_t b) {
    std::swap(list[static_cast<std::size_t>(a)], list[static_cast<std::size_t>(b)]);
}

std::int32_t GetRandom(std::int32_t low, std::int32_t high) {
    return RandomNumbers::ofProcess().between(low, high);
}

std::vector<Value> variantSubst(const Value& oldValue, const Value& newValue,
                                std::vector<Value> list) {
    const auto found = std::find(list.begin(), list.end(), oldValue);
    if (found != list.end()) {
        *found = newValue;
    }
    return list;
}

std::vector<Value> variantRemove(const Value& value, std::vector<Value> list) {
    const auto found = std::find(list.begin(), list.end(), value);
    if (found != list.end()) {
        list.erase(found);
    }
    return list;
}

std::vector<Value> variantCons(const Value& value, std::vector<Value> list) {
    list.insert(list.begin(), value);
    return list;
}

std::string listToString(const std::vector<Value>& list, std::string_view separator) {
    return published([&] {
        std::string text;
        std::string_view before;
        for (const Value& value : list) {
            if (!value.isText() && !value.isNumber()) {
                raise(RunTimeError::TypeMismatch);
            }
            text += before;
            text += value.isText() ? value.text() : numberText(value.number());
            before = separator;
        }
        return text;
    });
}

}  // namespace quorvane
