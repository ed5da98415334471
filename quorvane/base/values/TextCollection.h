#pragma once

#include <cstdint>
#include <string>

#include "quorvane/base/values/Value.h"

namespace quorvane {

/// Texts that are read by position or key, such as `CStringList`.
class TextCollection {
public:
    virtual ~TextCollection() = default;

    virtual std::int32_t Count() const = 0;

    /// The text at a position from 1 or with a key. Errors: 5 no such element, 13 the index is
    /// neither a number nor a text.
    virtual const std::string& Item(const Value& Index) const = 0;

protected:
    TextCollection() = default;
    TextCollection(const TextCollection&) = default;
    TextCollection& operator=(const TextCollection&) = default;
};

}  // namespace quorvane
