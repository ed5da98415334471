#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <string>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/Outcome.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

/// A document and a driver, early and late bound.
class Errors : public testing::Test {
protected:
    ComPtr<_CRtfTableRows> rows() const {
        ComPtr<_CRtfTableRows> rows;
        document_->get_TableRows(rows.out());
        return rows;
    }
    static LateBound late(IDispatch* object) { return LateBound(ComPtr<IDispatch>(object)); }

    Component component_;
    ComPtr<_CRtfDoc> document_ = component_.create<_CRtfDoc>(__uuidof(::CRtfDoc));
    ComPtr<_CRtfDriver> driver_ = component_.create<_CRtfDriver>(__uuidof(::CRtfDriver));
};

HostError error(HRESULT number, const std::string& description,
                const std::string& source = "Quorvane") {
    return {number, source, description, 0};
}

constexpr HRESULT driverError(unsigned long level) {
    return static_cast<HRESULT>(0x80040000UL + level);
}

TEST_F(Errors, OfAPositionThatIsNotThere) {
    const HostError expected = error(runTimeError(5), "Invalid procedure call or argument");
    const Variant position(1);
    ComPtr<_CRtfTableRow> row;

    EXPECT_EQ(outcomeOf(rows()->get_Item(position.get(), row.out())).error, expected);
    EXPECT_EQ(late(rows().get()).get("Item", {1}).error, expected);
    EXPECT_FALSE(row);
}

TEST_F(Errors, OfAKeyOfTheWrongType) {
    const HostError expected = error(runTimeError(13), "Type mismatch");
    Variant key(7);
    Variant none = Variant::missing();

    EXPECT_EQ(outcomeOf(rows()->add(key.reference(), none.reference(), none.reference())).error,
              expected);
    EXPECT_EQ(late(rows().get()).call("add", {7}).error, expected);
}

TEST_F(Errors, OfAKeyThatIsThereAlready) {
    const HostError expected = error(
        runTimeError(457), "This key is already associated with an element of this collection");
    Variant key("caf\xC3\xA9");
    EXPECT_EQ(rows()->AddTail(key.reference()), S_OK);

    EXPECT_EQ(outcomeOf(rows()->AddTail(key.reference())).error, expected);
    EXPECT_EQ(late(rows().get()).call("AddTail", {"CAF\xC3\x89"}).error, expected);
}

TEST_F(Errors, OfWidthsThatNobodyCanCompute) {
    ComPtr<_CRtfTableRow> row;
    ComPtr<_CRtfTableCells> cells;
    ComPtr<_CRtfTableCell> cell;
    rows()->AddTail(nullptr);
    rows()->PeekTail(row.out());
    row->get_TableCells(cells.out());
    EXPECT_EQ(outcomeOf(cells->SetUniformWidths()).error,
              error(runTimeError(11), "Division by zero"));
    cells->AddTail(nullptr);
    cells->PeekTail(cell.out());

    EXPECT_EQ(outcomeOf(cell->put_Width(ePercent, 300000)).error,
              error(runTimeError(6), "Overflow"));
    EXPECT_EQ(late(cell.get()).set("Width", {0, 300000}).error, error(runTimeError(6), "Overflow"));
}

TEST_F(Errors, OfARowWhoseDocumentIsGone) {
    const HostError expected =
        error(runTimeError(91), "Object variable or With block variable not set");
    const auto orphans = rows();
    document_.reset();

    EXPECT_EQ(outcomeOf(orphans->AddTail(nullptr)).error, expected);
    EXPECT_EQ(late(orphans.get()).call("AddTail").error, expected);
}

TEST_F(Errors, OfABadStylesheet) {
    const Bstr keyword(L"{name: x; nosuch: 1}");
    const Outcome early = outcomeOf(document_->LoadStyleSheetFromMemmory(keyword.get()));
    const Outcome lateBound =
        late(document_.get()).call("LoadStyleSheetFromMemmory", {"{name: x; nosuch: 1}"});

    EXPECT_EQ(early.error,
              error(runTimeError(445),
                    "Error while processing stylesheet.\r\nnosuch is not a valid keyword."));
    EXPECT_EQ(lateBound.error, early.error);
}

TEST_F(Errors, OfUnbalancedBraces) {
    const Outcome outcome = late(driver_.get()).call("LoadStyleSheetFromMemmory", {"{name: x"});

    EXPECT_EQ(outcome.error,
              error(runTimeError(31037),
                    "Error in stylesheet\r\nBraces stack overflow: there are more { than }"));
}

TEST_F(Errors, OfADescriptionFileThatIsNotNamed) {
    const HostError expected = error(driverError(eWrongPath), "Path is empty!",
                                     "Error: eWrongPath\r\nCRtfDriver.ParseFile");

    EXPECT_EQ(outcomeOf(driver_->ParseFile(Bstr(L"").get())).error, expected);
    EXPECT_EQ(outcomeOf(driver_->ParseFile(nullptr)).error, expected);
    EXPECT_EQ(late(driver_.get()).call("ParseFile", {""}).error, expected);
}

TEST_F(Errors, OfADescriptionFileThatIsNotThere) {
    const HostError expected =
        error(driverError(eWrongPath), "Z:\\nosuch doesn't exist or is unreacheable",
              "Error: eWrongPath\r\nCRtfDriver.ParseFile");

    EXPECT_EQ(outcomeOf(driver_->ParseFile(Bstr(L"Z:\\nosuch").get())).error, expected);
    EXPECT_EQ(late(driver_.get()).call("ParseFile", {"Z:\\nosuch"}).error, expected);
}

TEST_F(Errors, AreReportedForTheirInterface) {
    const auto support = document_.as<ISupportErrorInfo>();

    EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(_CRtfDoc)), S_OK);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(_CRtfDriver)), S_FALSE);

    driver_->ParseFile(nullptr);
    ComPtr<IErrorInfo> info;
    GUID interfaceId{};
    ASSERT_EQ(GetErrorInfo(0, info.out()), S_OK);
    EXPECT_EQ(info->GetGUID(&interfaceId), S_OK);
    EXPECT_TRUE(IsEqualGUID(interfaceId, __uuidof(_CRtfDriver)));
}

TEST_F(Errors, AreReportedByEveryClassOfObjects) {
    rows()->AddTail(nullptr);
    ComPtr<_CRtfTableRow> row;
    ComPtr<_CRtfTableCells> cells;
    ComPtr<_CRtfTableCell> cell;
    ComPtr<_CRtfParagraphs> paragraphs;
    ComPtr<_CRtfParagraph> paragraph;
    rows()->PeekTail(row.out());
    row->get_TableCells(cells.out());
    cells->AddTail(nullptr);
    cells->PeekTail(cell.out());
    cell->get_Paragraphs(paragraphs.out());
    paragraphs->AddTail(nullptr);
    paragraphs->PeekTail(paragraph.out());
    const auto supports = [](IUnknown* object, REFIID interfaceId) {
        const auto support = ComPtr<IUnknown>(object).as<ISupportErrorInfo>();
        return support && support->InterfaceSupportsErrorInfo(interfaceId) == S_OK;
    };

    EXPECT_TRUE(supports(rows().get(), __uuidof(_CRtfTableRows)));
    EXPECT_TRUE(supports(row.get(), __uuidof(_CRtfTableRow)));
    EXPECT_TRUE(supports(cells.get(), __uuidof(_CRtfTableCells)));
    EXPECT_TRUE(supports(cell.get(), __uuidof(_CRtfTableCell)));
    EXPECT_TRUE(supports(paragraphs.get(), __uuidof(_CRtfParagraphs)));
    EXPECT_TRUE(supports(paragraph.get(), __uuidof(_CRtfParagraph)));
    EXPECT_TRUE(supports(driver_.get(), __uuidof(_CRtfDriver)));
}

TEST_F(Errors, LeaveTheObjectsUsable) {
    late(rows().get()).call("add", {7});

    EXPECT_TRUE(late(rows().get()).call("AddTail").succeeded());
    EXPECT_EQ(late(rows().get()).get("Count").value.number(), 1);
}

}  // namespace
}  // namespace quorvane::host
