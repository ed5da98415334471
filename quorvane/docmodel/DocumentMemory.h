#pragma once

#include <memory>

#include "quorvane/base/memory/MemoryPool.h"
#include "quorvane/docmodel/DocumentAdditions.h"
#include "quorvane/docmodel/RareValues.h"

namespace quorvane {

/// What the rows, cells and paragraphs of a document keep outside of themselves. It exists as long
/// as one of them does: each refers weakly to its owner, so the memory of the document stays.
struct DocumentMemory {
    /// Holds the elements and their texts.
    MemoryPool pool;
    RareValuesByElement rareValues;
    /// Null until something is added.
    std::unique_ptr<DocumentAdditions> additions;

    DocumentAdditions& makeAdditions() {
        if (!additions) {
            additions = std::make_unique<DocumentAdditions>();
        }
        return *additions;
    }
};

}  // namespace quorvane
