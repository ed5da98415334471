#pragma once

#include <span>

#include "com/document/DocumentCollection.h"
#include "quorvane/docmodel/CRtfTableCell.h"

namespace quorvane::com {

/// The paragraphs of a cell for a host.
class DocumentParagraphsObject final
    : public DocumentCollection<DocumentParagraphsObject, ::_DocumentParagraphs, CRtfTableCell,
                                ::_DocumentParagraph> {
public:
    static constexpr const GUID& classId = CLSID_DocumentParagraphs;
    static constexpr const char* elementName = "paragraph";
    static std::span<const Member> members();

    DocumentParagraphsObject(Ref<CRtfTableCell> native, Cell cell)
        : DocumentCollection(std::move(native)), cell_(std::move(cell)) {}

    Paragraphs elements() const { return cell_.paragraphs(); }

    STDMETHODIMP Insert(LONG index, VARIANT* text, VARIANT* style,
                        ::_DocumentParagraph** result) override;

private:
    Cell cell_;
};

}  // namespace quorvane::com
