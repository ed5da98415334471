#pragma once

#include <utility>

namespace quorvane::com {

/// A counted reference to a COM object; null for none.
template <class T>
class ComPtr {
public:
    ComPtr() = default;
    ComPtr(std::nullptr_t) {}
    explicit ComPtr(T* object) : object_(object) {
        if (object_) {
            object_->AddRef();
        }
    }
    ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
    ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ComPtr() {
        if (object_) {
            object_->Release();
        }
    }

    T* get() const noexcept { return object_; }
    T* operator->() const noexcept { return object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }

    /// Where a call that returns a counted object writes it; the reference must be null.
    T** out() noexcept { return &object_; }
    void** outVoid() noexcept { return reinterpret_cast<void**>(&object_); }
    /// Hands the counted object over to the caller.
    T* detach() noexcept { return std::exchange(object_, nullptr); }
    /// Takes over an object that was counted for the caller.
    static ComPtr adopt(T* object) noexcept {
        ComPtr reference;
        reference.object_ = object;
        return reference;
    }

private:
    T* object_ = nullptr;
};

}  // namespace quorvane::com
