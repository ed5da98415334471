#pragma once

#include <unordered_map>
#include <utility>

namespace quorvane {

/// Values of the few elements of a document that have one, by the elements' addresses.
template <class Value>
class ElementMap {
public:
    bool empty() const noexcept { return values_.empty(); }

    /// The element's value; null if it has none. Valid until it is erased.
    const Value* find(const void* element) const {
        const auto found = values_.find(element);
        return found == values_.end() ? nullptr : &found->second;
    }

    /// The element's value, made if it has none.
    Value& operator[](const void* element) { return values_[element]; }

    void set(const void* element, Value value) {
        values_.insert_or_assign(element, std::move(value));
    }

    void erase(const void* element) noexcept { values_.erase(element); }

    /// Gives the value of one element, if it has one, to another that has none.
    bool move(const void* from, const void* to) noexcept {
        auto node = values_.extract(from);
        if (node.empty()) {
            return false;
        }
        node.key() = to;
        // There are as many values as before, so no memory is needed.
        values_.insert(std::move(node));
        return true;
    }

private:
    std::unordered_map<const void*, Value> values_;
};

}  // namespace quorvane
