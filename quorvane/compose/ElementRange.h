#pragma once

#include <compare>
#include <cstddef>
#include <iterator>
#include <ranges>
#include <utility>

namespace quorvane {

/// The rows of a document, the cells of a row or the paragraphs of a cell, in order: a view with
/// random access, which returns handles by value. Positions begin with 0.
///
///     for (Row row : document.rows()) { … }
///     document.rows()[2].cells().back().setAlign(eRight);
///
/// It refers to the document and shows what is in it at each moment. Iterators are positions: they
/// stay usable whatever is added and removed. One that is at or beyond the end by then is an
/// `Error` when it is dereferenced.
template <class Element>
class ElementRange {
public:
    /// What the elements belong to.
    using Owner = typename Element::Owner;

    /// A position in the range.
    class iterator {
    public:
        using value_type = Element;
        using difference_type = std::ptrdiff_t;
        using reference = Element;
        using iterator_category = std::input_iterator_tag;
        using iterator_concept = std::random_access_iterator_tag;

        /// What `->` is applied to.
        class pointer {
        public:
            /// Holds the element.
            explicit pointer(Element element) : element_(std::move(element)) {}
            /// Returns the element.
            Element* operator->() noexcept { return &element_; }

        private:
            Element element_;
        };

        /// An iterator of no range.
        iterator() = default;
        /// The position with this index, from 0.
        iterator(Owner owner, difference_type index) : owner_(std::move(owner)), index_(index) {}

        /// Returns the element. Error "wrong-call" if there is none at this position.
        Element operator*() const { return Element::at(owner_, static_cast<std::size_t>(index_)); }
        pointer operator->() const { return pointer(**this); }
        Element operator[](difference_type distance) const { return *(*this + distance); }

        /// Move the position.
        iterator& operator++() { return *this += 1; }
        iterator& operator--() { return *this -= 1; }
        iterator operator++(int) { return std::exchange(*this, *this + 1); }
        iterator operator--(int) { return std::exchange(*this, *this - 1); }
        iterator& operator+=(difference_type distance) {
            index_ += distance;
            return *this;
        }
        iterator& operator-=(difference_type distance) { return *this += -distance; }
        friend iterator operator+(iterator from, difference_type distance) {
            return from += distance;
        }
        friend iterator operator+(difference_type distance, iterator from) {
            return from += distance;
        }
        friend iterator operator-(iterator from, difference_type distance) {
            return from -= distance;
        }
        friend difference_type operator-(const iterator& last, const iterator& first) {
            return last.index_ - first.index_;
        }

        /// Compare positions; the iterators are of the same range.
        friend bool operator==(const iterator& a, const iterator& b) {
            return a.index_ == b.index_;
        }
        friend std::strong_ordering operator<=>(const iterator& a, const iterator& b) {
            return a.index_ <=> b.index_;
        }

    private:
        Owner owner_;
        difference_type index_ = 0;
    };

    /// The elements of an owner.
    explicit ElementRange(Owner owner) : owner_(std::move(owner)) {}

    /// Returns the position of the first element.
    iterator begin() const { return {owner_, 0}; }
    /// Returns the position after the last element.
    iterator end() const { return {owner_, static_cast<std::ptrdiff_t>(size())}; }

    /// Returns the number of elements.
    std::size_t size() const { return Element::countIn(owner_); }
    /// Returns whether there is no element.
    bool empty() const { return size() == 0; }

    /// Returns an element. Error "wrong-call" if there is none at this index.
    Element operator[](std::size_t index) const { return Element::at(owner_, index); }
    /// Returns the first element. Error "wrong-call" if there is none.
    Element front() const { return (*this)[0]; }
    /// Returns the last element. Error "wrong-call" if there is none.
    Element back() const { return (*this)[size() - 1]; }

private:
    Owner owner_;
};

}  // namespace quorvane

/// Iterators hold what they need, and copying a range copies a reference.
template <class Element>
inline constexpr bool std::ranges::enable_view<quorvane::ElementRange<Element>> = true;
template <class Element>
inline constexpr bool std::ranges::enable_borrowed_range<quorvane::ElementRange<Element>> = true;
