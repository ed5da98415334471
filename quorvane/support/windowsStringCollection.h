#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <memory>
#include <string>

#include "quorvane/support/CStringList.h"

namespace quorvane {

/// The strings of a list as an automation collection, for the external error collection: `Count`,
/// and `Item(Index)` as the default member, by position from 1 or by key. Late bound only. Made
/// with one reference.
class WindowsStringCollection final : public IDispatch {
public:
    explicit WindowsStringCollection(std::shared_ptr<const CStringList> list);

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

    const std::shared_ptr<const CStringList> list_;
    LONG references_ = 1;
};

}  // namespace quorvane
