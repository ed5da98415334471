#pragma once

#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// The leaf of a key in which no error was reported; null when there is none.
inline const Leaf* soundLeaf(const DescriptionNode& node, DescriptionKey key) {
    const Leaf* const leaf = node.find(key);
    return leaf && !leaf->isFaulty ? leaf : nullptr;
}

inline Leaf* soundLeaf(DescriptionNode& node, DescriptionKey key) {
    return const_cast<Leaf*>(soundLeaf(static_cast<const DescriptionNode&>(node), key));
}

}  // namespace quorvane
