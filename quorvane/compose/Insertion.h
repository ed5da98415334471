#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "quorvane/compose/composing.h"
#include "quorvane/docmodel/InnerCells.h"
#include "quorvane/docmodel/tableCollectionChanges.h"

namespace quorvane {

/// Removes an element, whose collection has it at that position.
template <class Inner>
void removeElement(Inner& collection, std::size_t position) {
    removeFrom(collection, position);
}
/// The cells that are left share the text area, as they do when one is added.
inline void removeElement(InnerCells& cells, std::size_t position) {
    removeFrom(cells, position);
    if (cells.list().count() > 0) {
        cells.spreadEvenly();
    }
}

/// The element with an index from 0.
template <class Inner>
auto& elementAt(Inner& collection, std::size_t index) {
    const std::size_t count = collection.list().count();
    if (index >= count) {
        refuseCall("There is no index " + std::to_string(index) + ", as there are " +
                   std::to_string(count) + " rows, cells or paragraphs.");
    }
    return collection.list().at(index + 1);
}

/// The element with a key.
template <class Inner>
auto& elementWithKey(Inner& collection, std::string_view key) {
    if (auto* const element = collection.list().find(key)) {
        return *element;
    }
    refuseCall("There is no key \"" + std::string(key) + "\".");
}

/// The index of an element, from 0.
template <class Inner, class Element>
std::size_t indexOfElement(const Inner& collection, const Element& element) {
    const std::size_t position = collection.list().positionOf(element);
    if (position == 0) {
        refuseCall("This row, cell or paragraph was removed before.");
    }
    return position - 1;
}

/// Inserts an element before the one with an index, and removes it again unless it is kept.
template <class Inner>
class Insertion {
public:
    Insertion(Inner& collection, std::size_t index)
        : collection_(&collection), position_(index + 1) {
        const std::size_t count = collection.list().count();
        if (index > count) {
            refuseCall("Nothing can be inserted at index " + std::to_string(index) +
                       "; the largest index is " + std::to_string(count) + ".");
        }
        element_ = &insertAt(collection, position_);
    }
    Insertion(const Insertion&) = delete;
    Insertion& operator=(const Insertion&) = delete;
    ~Insertion() {
        if (collection_) {
            removeElement(*collection_, position_);
        }
    }

    auto& element() const noexcept { return *element_; }
    /// Lets the element stay.
    auto& keep() noexcept {
        collection_ = nullptr;
        return *element_;
    }

private:
    using Element = std::remove_reference_t<decltype(std::declval<typename Inner::List&>().at(1))>;

    Inner* collection_;
    std::size_t position_;
    Element* element_ = nullptr;
};

}  // namespace quorvane
