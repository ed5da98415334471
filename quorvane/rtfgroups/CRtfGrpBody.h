#pragma once

#include <utility>

#include "quorvane/base/memory/Ref.h"

namespace quorvane {

/// The last group of a document: its one table. `Rows` is the collection of the table's rows; it
/// renders itself and can be torn down.
template <class Rows>
class CRtfGrpBody {
public:
    /// A group without rows, which can only be assigned to.
    CRtfGrpBody() = default;
    explicit CRtfGrpBody(Ref<Rows> rows) : rows_(std::move(rows)) {}

    /// The rows; the same object every time.
    const Ref<Rows>& TableRows() const noexcept { return rows_; }

    /// Writes the rows' text.
    template <class Rendering>
    void render(Rendering& rendering) const {
        rows_->render(rendering);
    }

    /// Tears the rows down, also when a host holds them. Without this call they stay as they are.
    void destroy() noexcept {
        rows_->destroy();
        rows_ = nullptr;
    }

private:
    Ref<Rows> rows_;
};

}  // namespace quorvane
