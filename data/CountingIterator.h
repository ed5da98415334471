#pragma once

#include <cstddef>
#include <iterator>

namespace quorvane::data {

/// A place in a text that says how far the text was read.
class CountingIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* at, const char** furthest) : at_(at), furthest_(furthest) {}
    const char& operator*() const { return *at_; }
    CountingIterator& operator++() {
        *furthest_ = ++at_;
        return *this;
    }
    bool operator==(const CountingIterator& other) const { return at_ == other.at_; }
    bool operator!=(const CountingIterator& other) const { return at_ != other.at_; }

private:
    const char* at_;
    const char** furthest_;
};

}  // namespace quorvane::data
