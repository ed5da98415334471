#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/support/published.h"

// How elements are added to the collections of rows, cells and paragraphs and removed from them.
// The inner class of a collection has its elements in `list()`; it provides `document()` (the
// document, or null), `insertNew` at a place and `removeAt` a position, which do what a change
// means to its kind of element.

namespace quorvane {

template <class Inner>
void insertInto(Inner& collection, const Value& key, const Value& before, const Value& after) {
    TableDocument& document = changing(collection.document());
    collection.insertNew(collection.list().placeFor(key, before, after), document);
    document.markChanged();
}

/// Adds an element without a key at a position, from 1 to one after the last, and returns it.
template <class Inner>
auto& insertAt(Inner& collection, std::size_t position) {
    TableDocument& document = changing(collection.document());
    collection.insertNew({position, std::nullopt}, document);
    document.markChanged();
    return collection.list().at(position);
}

/// Removes the element at a position, which must be there.
template <class Inner>
void removeFrom(Inner& collection, std::size_t position) {
    TableDocument& document = changing(collection.document());
    collection.removeAt(position);
    document.markChanged();
}

/// Removes the element at an end of the list, if there is one.
template <class Inner>
void removeEnd(Inner& collection, std::size_t position) {
    TableDocument& document = changing(collection.document());
    if (collection.list().count() > 0) {
        collection.removeAt(position);
    }
    document.markChanged();
}

/// Does what `AddTail` with the decimal text of a number as the key does, and returns the new
/// element.
template <class Inner>
auto& addNumbered(Inner& collection, std::int32_t number) {
    published([&] {
        TableDocument& document = changing(collection.document());
        const auto place = collection.list().placeForNumber(static_cast<std::uint32_t>(number));
        collection.insertNew(place, document);
        document.markChanged();
    });
    return collection.list().at(collection.list().count());
}

}  // namespace quorvane
