#pragma once

#include <cstdint>

namespace quorvane {

/// Count of the references to an object that nothing refers to weakly.
class Counted {
public:
    void retain() noexcept { ++references_; }
    /// True when the last reference has gone.
    bool release() noexcept { return --references_ == 0; }

private:
    std::uint32_t references_ = 0;
};

/// Counts of an object whose children refer to it weakly. When the last strong reference goes, the
/// object releases all that it holds (its `releaseContents()` is called); its memory goes with the
/// last weak one, so that a child that outlives its owner can still ask whether the owner is there.
class CountedOwner {
public:
    bool isAlive() const noexcept { return strong_ != 0; }
    void retain() noexcept { ++strong_; }
    void retainWeak() noexcept { ++weak_; }

    /// Drops a strong reference to the owner that these counts belong to.
    template <class Owner>
    void release(Owner* owner) noexcept {
        if (--strong_ == 0) {
            ++weak_;
            owner->releaseContents();
            releaseWeak(owner);
        }
    }

    /// Drops a weak reference to the owner that these counts belong to.
    template <class Owner>
    void releaseWeak(Owner* owner) noexcept {
        if (--weak_ == 0 && strong_ == 0) {
            delete owner;
        }
    }

private:
    std::uint32_t strong_ = 0;
    std::uint32_t weak_ = 0;
};

}  // namespace quorvane
