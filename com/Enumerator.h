#pragma once

#include <windows.h>

#include <oleauto.h>

#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "com/ComPtr.h"
#include "com/hostErrors.h"
#include "com/serverModule.h"

namespace quorvane::com {

/// An enumerator over items that were gathered when it was made: whatever happens to the collection
/// meanwhile, it goes through what was there then.
///
/// `Interface` is the kind of enumerator. `Item` says how an item is returned: `answer` writes it
/// as a value of the type `Answer`, and may throw; `clear` takes such a value back.
template <class Interface, class Item>
class Enumerator final : public Interface {
public:
    using Items = std::shared_ptr<const std::vector<Item>>;
    using Answer = typename Item::Answer;

    explicit Enumerator(std::vector<Item> items)
        : items_(std::make_shared<const std::vector<Item>>(std::move(items))) {}
    Enumerator(const Enumerator&) = delete;
    Enumerator& operator=(const Enumerator&) = delete;

    STDMETHODIMP QueryInterface(REFIID interfaceId, void** object) override {
        if (!object) {
            return E_POINTER;
        }
        const bool isKnown =
            IsEqualIID(interfaceId, __uuidof(Interface)) || IsEqualIID(interfaceId, IID_IUnknown);
        *object = isKnown ? static_cast<Interface*>(this) : nullptr;
        if (!isKnown) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override {
        return static_cast<ULONG>(InterlockedIncrement(&references_));
    }
    STDMETHODIMP_(ULONG) Release() override {
        const LONG left = InterlockedDecrement(&references_);
        if (left == 0) {
            delete this;
        }
        return static_cast<ULONG>(left);
    }

    STDMETHODIMP Next(ULONG wanted, Answer* answers, ULONG* fetched) override {
        if (fetched) {
            *fetched = 0;
        }
        if (!answers || (!fetched && wanted != 1)) {
            return plainFailure(E_POINTER);
        }
        const ULONG count = wanted < left() ? wanted : left();
        ULONG done = 0;
        const HRESULT result = toHresult(__uuidof(Interface), [&] {
            for (; done < count; ++done) {
                (*items_)[next_ + done].answer(answers[done]);
            }
        });
        if (FAILED(result)) {
            while (done > 0) {
                Item::clear(answers[--done]);
            }
            return result;
        }
        next_ += count;
        if (fetched) {
            *fetched = count;
        }
        return count == wanted ? S_OK : S_FALSE;
    }
    STDMETHODIMP Skip(ULONG wanted) override {
        const ULONG count = wanted < left() ? wanted : left();
        next_ += count;
        return count == wanted ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() override {
        next_ = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(Interface** clone) override {
        if (!clone) {
            return E_POINTER;
        }
        *clone = new (std::nothrow) Enumerator(items_, next_);
        return *clone ? S_OK : E_OUTOFMEMORY;
    }

private:
    Enumerator(Items items, ULONG next) noexcept : items_(std::move(items)), next_(next) {}
    ~Enumerator() = default;

    ULONG left() const noexcept { return static_cast<ULONG>(items_->size()) - next_; }

    ModuleUse use_;
    LONG references_ = 1;
    Items items_;
    ULONG next_ = 0;
};

}  // namespace quorvane::com
