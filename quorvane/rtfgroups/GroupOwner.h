#pragma once

namespace quorvane {

/// What a group needs from the document that owns it.
class GroupOwner {
public:
    virtual ~GroupOwner() = default;
    /// Marks the document's cached text as stale.
    virtual void markChanged() noexcept = 0;
};

}  // namespace quorvane
