#include "com/CRtfTableRowsObject.h"

#include <utility>

#include "quorvane/docmodel/CRtfDoc.h"

namespace quorvane::com {

std::span<const Member> CRtfTableRowsObject::members() {
    static constexpr Member all[] = {
        getter<&::_CRtfTableRows::get_NewEnum>(1),
        getter<&::_CRtfTableRows::get_Count>(2),
        getter<&::_CRtfTableRows::get_Parent>(3),
        procedure<&::_CRtfTableRows::add>(4),
        procedure<&::_CRtfTableRows::Remove>(5),
        getter<&::_CRtfTableRows::get_Item>(DISPID_VALUE),
        procedure<&::_CRtfTableRows::AddHead>(7),
        procedure<&::_CRtfTableRows::PeekHead>(8),
        procedure<&::_CRtfTableRows::RemoveHead>(9),
        procedure<&::_CRtfTableRows::AddTail>(10),
        procedure<&::_CRtfTableRows::PeekTail>(11),
        procedure<&::_CRtfTableRows::removeTail>(12),
    };
    return all;
}

::_CRtfTableRows* wrap(Ref<CRtfTableRows> object) {
    return WrapperRegistry<CRtfTableRowsObject>::wrapperOf(std::move(object)).detach();
}

}  // namespace quorvane::com
