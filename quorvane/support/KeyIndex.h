#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "quorvane/support/textCase.h"

namespace quorvane {

/// The keys of a keyed list: unique texts that are compared without regard to case.
template <class Element>
class KeyIndex {
public:
    /// The element filed under the key, or null.
    Element* find(std::string_view key) const {
        const auto found = elements_.find(lowerCase(key));
        return found == elements_.end() ? nullptr : found->second;
    }

    /// Files the element under a key that is not there yet.
    void add(std::string_view key, Element* element) {
        const auto added = elements_.emplace(lowerCase(key), element).first;
        try {
            keys_.emplace(element, &added->first);
        } catch (...) {
            elements_.erase(added);
            throw;
        }
    }

    /// Forgets the element's key, if it has one.
    void remove(const Element* element) noexcept {
        const auto found = keys_.find(element);
        if (found != keys_.end()) {
            elements_.erase(elements_.find(*found->second));
            keys_.erase(found);
        }
    }

private:
    std::unordered_map<std::string, Element*> elements_;
    std::unordered_map<const Element*, const std::string*> keys_;
};

}  // namespace quorvane
