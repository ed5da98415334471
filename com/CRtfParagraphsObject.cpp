#include "com/CRtfParagraphsObject.h"

#include <utility>

#include "quorvane/docmodel/CRtfTableCell.h"

namespace quorvane::com {

std::span<const Member> CRtfParagraphsObject::members() {
    static constexpr Member all[] = {
        getter<&::_CRtfParagraphs::get_Parent>(1),
        getter<&::_CRtfParagraphs::get_Count>(2),
        getter<&::_CRtfParagraphs::get_NewEnum>(DISPID_NEWENUM),
        procedure<&::_CRtfParagraphs::add>(4),
        procedure<&::_CRtfParagraphs::Remove>(5),
        getter<&::_CRtfParagraphs::get_Item>(DISPID_VALUE),
        procedure<&::_CRtfParagraphs::AddHead>(7),
        procedure<&::_CRtfParagraphs::RemoveHead>(8),
        procedure<&::_CRtfParagraphs::AddTail>(9),
        procedure<&::_CRtfParagraphs::PeekHead>(10),
        procedure<&::_CRtfParagraphs::PeekTail>(11),
        procedure<&::_CRtfParagraphs::removeTail>(12),
    };
    return all;
}

::_CRtfParagraphs* wrap(Ref<CRtfParagraphs> object) {
    return WrapperRegistry<CRtfParagraphsObject>::wrapperOf(std::move(object)).detach();
}

}  // namespace quorvane::com
