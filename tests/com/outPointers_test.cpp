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
    /// The early-bound object behind a late-bound one.
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
    static std::vector<std::string> answeringMembers() {
        ComPtr<ITypeLib> library;
        if (FAILED(LoadTypeLibEx(componentFile().c_str(), REGKIND_NONE, library.out()))) {
            throw std::runtime_error("the component has no type library");
        }
        std::vector<std::string> members = publishedMembers(*library.get());
        std::erase_if(members, [](const std::string& member) {
            return member.find(".get ") == std::string::npos &&
                   member.find(" Peek") == std::string::npos &&
                   member.find(" getCellStyleBackColor") == std::string::npos;
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

    EXPECT_THAT(refused_, testing::UnorderedElementsAreArray(answeringMembers()));
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
