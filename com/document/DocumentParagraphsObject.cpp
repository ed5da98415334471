#include "com/document/DocumentParagraphsObject.h"

#include <utility>

#include "com/document/scriptValues.h"

namespace quorvane::com {

std::span<const Member> DocumentParagraphsObject::members() {
    static constexpr Member all[] = {
        getter<&::_DocumentParagraphs::get_Item>(DISPID_VALUE),
        getter<&::_DocumentParagraphs::get_Count>(2),
        getter<&::_DocumentParagraphs::get_NewEnum>(DISPID_NEWENUM),
        procedure<&::_DocumentParagraphs::Insert>(4),
    };
    return all;
}

STDMETHODIMP DocumentParagraphsObject::Insert(LONG index, VARIANT* text, VARIANT* style,
                                              ::_DocumentParagraph** result) {
    return fetch(result, [&] {
        return cell_.insertParagraph(indexOf(index, cell_.size() + 1, elementName), textOf(text),
                                     textOf(style));
    });
}

void give(::_DocumentParagraphs** result, const ParagraphsOf& paragraphs) {
    *result = WrapperRegistry<DocumentParagraphsObject>::wrapperOf(paragraphs.cell.native(),
                                                                   paragraphs.cell)
                  .detach();
}

}  // namespace quorvane::com
