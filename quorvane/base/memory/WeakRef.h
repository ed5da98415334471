#pragma once

#include <utility>

namespace quorvane {

/// A reference that does not keep its object alive: `get` returns null once the object's last `Ref`
/// has gone. The namespace of the type must declare `retainWeak`, `releaseWeak` and `isAlive` for
/// it.
template <class T>
class WeakRef {
public:
    WeakRef() = default;
    explicit WeakRef(T* object) : object_(object) {
        if (object_) {
            retainWeak(object_);
        }
    }
    WeakRef(const WeakRef& other) : WeakRef(other.object_) {}
    WeakRef(WeakRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    WeakRef& operator=(WeakRef other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~WeakRef() {
        if (object_) {
            releaseWeak(object_);
        }
    }

    T* get() const noexcept { return object_ && isAlive(object_) ? object_ : nullptr; }

    /// The object, alive or not: as long as this reference is there, so is its memory.
    T* memory() const noexcept { return object_; }

private:
    T* object_ = nullptr;
};

}  // namespace quorvane
