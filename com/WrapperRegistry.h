#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <utility>

#include "com/ComPtr.h"
#include "com/Lock.h"
#include "quorvane/base/memory/Ref.h"

namespace quorvane::com {

/// Which COM object stands for which object of the library, so that a host that asks twice gets the
/// same one. A wrapper keeps its object alive; the registry keeps neither. Its parts are locked
/// singly, so that apartments do not wait for each other.
template <class Wrapper>
class WrapperRegistry {
public:
    using Native = typename Wrapper::Native;

    /// The wrapper of an object; it is made when there is none, with what else it needs. Null for
    /// null.
    template <class... Others>
    static ComPtr<Wrapper> wrapperOf(Ref<Native> object, const Others&... others) {
        if (!object) {
            return nullptr;
        }
        const Native* const key = object.get();
        Part& part = partOf(key);
        const Lock lock(part.lock);
        const auto known = part.wrappers.find(key);
        if (known != part.wrappers.end() && known->second->addRefUnlessReleased()) {
            return ComPtr<Wrapper>::adopt(known->second);
        }
        auto made = std::make_unique<Wrapper>(std::move(object), others...);
        part.wrappers.insert_or_assign(key, made.get());
        return ComPtr<Wrapper>(made.release());
    }

    /// Forgets a wrapper, unless another one has taken its place.
    static void forget(const Native* object, const Wrapper* wrapper) noexcept {
        Part& part = partOf(object);
        const Lock lock(part.lock);
        const auto found = part.wrappers.find(object);
        if (found != part.wrappers.end() && found->second == wrapper) {
            part.wrappers.erase(found);
        }
    }

private:
    struct Part {
        SRWLOCK lock = SRWLOCK_INIT;
        std::unordered_map<const Native*, Wrapper*> wrappers;
    };
    using Parts = std::array<Part, 31>;

    static Part& partOf(const Native* object) {
        // Never destroyed: a host may release its last objects when the process is ending.
        static Parts& parts = *new Parts;
        constexpr std::uintptr_t usualDistance = 16;
        return parts[reinterpret_cast<std::uintptr_t>(object) / usualDistance % parts.size()];
    }
};

}  // namespace quorvane::com
