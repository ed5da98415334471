#pragma once

#include <windows.h>

namespace quorvane::host {

/// A counted object with the given interfaces; it begins with one reference, its maker's.
template <class First, class... Others>
class ComObject : public First, public Others... {
public:
    virtual ~ComObject() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) {
            return E_POINTER;
        }
        *object = find(iid);
        if (!*object) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override {
        return static_cast<ULONG>(InterlockedIncrement(&count_));
    }
    ULONG STDMETHODCALLTYPE Release() override {
        const LONG left = InterlockedDecrement(&count_);
        if (left == 0) {
            delete this;
        }
        return static_cast<ULONG>(left);
    }

protected:
    /// The interface of that identifier, uncounted; null when there is none.
    virtual void* find(REFIID iid) {
        void* found = nullptr;
        if (IsEqualIID(iid, IID_IUnknown)) {
            found = static_cast<First*>(this);
        }
        findAs<First>(iid, found);
        (findAs<Others>(iid, found), ...);
        return found;
    }

private:
    template <class Interface>
    void findAs(REFIID iid, void*& found) {
        if (!found && IsEqualIID(iid, __uuidof(Interface))) {
            found = static_cast<Interface*>(this);
        }
    }

    LONG count_ = 1;
};

}  // namespace quorvane::host
