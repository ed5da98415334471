#include "com/document/DocumentRowsObject.h"

#include <utility>

namespace quorvane::com {

std::span<const Member> DocumentRowsObject::members() {
    static constexpr Member all[] = {
        getter<&::_DocumentRows::get_Item>(DISPID_VALUE),
        getter<&::_DocumentRows::get_Count>(2),
        getter<&::_DocumentRows::get_NewEnum>(DISPID_NEWENUM),
        procedure<&::_DocumentRows::Insert>(4),
    };
    return all;
}

STDMETHODIMP DocumentRowsObject::Insert(LONG index, ::_DocumentRow** result) {
    return fetch(result, [&] {
        Document& document = native().document;
        return document.insertRow(indexOf(index, document.size() + 1, elementName));
    });
}

void give(::_DocumentRows** result, const RowsOf& rows) {
    *result = WrapperRegistry<DocumentRowsObject>::wrapperOf(rows.state).detach();
}

}  // namespace quorvane::com
