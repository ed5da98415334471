#pragma once

#include <windows.h>

#include <oleauto.h>

#include <atomic>
#include <string>
#include <vector>

namespace quorvane::com {

/// The names of an interface's members and of their parameters, as the type library has them.
/// Names are compared without regard to case.
class MemberNames {
public:
    /// Throws `std::bad_alloc`.
    explicit MemberNames(ITypeInfo& info);

    /// The identifiers of a member and of its parameters, as `IDispatch::GetIDsOfNames` returns
    /// them.
    HRESULT find(const LPOLESTR* names, UINT count, DISPID* ids) const noexcept;

private:
    struct Entry {
        std::wstring name;
        DISPID id;
        std::vector<std::wstring> parameters;
    };

    // In the order of their names.
    std::vector<Entry> entries_;
};

/// The names of one interface, read when they are first asked for and kept until the process ends.
class MemberNamesCache {
public:
    /// The same as `MemberNames::find`. Fails when the type library cannot be read.
    HRESULT find(REFIID interfaceId, const LPOLESTR* names, UINT count, DISPID* ids) noexcept;

private:
    HRESULT load(REFIID interfaceId) noexcept;

    SRWLOCK lock_ = SRWLOCK_INIT;
    std::atomic<const MemberNames*> names_ = nullptr;
};

}  // namespace quorvane::com
