#pragma once

#include <oaidl.h>

namespace quorvane::bench {

/// An interface of one property, for early binding.
struct INumber : IDispatch {
    virtual HRESULT STDMETHODCALLTYPE get_PageWidth(long* number) = 0;
};

/// The yardstick of calls: an object that does nothing. It knows every name; `PageWidth` is a
/// number, and every other name returns the object itself.
INumber& emptyObject();

}  // namespace quorvane::bench
