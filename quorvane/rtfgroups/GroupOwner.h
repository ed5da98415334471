#pragma once

namespace quorvane {

/// What a group needs from the document that owns it.
class GroupOwner {
public:
    virtual ~GroupOwner() = default;
    /// Called before anything changes that the document's text is made of, whether or not the
    /// change marks the document. Out of memory, nothing must change.
    virtual void beforeChange() = 0;
    /// Marks the document's cached text as stale.
    virtual void markChanged() noexcept = 0;
};

}  // namespace quorvane
