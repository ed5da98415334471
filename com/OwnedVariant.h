#pragma once

#include <windows.h>

#include <oleauto.h>

namespace quorvane::com {

/// A value of automation that is cleared at its end.
class OwnedVariant {
public:
    OwnedVariant() noexcept { VariantInit(&value_); }
    OwnedVariant(OwnedVariant&& other) noexcept : value_(other.value_) {
        VariantInit(&other.value_);
    }
    OwnedVariant& operator=(OwnedVariant&&) = delete;
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;
    ~OwnedVariant() { VariantClear(&value_); }

    VARIANT* get() noexcept { return &value_; }
    const VARIANT& operator*() const noexcept { return value_; }

private:
    VARIANT value_;
};

}  // namespace quorvane::com
