#pragma once

#include <concepts>
#include <cstddef>
#include <utility>

namespace quorvane {

/// A counted reference to an object; it can be null. The object lives while a reference to it does.
/// The namespace of the type must declare `retain(T*)` and `release(T*)`, so that references to a
/// type that is only declared can be held and handed on. Counts are not atomic: an object is used
/// by one thread at a time.
template <class T>
class Ref {
public:
    Ref() = default;
    Ref(std::nullptr_t) {}
    explicit Ref(T* object) : object_(object) {
        if (object_) {
            retain(object_);
        }
    }
    Ref(const Ref& other) : Ref(other.object_) {}
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    /// A reference to an object of a derived class is one to its base.
    template <class Derived>
    requires(!std::same_as<Derived, T> && std::convertible_to<Derived*, T*>) Ref(Ref<Derived> other)
    noexcept : object_(other.detach()) {}
    Ref& operator=(Ref other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Ref() {
        if (object_) {
            release(object_);
        }
    }

    T* get() const noexcept { return object_; }
    T* operator->() const noexcept { return object_; }
    T& operator*() const noexcept { return *object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }
    /// Two references are equal when they refer to the same object.
    bool operator==(const Ref&) const = default;

    /// Hands the counted object over to the caller, who must release it.
    T* detach() noexcept { return std::exchange(object_, nullptr); }
    /// Takes over an object that was counted for the caller.
    static Ref adopt(T* object) noexcept {
        Ref reference;
        reference.object_ = object;
        return reference;
    }

private:
    T* object_ = nullptr;
};

}  // namespace quorvane
