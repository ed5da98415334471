#pragma once

#include <cstdint>

#include "quorvane/docmodel/TableCollection.h"
#include "quorvane/docmodel/tableCollectionChanges.h"
#include "quorvane/support/published.h"

// The members of `TableCollection`, for the three files that make one.

namespace quorvane {

template <class Collection, class Element>
std::int32_t TableCollection<Collection, Element>::Count() const {
    return static_cast<std::int32_t>(inner(static_cast<const Collection&>(*this)).list().count());
}

template <class Collection, class Element>
void TableCollection<Collection, Element>::add(const Value& Key, const Value& Before,
                                               const Value& After) {
    published([&] { insertInto(inner(static_cast<Collection&>(*this)), Key, Before, After); });
}

template <class Collection, class Element>
void TableCollection<Collection, Element>::Remove(const Value& Index) {
    published([&] {
        auto& collection = inner(static_cast<Collection&>(*this));
        TableDocument& document = changing(collection.document());
        collection.removeAt(collection.list().positionOfIndex(Index));
        document.markChanged();
    });
}

template <class Collection, class Element>
Ref<Element> TableCollection<Collection, Element>::Item(const Value& Index) const {
    return published([&] {
        const auto& list = inner(static_cast<const Collection&>(*this)).list();
        return Ref<Element>(&list.at(list.positionOfIndex(Index)));
    });
}

template <class Collection, class Element>
void TableCollection<Collection, Element>::AddHead(const Value& Key) {
    published([&] {
        auto& collection = inner(static_cast<Collection&>(*this));
        const bool isEmpty = collection.list().count() == 0;
        insertInto(collection, Key, isEmpty ? Value(Missing{}) : Value(1), Missing{});
    });
}

template <class Collection, class Element>
Ref<Element> TableCollection<Collection, Element>::PeekHead() const {
    const auto& list = inner(static_cast<const Collection&>(*this)).list();
    return list.count() > 0 ? Ref<Element>(&list.at(1)) : nullptr;
}

template <class Collection, class Element>
void TableCollection<Collection, Element>::RemoveHead() {
    published([&] { removeEnd(inner(static_cast<Collection&>(*this)), 1); });
}

template <class Collection, class Element>
void TableCollection<Collection, Element>::AddTail(const Value& Key) {
    add(Key);
}

template <class Collection, class Element>
Ref<Element> TableCollection<Collection, Element>::PeekTail() const {
    const auto& list = inner(static_cast<const Collection&>(*this)).list();
    return list.count() > 0 ? Ref<Element>(&list.at(list.count())) : nullptr;
}

template <class Collection, class Element>
void TableCollection<Collection, Element>::removeTail() {
    published([&] {
        auto& collection = inner(static_cast<Collection&>(*this));
        removeEnd(collection, collection.list().count());
    });
}

}  // namespace quorvane
