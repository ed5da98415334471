#include "tests/com/host/NamedMembers.h"

#include <utility>

#include "tests/com/host/Variant.h"
#include "tests/com/host/text.h"

namespace quorvane::host {

const VARIANT& CallArguments::operator[](UINT index) const {
    static const VARIANT empty{};
    return index < count() ? dereferenced(raw(index)) : empty;
}

std::wstring CallArguments::text(UINT index) const {
    VARIANT converted;
    VariantInit(&converted);
    if (FAILED(VariantChangeType(&converted, input((*this)[index]), 0, VT_BSTR))) {
        return L"[" + wideText(describe((*this)[index])) + L"]";
    }
    std::wstring text(textOf(converted.bstrVal));
    VariantClear(&converted);
    return text;
}

long CallArguments::number(UINT index) const {
    return Variant((*this)[index]).number();
}

IDispatch* CallArguments::object(UINT index) const {
    const VARIANT& argument = (*this)[index];
    return argument.vt == VT_DISPATCH ? argument.pdispVal : nullptr;
}

HRESULT NamedMembers::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

HRESULT NamedMembers::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    *info = nullptr;
    return DISP_E_BADINDEX;
}

HRESULT NamedMembers::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    for (UINT i = 0; i < count; ++i) {
        ids[i] = DISPID_UNKNOWN;
    }
    for (std::size_t i = 0; i < members_.size(); ++i) {
        if (lstrcmpiW(names[0], members_[i].name.c_str()) == 0) {
            ids[0] = static_cast<DISPID>(i + 1);
            return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
        }
    }
    return DISP_E_UNKNOWNNAME;
}

HRESULT NamedMembers::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result,
                             EXCEPINFO*, UINT*) {
    const Member* member = memberOf(id);
    if (!member) {
        return DISP_E_MEMBERNOTFOUND;
    }
    Variant value;
    const HRESULT outcome = (*member)(CallArguments(*parameters), *value.out());
    if (result) {
        VariantInit(result);
        VariantCopy(result, input(value.get()));
    }
    return outcome;
}

void NamedMembers::addMember(std::wstring name, Member member) {
    members_.push_back({std::move(name), std::move(member)});
}

const NamedMembers::Member* NamedMembers::memberOf(DISPID id) const {
    if (id == DISPID_NEWENUM && enumerator_) {
        return &enumerator_;
    }
    const std::size_t number = id == DISPID_VALUE ? defaultMember_ : static_cast<std::size_t>(id);
    return number >= 1 && number <= members_.size() ? &members_[number - 1].member : nullptr;
}

}  // namespace quorvane::host
