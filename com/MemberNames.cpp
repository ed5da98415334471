#include "com/MemberNames.h"

#include <algorithm>
#include <array>
#include <memory>
#include <new>
#include <string_view>

#include "com/ComPtr.h"
#include "com/Lock.h"
#include "com/typeLibrary.h"

namespace quorvane::com {

namespace {

constexpr UINT maxNames = 8;
// Members of IUnknown and IDispatch have identifiers from here on.
constexpr DISPID firstInherited = 0x60000000;

wchar_t lowerCase(wchar_t letter) {
    return letter >= L'A' && letter <= L'Z' ? static_cast<wchar_t>(letter + (L'a' - L'A')) : letter;
}

bool precedes(std::wstring_view a, std::wstring_view b) {
    return std::lexicographical_compare(
        a.begin(), a.end(), b.begin(), b.end(),
        [](wchar_t x, wchar_t y) { return lowerCase(x) < lowerCase(y); });
}

bool areEqual(std::wstring_view a, std::wstring_view b) {
    return !precedes(a, b) && !precedes(b, a);
}

/// The names of a member and of its parameters.
std::vector<std::wstring> namesOf(ITypeInfo& info, MEMBERID id) {
    std::array<BSTR, maxNames> names{};
    UINT count = 0;
    if (info.GetNames(id, names.data(), maxNames, &count) == E_OUTOFMEMORY) {
        throw std::bad_alloc();
    }
    const auto release = [](BSTR* all) {
        std::for_each(all, all + maxNames, [](BSTR name) { SysFreeString(name); });
    };
    const std::unique_ptr<BSTR, decltype(release)> freed(names.data(), release);
    std::vector<std::wstring> texts;
    for (UINT i = 0; i < count; ++i) {
        texts.emplace_back(names[i], SysStringLen(names[i]));
    }
    return texts;
}

}  // namespace

MemberNames::MemberNames(ITypeInfo& info) {
    FUNCDESC* function = nullptr;
    for (UINT i = 0;; ++i) {
        const HRESULT result = info.GetFuncDesc(i, &function);
        if (result == E_OUTOFMEMORY) {
            throw std::bad_alloc();
        }
        if (FAILED(result)) {
            break;
        }
        const MEMBERID id = function->memid;
        info.ReleaseFuncDesc(function);
        if (id >= firstInherited) {
            continue;
        }
        std::vector<std::wstring> names = namesOf(info, id);
        if (!names.empty()) {
            std::wstring name = std::move(names.front());
            names.erase(names.begin());
            entries_.push_back({std::move(name), id, std::move(names)});
        }
    }
    // A property that is read and put comes twice: the first one is found.
    std::stable_sort(entries_.begin(), entries_.end(),
                     [](const Entry& a, const Entry& b) { return precedes(a.name, b.name); });
}

HRESULT MemberNames::find(const LPOLESTR* names, UINT count, DISPID* ids) const noexcept {
    std::fill(ids, ids + count, DISPID_UNKNOWN);
    const auto entry =
        std::lower_bound(entries_.begin(), entries_.end(), std::wstring_view(names[0]),
                         [](const Entry& candidate, std::wstring_view name) {
                             return precedes(candidate.name, name);
                         });
    if (entry == entries_.end() || !areEqual(entry->name, names[0])) {
        return DISP_E_UNKNOWNNAME;
    }
    ids[0] = entry->id;
    bool allFound = true;
    for (UINT i = 1; i < count; ++i) {
        const auto parameter =
            std::find_if(entry->parameters.begin(), entry->parameters.end(),
                         [&](const std::wstring& name) { return areEqual(name, names[i]); });
        if (parameter == entry->parameters.end()) {
            allFound = false;
        } else {
            ids[i] = static_cast<DISPID>(parameter - entry->parameters.begin());
        }
    }
    return allFound ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT MemberNamesCache::find(REFIID interfaceId, const LPOLESTR* names, UINT count,
                               DISPID* ids) noexcept {
    if (!names_) {
        const HRESULT result = load(interfaceId);
        if (FAILED(result)) {
            return result;
        }
    }
    return names_.load()->find(names, count, ids);
}

HRESULT MemberNamesCache::load(REFIID interfaceId) noexcept {
    ComPtr<ITypeInfo> info;
    const HRESULT result = typeInfo(interfaceId, info.out());
    if (FAILED(result)) {
        return result;
    }
    try {
        const Lock lock(lock_);
        if (!names_) {
            names_ = new MemberNames(*info.get());
        }
        return S_OK;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
}

}  // namespace quorvane::com
