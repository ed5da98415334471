#pragma once

#include <windows.h>

#include <utility>

namespace quorvane::host {

/// A counted reference to a COM interface.
template <class T>
class ComPtr {
public:
    ComPtr() = default;
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
    ~ComPtr() { reset(); }

    void reset() {
        if (object_) {
            std::exchange(object_, nullptr)->Release();
        }
    }
    T* get() const { return object_; }
    T* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

    /// Where a callee puts a counted reference; what was held before is released.
    T** out() {
        reset();
        return &object_;
    }
    void** outVoid() { return reinterpret_cast<void**>(out()); }

    /// Takes over a reference that was counted for the caller.
    static ComPtr adopt(T* object) {
        ComPtr pointer;
        pointer.object_ = object;
        return pointer;
    }
    /// Hands the counted reference over to the caller.
    T* detach() { return std::exchange(object_, nullptr); }

    /// Another interface of the object; null when it has none such.
    template <class Other>
    ComPtr<Other> as() const {
        ComPtr<Other> other;
        if (object_) {
            object_->QueryInterface(__uuidof(Other), other.outVoid());
        }
        return other;
    }

private:
    T* object_ = nullptr;
};

/// A counted reference to an object that is made here.
template <class T, class... Arguments>
ComPtr<T> makeCom(Arguments&&... arguments) {
    return ComPtr<T>::adopt(new T(std::forward<Arguments>(arguments)...));
}

}  // namespace quorvane::host
