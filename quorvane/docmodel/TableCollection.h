#pragma once

#include <cstdint>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/values/Value.h"

namespace quorvane {

/// What the rows, the cells of a row and the paragraphs of a cell have in common: an ordered
/// collection that makes its elements itself. Positions begin with 1; keys are texts, compared
/// without regard to case. Every call that changes the list marks the document changed; a call that
/// fails leaves list and document as they were. Changing the list raises error 91 when the document
/// is gone.
///
/// `Collection` is the class itself.
template <class Collection, class Element>
class TableCollection {
public:
    TableCollection(const TableCollection&) = delete;
    TableCollection& operator=(const TableCollection&) = delete;

    /// Number of elements.
    std::int32_t Count() const;

    /// Makes an element and puts it at the end or, with `Before` or `After` (a position or a key),
    /// there. `Key` is a text or absent. It returns nothing: the element is fetched by position or
    /// key. Errors: 13 a key of another type, 5 both `Before` and `After` or a bad one, 457 a key
    /// that is there already.
    void add(const Value& Key = Missing{}, const Value& Before = Missing{},
             const Value& After = Missing{});

    /// Removes the element at a position (halves to even) or with a key. Errors: 5 there is none,
    /// 13 neither a number nor a text.
    void Remove(const Value& Index);

    /// The element at a position (halves to even) or with a key. Errors as `Remove`.
    Ref<Element> Item(const Value& Index) const;

    /// Makes an element and puts it first. Errors as `add`.
    void AddHead(const Value& Key = Missing{});

    /// The first element, null when there is none.
    Ref<Element> PeekHead() const;

    /// Removes the first element. Marks the document changed also when there is none.
    void RemoveHead();

    /// Makes an element and puts it last. Errors as `add`.
    void AddTail(const Value& Key = Missing{});

    /// The last element, null when there is none.
    Ref<Element> PeekTail() const;

    /// Removes the last element. Marks the document changed also when there is none.
    void removeTail();

protected:
    TableCollection() = default;
    ~TableCollection() = default;
};

}  // namespace quorvane
