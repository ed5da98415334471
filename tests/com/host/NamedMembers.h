#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/com/host/ComObject.h"

namespace quorvane::host {

/// The arguments of a late-bound call, in the order in which they are written.
class CallArguments {
public:
    explicit CallArguments(const DISPPARAMS& parameters) : parameters_(parameters) {}

    UINT count() const { return parameters_.cArgs; }
    /// The argument as it came; the index must be below the count.
    VARIANT& raw(UINT index) const { return parameters_.rgvarg[parameters_.cArgs - 1 - index]; }
    /// The argument, or what it refers to; Empty when there are not so many.
    const VARIANT& operator[](UINT index) const;
    /// The argument as a text.
    std::wstring text(UINT index) const;
    long number(UINT index) const;
    /// The argument as an object; null when it is not an object.
    IDispatch* object(UINT index) const;

private:
    const DISPPARAMS& parameters_;
};

/// An automation object whose members are found by their names and are functions.
class NamedMembers : public ComObject<IDispatch> {
public:
    using Member = std::function<HRESULT(const CallArguments& arguments, VARIANT& result)>;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* badArgument) override;

protected:
    /// Adds a member; names do not depend on case.
    void addMember(std::wstring name, Member member);
    /// Makes the member that was added last the default one.
    void makeDefault() { defaultMember_ = members_.size(); }
    /// Adds the enumerator that "For Each" asks for.
    void addEnumerator(Member member) { enumerator_ = std::move(member); }

private:
    struct NamedMember {
        std::wstring name;
        Member member;
    };

    const Member* memberOf(DISPID id) const;

    std::vector<NamedMember> members_;
    std::size_t defaultMember_ = 0;
    Member enumerator_;
};

}  // namespace quorvane::host
