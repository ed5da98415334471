#pragma once

#include <cstdint>
#include <string_view>

#include "quorvane/base/collections/KeyedList.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/values/Value.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/support/currentError.h"

namespace quorvane {

/// An ordered collection that makes its elements itself: the common members of `CRtfTableRows`,
/// `CRtfTableCells` and `CRtfParagraphs`. Positions start at 1. Keys are texts; upper and lower
/// case are the same, and an empty text is a key like any other. Every call that changes the list
/// marks the document changed; error 91 if the document no longer exists. A call that fails changes
/// nothing.
///
/// `Collection` is the derived class. It provides `document()` (the document, or null),
/// `insertNew`, which inserts at a place, and `removeAt`, which removes at a position; they do what
/// a change means for the kind of element.
template <class Collection, class Element>
class TableCollection {
public:
    TableCollection(const TableCollection&) = delete;
    TableCollection& operator=(const TableCollection&) = delete;

    /// Returns the number of elements.
    std::int32_t Count() const { return static_cast<std::int32_t>(list_.count()); }

    /// Makes an element and adds it at the end or, with `Before` or `After` (a position or a key),
    /// next to that element. `Key` is a text or absent. It returns nothing: get the new element
    /// with `Item`, `PeekHead` or `PeekTail`. Errors: 13 if the key is not a text, 5 if both
    /// `Before` and `After` are given or there is no such element, 457 if the key is already in the
    /// list.
    void add(const Value& Key = Missing{}, const Value& Before = Missing{},
             const Value& After = Missing{}) {
        clearCurrentError();
        insert(Key, Before, After);
    }

    /// Removes the element at a position (rounded, halves to even) or with a key. Errors: 5 if
    /// there is none, 13 if `Index` is neither a number nor a text.
    void Remove(const Value& Index) {
        clearCurrentError();
        TableDocument& document = required(self().document());
        self().removeAt(list_.positionOfIndex(Index));
        document.markChanged();
    }

    /// Returns the element at a position (rounded, halves to even) or with a key. Errors as for
    /// `Remove`.
    Ref<Element> Item(const Value& Index) const {
        clearCurrentError();
        return Ref<Element>(&list_.at(list_.positionOfIndex(Index)));
    }

    /// Makes an element and adds it at the beginning. Errors as for `add`.
    void AddHead(const Value& Key = Missing{}) {
        clearCurrentError();
        insert(Key, list_.count() > 0 ? Value(1) : Value(Missing{}), Missing{});
    }

    /// Returns the first element; null if there is none.
    Ref<Element> PeekHead() const { return peek(1); }

    /// Removes the first element. Marks the document changed even if there is none.
    void RemoveHead() {
        clearCurrentError();
        removeEnd(1);
    }

    /// Makes an element and adds it at the end. Errors as for `add`.
    void AddTail(const Value& Key = Missing{}) {
        clearCurrentError();
        insert(Key, Missing{}, Missing{});
    }

    /// Returns the last element; null if there is none.
    Ref<Element> PeekTail() const { return peek(list_.count()); }

    /// Removes the last element. Marks the document changed even if there is none.
    void removeTail() {
        clearCurrentError();
        removeEnd(list_.count());
    }

protected:
    using List = KeyedList<Element>;

    TableCollection() = default;
    ~TableCollection() = default;

    List list_;

private:
    Collection& self() { return static_cast<Collection&>(*this); }

    void insert(const Value& key, const Value& before, const Value& after) {
        TableDocument& document = required(self().document());
        self().insertNew(list_.placeFor(key, before, after), document);
        document.markChanged();
    }

    void removeEnd(std::size_t position) {
        TableDocument& document = required(self().document());
        if (list_.count() > 0) {
            self().removeAt(position);
        }
        document.markChanged();
    }

    Ref<Element> peek(std::size_t position) const {
        return list_.count() > 0 ? Ref<Element>(&list_.at(position)) : nullptr;
    }
};

}  // namespace quorvane
