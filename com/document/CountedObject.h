#pragma once

#include "quorvane/base/memory/Counted.h"

namespace quorvane::com {

/// The base of an object that `Ref` counts and COM objects share. `Self` is the class itself.
template <class Self>
class CountedObject {
public:
    CountedObject(const CountedObject&) = delete;
    CountedObject& operator=(const CountedObject&) = delete;

    friend void retain(Self* object) noexcept {
        static_cast<CountedObject*>(object)->counts_.retain();
    }
    friend void release(Self* object) noexcept {
        if (static_cast<CountedObject*>(object)->counts_.release()) {
            delete object;
        }
    }

protected:
    CountedObject() = default;
    ~CountedObject() = default;

private:
    Counted counts_;
};

}  // namespace quorvane::com
