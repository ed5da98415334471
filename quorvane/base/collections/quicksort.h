#pragma once

#include <iterator>
#include <utility>

namespace quorvane {

/// Sorts a range ascending. `compare(a, b)` is negative, 0 or positive as a belongs before, with or
/// after b; `pickPivot(count)` picks one of `count` elements, from 0. Equal elements cost no more
/// than distinct ones, the depth of recursion stays below the logarithm of the length, and a
/// `compare` that contradicts itself does no worse than leave the range in disorder.
template <class Iterator, class Compare, class PickPivot>
void quicksort(Iterator first, Iterator end, const Compare& compare, const PickPivot& pickPivot) {
    while (end - first > 1) {
        const Iterator last = end - 1;
        if (last - first == 1) {
            if (compare(*last, *first) < 0) {
                std::iter_swap(first, last);
            }
            return;
        }
        std::iter_swap(first + pickPivot(end - first), last);

        // What stands before smallerEnd is smaller than the pivot at the last place, what stands
        // from smallerEnd to unknown is equal to it, what stands from greater on is greater.
        Iterator smallerEnd = first;
        Iterator unknown = first;
        Iterator greater = last;
        while (unknown != greater) {
            const auto order = compare(*unknown, *last);
            if (order < 0) {
                std::iter_swap(smallerEnd++, unknown++);
            } else if (order > 0) {
                std::iter_swap(unknown, --greater);
            } else {
                ++unknown;
            }
        }
        std::iter_swap(greater, last);
        ++greater;

        if (smallerEnd - first < end - greater) {
            quicksort(first, smallerEnd, compare, pickPivot);
            first = greater;
        } else {
            quicksort(greater, end, compare, pickPivot);
            end = smallerEnd;
        }
    }
}

}  // namespace quorvane
