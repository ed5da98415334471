#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "com/Enumerator.h"
#include "com/document/DocumentPart.h"

namespace quorvane::com {

/// The index of an element for a number of a host, which counts from 1; error "wrong-call" for a
/// number that is not from 1 to `last`.
std::size_t indexOf(LONG number, std::size_t last, const char* name);

/// An element, for an enumerator. `Item` is its interface.
template <class Element, class Item>
struct EnumeratedPart {
    using HostValue = VARIANT;

    void write(VARIANT& value) const {
        Item* object = nullptr;
        give(&object, element);
        V_VT(&value) = VT_DISPATCH;
        V_DISPATCH(&value) = object;
    }
    static void clear(VARIANT& value) noexcept { VariantClear(&value); }

    Element element;
};

/// What collections have in common. `Self` provides `elements()`, which has `size()` and `[]`, and
/// `elementName`; `Item` is the interface of an element.
template <class Self, class Interface, class Native, class Item>
class DocumentCollection : public DocumentPart<Self, Interface, Native> {
public:
    using DocumentPart<Self, Interface, Native>::DocumentPart;

    STDMETHODIMP get_Item(LONG number, Item** result) override {
        return this->fetch(result, [&] {
            const auto& all = self().elements();
            return all[indexOf(number, all.size(), Self::elementName)];
        });
    }
    STDMETHODIMP get_Count(LONG* result) override {
        return this->fetch(result, [&] { return self().elements().size(); });
    }
    STDMETHODIMP get_NewEnum(IUnknown** result) override {
        if (!result) {
            return plainFailure(E_POINTER);
        }
        *result = nullptr;
        return this->perform([&] {
            const auto& all = self().elements();
            using Element = EnumeratedPart<std::decay_t<decltype(all[0])>, Item>;
            std::vector<Element> elements;
            elements.reserve(all.size());
            for (std::size_t i = 0; i < all.size(); ++i) {
                elements.push_back({all[i]});
            }
            *result = new Enumerator<IEnumVARIANT, Element>(std::move(elements));
        });
    }

protected:
    ~DocumentCollection() = default;

private:
    const Self& self() const noexcept { return static_cast<const Self&>(*this); }
};

}  // namespace quorvane::com
