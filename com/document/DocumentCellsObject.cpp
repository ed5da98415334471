#include "com/document/DocumentCellsObject.h"

#include <utility>

#include "com/document/scriptValues.h"

namespace quorvane::com {

std::span<const Member> DocumentCellsObject::members() {
    static constexpr Member all[] = {
        getter<&::_DocumentCells::get_Item>(DISPID_VALUE),
        getter<&::_DocumentCells::get_Count>(2),
        getter<&::_DocumentCells::get_NewEnum>(DISPID_NEWENUM),
        procedure<&::_DocumentCells::Insert>(4),
    };
    return all;
}

STDMETHODIMP DocumentCellsObject::Insert(LONG index, VARIANT* text, VARIANT* style,
                                         ::_DocumentCell** result) {
    return fetch(result, [&] {
        return row_.insertCell(indexOf(index, row_.size() + 1, elementName), textOf(text),
                               textOf(style));
    });
}

void give(::_DocumentCells** result, const CellsOf& cells) {
    *result =
        WrapperRegistry<DocumentCellsObject>::wrapperOf(cells.row.native(), cells.row).detach();
}

}  // namespace quorvane::com
