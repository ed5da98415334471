#pragma once

#include <cstdint>
#include <string_view>

#include "quorvane/base/collections/KeyedList.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/values/Value.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/support/currentError.h"

namespace quorvane {

/// What the rows, the cells of a row and the paragraphs of a cell have in common: an ordered
/// collection that makes its elements itself. Positions begin with 1; keys are texts, compared
/// without regard to case. Every call that changes the list marks the document changed; a call that
/// fails leaves list and document as they were. Changing the list raises error 91 when the document
/// is gone.
///
/// `Collection` is the class itself. It provides `document()` (the document, or null), `insertNew`
/// at a place and `removeAt` a position, which do what a change means to its kind of element.
template <class Collection, class Element>
class TableCollection {
public:
    TableCollection(const TableCollection&) = delete;
    TableCollection& operator=(const TableCollection&) = delete;

    /// Number of elements.
    std::int32_t Count() const { return static_cast<std::int32_t>(list_.count()); }

    /// Makes an element and puts it at the end or, with `Before` or `After` (a position or a key),
    /// there. `Key` is a text or absent. It answers nothing: the element is fetched by position or
    /// key. Errors: 13 a key of another type, 5 both `Before` and `After` or a bad one, 457 a key
    /// that is there already.
    void add(const Value& Key = Missing{}, const Value& Before = Missing{},
             const Value& After = Missing{}) {
        clearCurrentError();
        insert(Key, Before, After);
    }

    /// Removes the element at a position (halves to even) or with a key. Errors: 5 there is none,
    /// 13 neither a number nor a text.
    void Remove(const Value& Index) {
        clearCurrentError();
        TableDocument& document = required(self().document());
        self().removeAt(list_.positionOfIndex(Index));
        document.markChanged();
    }

    /// The element at a position (halves to even) or with a key. Errors as `Remove`.
    Ref<Element> Item(const Value& Index) const {
        clearCurrentError();
        return Ref<Element>(&list_.at(list_.positionOfIndex(Index)));
    }

    /// Makes an element and puts it first. Errors as `add`.
    void AddHead(const Value& Key = Missing{}) {
        clearCurrentError();
        insert(Key, list_.count() > 0 ? Value(1) : Value(Missing{}), Missing{});
    }

    /// The first element, Nothing when there is none.
    Ref<Element> PeekHead() const { return peek(1); }

    /// Removes the first element. Marks the document changed also when there is none.
    void RemoveHead() {
        clearCurrentError();
        removeEnd(1);
    }

    /// Makes an element and puts it last. Errors as `add`.
    void AddTail(const Value& Key = Missing{}) {
        clearCurrentError();
        insert(Key, Missing{}, Missing{});
    }

    /// The last element, Nothing when there is none.
    Ref<Element> PeekTail() const { return peek(list_.count()); }

    /// Removes the last element. Marks the document changed also when there is none.
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
