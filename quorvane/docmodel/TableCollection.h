#pragma once

#include <cstdint>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/values/Value.h"

namespace quorvane {

/// An ordered collection that makes its elements itself: the common members of `CRtfTableRows`,
/// `CRtfTableCells` and `CRtfParagraphs`. Positions start at 1. Keys are texts; upper and lower
/// case are the same, and an empty text is a key like any other. Every call that changes the list
/// marks the document changed; error 91 if the document no longer exists. A call that fails changes
/// nothing.
///
/// `Collection` is the derived class.
template <class Collection, class Element>
class TableCollection {
public:
    TableCollection(const TableCollection&) = delete;
    TableCollection& operator=(const TableCollection&) = delete;

    /// Returns the number of elements.
    std::int32_t Count() const;

    /// Makes an element and adds it at the end or, with `Before` or `After` (a position or a key),
    /// next to that element. `Key` is a text or absent. It returns nothing: get the new element
    /// with `Item`, `PeekHead` or `PeekTail`. Errors: 13 if the key is not a text, 5 if both
    /// `Before` and `After` are given or there is no such element, 457 if the key is already in the
    /// list.
    void add(const Value& Key = Missing{}, const Value& Before = Missing{},
             const Value& After = Missing{});

    /// Removes the element at a position (rounded, halves to even) or with a key. Errors: 5 if
    /// there is none, 13 if `Index` is neither a number nor a text.
    void Remove(const Value& Index);

    /// Returns the element at a position (rounded, halves to even) or with a key. Errors as for
    /// `Remove`.
    Ref<Element> Item(const Value& Index) const;

    /// Makes an element and adds it at the beginning. Errors as for `add`.
    void AddHead(const Value& Key = Missing{});

    /// Returns the first element; null if there is none.
    Ref<Element> PeekHead() const;

    /// Removes the first element. Marks the document changed even if there is none.
    void RemoveHead();

    /// Makes an element and adds it at the end. Errors as for `add`.
    void AddTail(const Value& Key = Missing{});

    /// Returns the last element; null if there is none.
    Ref<Element> PeekTail() const;

    /// Removes the last element. Marks the document changed even if there is none.
    void removeTail();

protected:
    TableCollection() = default;
    ~TableCollection() = default;
};

}  // namespace quorvane
