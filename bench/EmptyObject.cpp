#include "bench/EmptyObject.h"

#include <cwchar>

namespace quorvane::bench {

namespace {

constexpr DISPID numberId = 1;
constexpr DISPID objectId = 2;

class EmptyObject final : public INumber {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch)) {
            *object = this;
            return S_OK;
        }
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override {
        return DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                            DISPID* ids) override {
        *ids = std::wcscmp(names[0], L"PageWidth") == 0 ? numberId : objectId;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                     EXCEPINFO*, UINT*) override {
        if (!result) {
            return S_OK;
        }
        if (id == numberId) {
            V_VT(result) = VT_I4;
            V_I4(result) = 12242;
        } else {
            V_VT(result) = VT_DISPATCH;
            V_DISPATCH(result) = this;
        }
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE get_PageWidth(long* number) override {
        *number = 12242;
        return S_OK;
    }
};

}  // namespace

INumber& emptyObject() {
    static EmptyObject object;
    return object;
}

}  // namespace quorvane::bench
