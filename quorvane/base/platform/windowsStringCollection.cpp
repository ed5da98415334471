#include "quorvane/base/platform/windowsStringCollection.h"

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

#include "quorvane/base/text/utf16.h"

namespace quorvane {

namespace {

class WindowsStringCollection final : public IDispatch {
public:
    explicit WindowsStringCollection(std::shared_ptr<const TextCollection> list);

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** information) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags,
                        DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                        UINT* badArgument) override;

private:
    ~WindowsStringCollection() = default;

    const std::shared_ptr<const TextCollection> list_;
    LONG references_ = 1;
};

constexpr DISPID countId = 1;

std::string utf8Of(const VARIANT& text) {
    return utf8FromUtf16(std::wstring_view(V_BSTR(&text), SysStringLen(V_BSTR(&text))));
}

/// Sets the result to the string that an index names, if there is one.
HRESULT fetchItem(const TextCollection& list, VARIANT& given, VARIANT& result) {
    VARIANT index;
    VariantInit(&index);
    HRESULT status = VariantCopyInd(&index, &given);
    if (SUCCEEDED(status) && V_VT(&index) != VT_BSTR) {
        status = VariantChangeType(&index, &index, 0, VT_I4);
    }
    if (SUCCEEDED(status)) {
        try {
            const Value key =
                V_VT(&index) == VT_BSTR ? Value(utf8Of(index)) : Value(std::int32_t{V_I4(&index)});
            const auto item = utf16FromUtf8<wchar_t>(list.Item(key));
            V_BSTR(&result) = SysAllocStringLen(item.data(), static_cast<UINT>(item.size()));
            V_VT(&result) = V_BSTR(&result) ? VT_BSTR : VT_EMPTY;
            status = V_BSTR(&result) ? S_OK : E_OUTOFMEMORY;
        } catch (const std::exception&) {
            status = DISP_E_BADINDEX;
        }
    }
    VariantClear(&index);
    return status;
}

WindowsStringCollection::WindowsStringCollection(std::shared_ptr<const TextCollection> list)
    : list_(std::move(list)) {}

STDMETHODIMP WindowsStringCollection::QueryInterface(REFIID id, void** object) {
    if (!object) {
        return E_POINTER;
    }
    const bool isKnown = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch);
    *object = isKnown ? this : nullptr;
    if (!isKnown) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) WindowsStringCollection::AddRef() {
    return static_cast<ULONG>(InterlockedIncrement(&references_));
}

STDMETHODIMP_(ULONG) WindowsStringCollection::Release() {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) {
        delete this;
    }
    return static_cast<ULONG>(left);
}

STDMETHODIMP WindowsStringCollection::GetTypeInfoCount(UINT* count) {
    if (!count) {
        return E_POINTER;
    }
    *count = 0;
    return S_OK;
}

STDMETHODIMP WindowsStringCollection::GetTypeInfo(UINT, LCID, ITypeInfo** information) {
    if (information) {
        *information = nullptr;
    }
    return DISP_E_BADINDEX;
}

STDMETHODIMP WindowsStringCollection::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                                    DISPID* ids) {
    if (!names || !ids || count != 1) {
        return E_INVALIDARG;
    }
    if (lstrcmpiW(names[0], L"Count") == 0) {
        ids[0] = countId;
    } else if (lstrcmpiW(names[0], L"Item") == 0) {
        ids[0] = DISPID_VALUE;
    } else {
        ids[0] = DISPID_UNKNOWN;
        return DISP_E_UNKNOWNNAME;
    }
    return S_OK;
}

STDMETHODIMP WindowsStringCollection::Invoke(DISPID member, REFIID, LCID, WORD flags,
                                             DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                                             UINT*) {
    if ((member != countId && member != DISPID_VALUE) ||
        (flags & (DISPATCH_PROPERTYGET | DISPATCH_METHOD)) == 0) {
        return DISP_E_MEMBERNOTFOUND;
    }
    if (!parameters || parameters->cArgs != (member == countId ? 0U : 1U)) {
        return DISP_E_BADPARAMCOUNT;
    }
    VARIANT value;
    VariantInit(&value);
    if (member == countId) {
        V_VT(&value) = VT_I4;
        V_I4(&value) = list_->Count();
    } else if (const HRESULT status = fetchItem(*list_, parameters->rgvarg[0], value);
               FAILED(status)) {
        return status;
    }
    if (result) {
        *result = value;
    } else {
        VariantClear(&value);
    }
    return S_OK;
}

}  // namespace

IDispatch* makeWindowsStringCollection(std::shared_ptr<const TextCollection> list) {
    return new WindowsStringCollection(std::move(list));
}

}  // namespace quorvane
