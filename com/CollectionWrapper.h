#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <utility>
#include <vector>

#include "com/Enumerator.h"
#include "com/Wrapper.h"
#include "com/hostValue.h"
#include "quorvane/base/memory/Ref.h"

namespace quorvane::com {

/// An element of a collection, for its enumerator.
template <class Element>
struct EnumeratedElement {
    using HostValue = VARIANT;

    void write(VARIANT& value) const {
        auto* object = wrap(element);
        V_VT(&value) = VT_DISPATCH;
        V_DISPATCH(&value) = object;
    }
    static void clear(VARIANT& value) noexcept { VariantClear(&value); }

    Ref<Element> element;
};

/// What rows, cells and paragraphs have in common for a host. `Owner` and `Item` are the interfaces
/// of the collection's owner and of its elements.
template <class Self, class Interface, class Native, class Owner, class Item>
class CollectionWrapper : public Wrapper<Self, Interface, Native> {
public:
    using Wrapper<Self, Interface, Native>::Wrapper;

    STDMETHODIMP get_Parent(Owner** parent) override {
        return this->get(parent, [&] { return this->native().Parent(); });
    }
    STDMETHODIMP get_Count(LONG* count) override {
        return this->getStored(count, [&] { return this->native().Count(); });
    }
    STDMETHODIMP get_NewEnum(IUnknown** enumerator) override {
        using Element = EnumeratedElement<
            std::remove_reference_t<decltype(*std::declval<Native&>().PeekHead())>>;
        if (!enumerator) {
            return plainFailure(E_POINTER);
        }
        *enumerator = nullptr;
        return this->run([&] {
            Native& collection = this->native();
            const std::int32_t count = collection.Count();
            std::vector<Element> elements;
            elements.reserve(static_cast<std::size_t>(count));
            for (std::int32_t i = 1; i <= count; ++i) {
                elements.push_back({collection.Item(i)});
            }
            *enumerator = new Enumerator<IEnumVARIANT, Element>(std::move(elements));
        });
    }
    STDMETHODIMP add(VARIANT* key, VARIANT* before, VARIANT* after) override {
        return this->run(
            [&] { this->native().add(valueOf(key), valueOf(before), valueOf(after)); });
    }
    STDMETHODIMP Remove(VARIANT index) override {
        return this->run([&] { this->native().Remove(valueOf(index)); });
    }
    STDMETHODIMP get_Item(VARIANT index, Item** item) override {
        return this->get(item, [&] { return this->native().Item(valueOf(index)); });
    }
    STDMETHODIMP AddHead(VARIANT* key) override {
        return this->run([&] { this->native().AddHead(valueOf(key)); });
    }
    STDMETHODIMP PeekHead(Item** item) override {
        return this->get(item, [&] { return this->native().PeekHead(); });
    }
    STDMETHODIMP RemoveHead() override {
        return this->run([&] { this->native().RemoveHead(); });
    }
    STDMETHODIMP AddTail(VARIANT* key) override {
        return this->run([&] { this->native().AddTail(valueOf(key)); });
    }
    STDMETHODIMP PeekTail(Item** item) override {
        return this->get(item, [&] { return this->native().PeekTail(); });
    }
    STDMETHODIMP removeTail() override {
        return this->run([&] { this->native().removeTail(); });
    }

protected:
    ~CollectionWrapper() = default;
};

}  // namespace quorvane::com
