#include <gmock/gmock.h>
#include <windows.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"
#include "tests/com/host/typeLibraryText.h"

namespace quorvane::host {
namespace {

/// Calls members that return something without a place for it.
class OutPointers : public testing::Test {
protected:
    /// The early-bound object of a late-bound one.
    template <class Interface>
    static ComPtr<Interface> as(const LateBound& object) {
        return ComPtr<IDispatch>(object.get()).as<Interface>();
    }

    /// Calls a member with null for its result; other arguments do not matter.
    template <class Interface, class... Parameters>
    void expectRefused(const ComPtr<Interface>& object, const std::string& name,
                       HRESULT (STDMETHODCALLTYPE Interface::*member)(Parameters...)) {
        EXPECT_EQ((object.get()->*member)(std::remove_cvref_t<Parameters>{}...), E_POINTER) << name;
        ComPtr<IErrorInfo> info;
        EXPECT_EQ(GetErrorInfo(0, info.out()), S_FALSE) << name;
        refused_.push_back(name);
    }

    template <class Interface>
    void expectCollectionRefused(const ComPtr<Interface>& object, const std::string& name) {
        expectRefused(object, name + ".get Count", &Interface::get_Count);
        expectRefused(object, name + ".get Parent", &Interface::get_Parent);
        expectRefused(object, name + ".get NewEnum", &Interface::get_NewEnum);
        expectRefused(object, name + ".get Item", &Interface::get_Item);
        expectRefused(object, name + ".call PeekHead", &Interface::PeekHead);
        expectRefused(object, name + ".call PeekTail", &Interface::PeekTail);
    }

    template <class Interface>
    void expectBordersRefused(const ComPtr<Interface>& object, const std::string& name) {
        expectRefused(object, name + ".get BackColor", &Interface::get_BackColor);
        expectRefused(object, name + ".get BottomBorder", &Interface::get_BottomBorder);
        expectRefused(object, name + ".get TopBorder", &Interface::get_TopBorder);
        expectRefused(object, name + ".get LeftBorder", &Interface::get_LeftBorder);
        expectRefused(object, name + ".get RightBorder", &Interface::get_RightBorder);
    }

    /// The published members that return something.
    static std::vector<std::string> answeringMembers(bool areForScripts) {
        ComPtr<ITypeLib> library;
        if (FAILED(LoadTypeLibEx(componentFile().c_str(), REGKIND_NONE, library.out()))) {
            throw std::runtime_error("the component has no type library");
        }
        std::vector<std::string> members = publishedMembers(*library.get());
        std::erase_if(members, [=](const std::string& member) {
            return member.starts_with("_Document") != areForScripts ||
                   (member.find(".get ") == std::string::npos &&
                    member.find(" Peek") == std::string::npos &&
                    member.find(" getCellStyleBackColor") == std::string::npos);
        });
        return members;
    }

    Component component_;
    std::vector<std::string> refused_;
};

TEST_F(OutPointers, MayNotBeNull) {
    const LateBound driver(component_.create<IDispatch>(__uuidof(::CRtfDriver)));
    const LateBound document = driver.object("RtfObject");
    const LateBound rows = document.object("TableRows");
    rows.call("AddTail");
    const LateBound row = rows.object("Item", {1});
    const LateBound cells = row.object("TableCells");
    cells.call("AddTail");
    const LateBound cell = cells.object("Item", {1});
    const LateBound paragraphs = cell.object("Paragraphs");
    paragraphs.call("AddTail");
    const LateBound paragraph = paragraphs.object("Item", {1});

    {
        using Interface = _CRtfDoc;
        const auto object = as<Interface>(document);
        expectRefused(object, "_CRtfDoc.get Contents", &Interface::get_Contents);
        expectRefused(object, "_CRtfDoc.get Changed", &Interface::get_Changed);
        expectRefused(object, "_CRtfDoc.get StyleSheetFile", &Interface::get_StyleSheetFile);
        expectRefused(object, "_CRtfDoc.get StyleSheetOk", &Interface::get_StyleSheetOk);
        expectRefused(object, "_CRtfDoc.get BottomMargin", &Interface::get_BottomMargin);
        expectRefused(object, "_CRtfDoc.get TopMargin", &Interface::get_TopMargin);
        expectRefused(object, "_CRtfDoc.get LeftMargin", &Interface::get_LeftMargin);
        expectRefused(object, "_CRtfDoc.get RightMargin", &Interface::get_RightMargin);
        expectRefused(object, "_CRtfDoc.get PageNumberStart", &Interface::get_PageNumberStart);
        expectRefused(object, "_CRtfDoc.get PageHeight", &Interface::get_PageHeight);
        expectRefused(object, "_CRtfDoc.get PageWidth", &Interface::get_PageWidth);
        expectRefused(object, "_CRtfDoc.get TableRows", &Interface::get_TableRows);
        expectRefused(object, "_CRtfDoc.call getCellStyleBackColor",
                      &Interface::getCellStyleBackColor);
    }
    expectCollectionRefused(as<_CRtfTableRows>(rows), "_CRtfTableRows");
    {
        const auto object = as<_CRtfTableRow>(row);
        expectRefused(object, "_CRtfTableRow.get Parent", &_CRtfTableRow::get_Parent);
        expectRefused(object, "_CRtfTableRow.get TableCells", &_CRtfTableRow::get_TableCells);
        expectBordersRefused(object, "_CRtfTableRow");
    }
    expectCollectionRefused(as<_CRtfTableCells>(cells), "_CRtfTableCells");
    {
        const auto object = as<_CRtfTableCell>(cell);
        expectRefused(object, "_CRtfTableCell.get Parent", &_CRtfTableCell::get_Parent);
        expectBordersRefused(object, "_CRtfTableCell");
        expectRefused(object, "_CRtfTableCell.get Width", &_CRtfTableCell::get_Width);
        expectRefused(object, "_CRtfTableCell.get Paragraphs", &_CRtfTableCell::get_Paragraphs);
        expectRefused(object, "_CRtfTableCell.get Align", &_CRtfTableCell::get_Align);
        expectRefused(object, "_CRtfTableCell.get Style", &_CRtfTableCell::get_Style);
    }
    expectCollectionRefused(as<_CRtfParagraphs>(paragraphs), "_CRtfParagraphs");
    {
        const auto object = as<_CRtfParagraph>(paragraph);
        expectRefused(object, "_CRtfParagraph.get Parent", &_CRtfParagraph::get_Parent);
        expectRefused(object, "_CRtfParagraph.get Text", &_CRtfParagraph::get_Text);
        expectRefused(object, "_CRtfParagraph.get Style", &_CRtfParagraph::get_Style);
        expectRefused(object, "_CRtfParagraph.get ForeColor", &_CRtfParagraph::get_ForeColor);
        expectRefused(object, "_CRtfParagraph.get Align", &_CRtfParagraph::get_Align);
    }
    {
        using Interface = _CRtfDriver;
        const auto object = as<Interface>(driver);
        expectRefused(object, "_CRtfDriver.get ErroneousInput", &Interface::get_ErroneousInput);
        expectRefused(object, "_CRtfDriver.get notifyError", &Interface::get_notifyError);
        expectRefused(object, "_CRtfDriver.get Contents", &Interface::get_Contents);
        expectRefused(object, "_CRtfDriver.get RtfObject", &Interface::get_RtfObject);
        expectRefused(object, "_CRtfDriver.get StyleSheetFile", &Interface::get_StyleSheetFile);
    }

    EXPECT_THAT(refused_, testing::UnorderedElementsAreArray(answeringMembers(false)));
}

TEST_F(OutPointers, MayNotBeNullInPartsOfADocumentForScripts) {
    const LateBound document(component_.create<IDispatch>(__uuidof(::Document)));
    document.call("AddRow", {"x"});
    document.call("Render", {"; quorvane 2"});
    document.call("AddRow", {"x"});
    const LateBound rows = document.object("Rows");
    const LateBound row = rows.object("Item", {1});
    const LateBound cells = row.object("Cells");
    const LateBound cell = cells.object("Item", {1});
    const LateBound paragraphs = cell.object("Paragraphs");
    const LateBound paragraph = paragraphs.object("Item", {1});
    const LateBound diagnostics = document.object("Diagnostics");
    const LateBound diagnostic = diagnostics.object("Item", {1});

    {
        using Interface = _Document;
        const auto object = as<Interface>(document);
        expectRefused(object, "_Document.get Rows", &Interface::get_Rows);
        EXPECT_EQ(object->AddRow(nullptr, nullptr, nullptr), E_POINTER);
        EXPECT_EQ(object->AddHeading(nullptr, nullptr, nullptr), E_POINTER);
        expectRefused(object, "_Document.get PictureFolder", &Interface::get_PictureFolder);
        expectRefused(object, "_Document.get Locale", &Interface::get_Locale);
        EXPECT_EQ(object->Check(nullptr, nullptr, nullptr), E_POINTER);
        EXPECT_EQ(object->CheckStyleSheet(nullptr, nullptr), E_POINTER);
        expectRefused(object, "_Document.get Diagnostics", &Interface::get_Diagnostics);
        expectRefused(object, "_Document.get Rtf", &Interface::get_Rtf);
    }
    {
        using Interface = _DocumentRows;
        const auto object = as<Interface>(rows);
        EXPECT_EQ(object->get_Item(1, nullptr), E_POINTER);
        refused_.push_back("_DocumentRows.get Item");
        expectRefused(object, "_DocumentRows.get Count", &Interface::get_Count);
        expectRefused(object, "_DocumentRows.get NewEnum", &Interface::get_NewEnum);
        EXPECT_EQ(object->Insert(1, nullptr), E_POINTER);
    }
    {
        using Interface = _DocumentRow;
        const auto object = as<Interface>(row);
        expectRefused(object, "_DocumentRow.get Cells", &Interface::get_Cells);
        EXPECT_EQ(object->AddCell(nullptr, nullptr, nullptr), E_POINTER);
        expectRefused(object, "_DocumentRow.get TopBorder", &Interface::get_TopBorder);
        expectRefused(object, "_DocumentRow.get BottomBorder", &Interface::get_BottomBorder);
        expectRefused(object, "_DocumentRow.get LeftBorder", &Interface::get_LeftBorder);
        expectRefused(object, "_DocumentRow.get RightBorder", &Interface::get_RightBorder);
        expectRefused(object, "_DocumentRow.get Heading", &Interface::get_Heading);
        expectRefused(object, "_DocumentRow.get Keep", &Interface::get_Keep);
        expectRefused(object, "_DocumentRow.get KeepWithNext", &Interface::get_KeepWithNext);
        expectRefused(object, "_DocumentRow.get PageBreak", &Interface::get_PageBreak);
        expectRefused(object, "_DocumentRow.get Index", &Interface::get_Index);
    }
    {
        using Interface = _DocumentCells;
        const auto object = as<Interface>(cells);
        EXPECT_EQ(object->get_Item(1, nullptr), E_POINTER);
        refused_.push_back("_DocumentCells.get Item");
        expectRefused(object, "_DocumentCells.get Count", &Interface::get_Count);
        expectRefused(object, "_DocumentCells.get NewEnum", &Interface::get_NewEnum);
        EXPECT_EQ(object->Insert(1, nullptr, nullptr, nullptr), E_POINTER);
    }
    {
        using Interface = _DocumentCell;
        const auto object = as<Interface>(cell);
        expectRefused(object, "_DocumentCell.get Row", &Interface::get_Row);
        expectRefused(object, "_DocumentCell.get Paragraphs", &Interface::get_Paragraphs);
        EXPECT_EQ(object->AddParagraph(nullptr, nullptr, nullptr), E_POINTER);
        EXPECT_EQ(object->AddPicture(nullptr, nullptr, nullptr, nullptr), E_POINTER);
        expectRefused(object, "_DocumentCell.get Style", &Interface::get_Style);
        expectRefused(object, "_DocumentCell.get Align", &Interface::get_Align);
        expectRefused(object, "_DocumentCell.get TopBorder", &Interface::get_TopBorder);
        expectRefused(object, "_DocumentCell.get BottomBorder", &Interface::get_BottomBorder);
        expectRefused(object, "_DocumentCell.get LeftBorder", &Interface::get_LeftBorder);
        expectRefused(object, "_DocumentCell.get RightBorder", &Interface::get_RightBorder);
        expectRefused(object, "_DocumentCell.get Span", &Interface::get_Span);
        expectRefused(object, "_DocumentCell.get Vspan", &Interface::get_Vspan);
        expectRefused(object, "_DocumentCell.get Index", &Interface::get_Index);
    }
    {
        using Interface = _DocumentParagraphs;
        const auto object = as<Interface>(paragraphs);
        EXPECT_EQ(object->get_Item(1, nullptr), E_POINTER);
        refused_.push_back("_DocumentParagraphs.get Item");
        expectRefused(object, "_DocumentParagraphs.get Count", &Interface::get_Count);
        expectRefused(object, "_DocumentParagraphs.get NewEnum", &Interface::get_NewEnum);
        EXPECT_EQ(object->Insert(1, nullptr, nullptr, nullptr), E_POINTER);
    }
    {
        using Interface = _DocumentParagraph;
        const auto object = as<Interface>(paragraph);
        expectRefused(object, "_DocumentParagraph.get Cell", &Interface::get_Cell);
        expectRefused(object, "_DocumentParagraph.get Rtf", &Interface::get_Rtf);
        expectRefused(object, "_DocumentParagraph.get Style", &Interface::get_Style);
        expectRefused(object, "_DocumentParagraph.get Align", &Interface::get_Align);
        expectRefused(object, "_DocumentParagraph.get HasPicture", &Interface::get_HasPicture);
        expectRefused(object, "_DocumentParagraph.get Index", &Interface::get_Index);
    }
    {
        using Interface = _DocumentDiagnostics;
        const auto object = as<Interface>(diagnostics);
        EXPECT_EQ(object->get_Item(1, nullptr), E_POINTER);
        refused_.push_back("_DocumentDiagnostics.get Item");
        expectRefused(object, "_DocumentDiagnostics.get Count", &Interface::get_Count);
        expectRefused(object, "_DocumentDiagnostics.get NewEnum", &Interface::get_NewEnum);
    }
    {
        using Interface = _DocumentDiagnostic;
        const auto object = as<Interface>(diagnostic);
        expectRefused(object, "_DocumentDiagnostic.get File", &Interface::get_File);
        expectRefused(object, "_DocumentDiagnostic.get Line", &Interface::get_Line);
        expectRefused(object, "_DocumentDiagnostic.get Column", &Interface::get_Column);
        expectRefused(object, "_DocumentDiagnostic.get Severity", &Interface::get_Severity);
        expectRefused(object, "_DocumentDiagnostic.get Identifier", &Interface::get_Identifier);
        expectRefused(object, "_DocumentDiagnostic.get Message", &Interface::get_Message);
        expectRefused(object, "_DocumentDiagnostic.get Hint", &Interface::get_Hint);
    }

    EXPECT_THAT(refused_, testing::UnorderedElementsAreArray(answeringMembers(true)));
}

TEST_F(OutPointers, OfOptionalArgumentsStandForOmittedOnes) {
    const LateBound document(component_.create<IDispatch>(__uuidof(::CRtfDoc)));
    const auto rows = as<_CRtfTableRows>(document.object("TableRows"));
    LONG count = 0;

    EXPECT_EQ(rows->add(nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(rows->AddHead(nullptr), S_OK);
    EXPECT_EQ(rows->AddTail(nullptr), S_OK);

    EXPECT_EQ(rows->get_Count(&count), S_OK);
    EXPECT_EQ(count, 3);
}

}  // namespace
}  // namespace quorvane::host
