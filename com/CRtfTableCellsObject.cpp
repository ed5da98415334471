#include "com/CRtfTableCellsObject.h"

#include <utility>

#include "quorvane/docmodel/CRtfTableRow.h"

namespace quorvane::com {

std::span<const Member> CRtfTableCellsObject::members() {
    static constexpr Member all[] = {
        getter<&::_CRtfTableCells::get_Parent>(1),
        getter<&::_CRtfTableCells::get_Count>(2),
        getter<&::_CRtfTableCells::get_NewEnum>(DISPID_NEWENUM),
        procedure<&::_CRtfTableCells::add>(4),
        procedure<&::_CRtfTableCells::Remove>(5),
        getter<&::_CRtfTableCells::get_Item>(DISPID_VALUE),
        procedure<&::_CRtfTableCells::AddHead>(7),
        procedure<&::_CRtfTableCells::RemoveHead>(8),
        procedure<&::_CRtfTableCells::AddTail>(9),
        procedure<&::_CRtfTableCells::removeTail>(10),
        procedure<&::_CRtfTableCells::PeekHead>(11),
        procedure<&::_CRtfTableCells::PeekTail>(12),
        procedure<&::_CRtfTableCells::SetUniformWidths>(13),
    };
    return all;
}

STDMETHODIMP CRtfTableCellsObject::SetUniformWidths() {
    return run([&] { native().SetUniformWidths(); });
}

::_CRtfTableCells* wrap(Ref<CRtfTableCells> object) {
    return WrapperRegistry<CRtfTableCellsObject>::wrapperOf(std::move(object)).detach();
}

}  // namespace quorvane::com
