#include "quorvane/docmodel/CRtfTableCell.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <vector>

#include "quorvane/support/currentError.h"
#include "tests/docmodel/documentParts.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

tColorIndex color(int number) {
    return static_cast<tColorIndex>(number);
}

// A row of cells whose usable width is 9000 twips.
class TableCell : public testing::Test, protected RowDocument {
protected:
    TableCell() {
        document->setPageWidth(12402);
        addCells(1);
    }

    void addCells(int count) {
        for (int i = 0; i < count; ++i) {
            cells->AddTail();
        }
    }

    std::string definition() const {
        const std::string text = cellsText();
        return text.substr(1, text.find(" \r\n") - 1);
    }

    Ref<CRtfTableCell> first() const { return cell(1); }
};

TEST_F(TableCell, HasItsDefaults) {
    EXPECT_EQ(first()->BottomBorder(), eNone);
    EXPECT_EQ(first()->TopBorder(), eNone);
    EXPECT_EQ(first()->LeftBorder(), eNone);
    EXPECT_EQ(first()->RightBorder(), eNone);
    EXPECT_EQ(first()->BackColor(), eNoColor);
    EXPECT_EQ(first()->Style(), "");
    EXPECT_EQ(first()->Align(), eNoDefault);
    EXPECT_EQ(first()->Paragraphs()->Count(), 0);
}

TEST_F(TableCell, ReturnsTheSameParagraphsEveryTime) {
    EXPECT_EQ(first()->Paragraphs(), first()->Paragraphs());
    EXPECT_EQ(first()->Paragraphs()->Parent(), first());
}

TEST_F(TableCell, WritesOnlyItsEdgeByDefault) {
    EXPECT_EQ(definition(), "\\cellx9000");
    EXPECT_EQ(cellsText(), " \\cellx9000 \r\n\\cell");
}

TEST_F(TableCell, WritesItsBordersInTheirOrder) {
    first()->setTopBorder(eHair);
    first()->setBottomBorder(eThin);
    first()->setRightBorder(eNormal);
    first()->setLeftBorder(eThick);

    EXPECT_EQ(definition(),
              "\\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw30\\clbrdrr\\brdrs\\brdrw20"
              "\\clbrdrt\\brdrs\\brdrw5\\cellx9000");
}

TEST_F(TableCell, WritesNormalBordersOnAllSides) {
    first()->setTopBorder(eNormal);
    first()->setBottomBorder(eNormal);
    first()->setRightBorder(eNormal);
    first()->setLeftBorder(eNormal);

    EXPECT_EQ(definition(),
              "\\clbrdrb\\brdrs\\brdrw20\\clbrdrl\\brdrs\\brdrw20\\clbrdrr\\brdrs\\brdrw20"
              "\\clbrdrt\\brdrs\\brdrw20\\cellx9000");
}

TEST_F(TableCell, WritesEachBorderOfItsOwn) {
    first()->setTopBorder(eThin);
    EXPECT_EQ(definition(), "\\clbrdrt\\brdrs\\brdrw10\\cellx9000");
    first()->setTopBorder(eNone);
    first()->setBottomBorder(eThin);
    EXPECT_EQ(definition(), "\\clbrdrb\\brdrs\\brdrw10\\cellx9000");
    first()->setBottomBorder(eNone);
    first()->setLeftBorder(eThin);
    EXPECT_EQ(definition(), "\\clbrdrl\\brdrs\\brdrw10\\cellx9000");
    first()->setLeftBorder(eNone);
    first()->setRightBorder(eThin);
    EXPECT_EQ(definition(), "\\clbrdrr\\brdrs\\brdrw10\\cellx9000");
    first()->setRightBorder(eNone);
    EXPECT_EQ(definition(), "\\cellx9000");
}

TEST_F(TableCell, WritesEveryOtherBorderWidthAsItsNumber) {
    for (const std::int32_t width : {0, 1, -2, 77, INT32_MAX, INT32_MIN}) {
        first()->setTopBorder(static_cast<tBorderWidth>(width));
        EXPECT_EQ(definition(), "\\clbrdrt\\brdrs\\brdrw" + std::to_string(width) + "\\cellx9000");
    }
}

TEST_F(TableCell, IsChangedByAnotherBorderOnly) {
    EXPECT_TRUE(marksChanged(*document, [&] { first()->setTopBorder(eThin); }));
    EXPECT_FALSE(marksChanged(*document, [&] { first()->setTopBorder(eThin); }));
    EXPECT_TRUE(marksChanged(*document, [&] { first()->setBottomBorder(eThin); }));
    EXPECT_FALSE(marksChanged(*document, [&] { first()->setBottomBorder(eThin); }));
    EXPECT_TRUE(marksChanged(*document, [&] { first()->setLeftBorder(eThin); }));
    EXPECT_FALSE(marksChanged(*document, [&] { first()->setLeftBorder(eThin); }));
    EXPECT_TRUE(marksChanged(*document, [&] { first()->setRightBorder(eThin); }));
    EXPECT_FALSE(marksChanged(*document, [&] { first()->setRightBorder(eThin); }));
}

TEST_F(TableCell, WritesItsColorBetweenBordersAndEdge) {
    addCells(1);
    cell(1)->setBackColor(eSilver);
    cell(1)->setTopBorder(eThin);
    cell(1)->setBottomBorder(eThin);
    cell(1)->setLeftBorder(eThin);
    cell(1)->setRightBorder(eThin);

    EXPECT_EQ(definition(),
              "\\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10"
              "\\clbrdrt\\brdrs\\brdrw10\\clcbpat32\\cellx4500 \\cellx9000");
}

TEST_F(TableCell, WritesAnyColorAsItsNumber) {
    for (const std::int32_t number : {1, 57, 58, 1000, -1, INT32_MAX, INT32_MIN}) {
        first()->setBackColor(color(number));
        EXPECT_EQ(definition(), "\\clcbpat" + std::to_string(number) + "\\cellx9000");
    }
}

TEST_F(TableCell, KeepsAnyColorAndAlignment) {
    for (const std::int32_t number : {127, 128, -127, -128, -129, INT32_MAX, INT32_MIN, 0}) {
        first()->setBackColor(color(number));
        first()->setAlign(static_cast<tCellAlign>(~number));
        EXPECT_EQ(first()->BackColor(), number);
        EXPECT_EQ(first()->Align(), ~number);
    }
}

TEST_F(TableCell, LeavesTheCurrentErrorWhenItsAlignmentIsSet) {
    const Ref<CRtfTableCell> cell(first());
    setCurrentError(RtfError(RunTimeError::Overflow));
    cell->setAlign(eRight);
    cell->setAlign(static_cast<tCellAlign>(1000));
    ASSERT_NE(currentError(), nullptr);
    EXPECT_TRUE(currentError()->is(RunTimeError::Overflow));
    clearCurrentError();
}

TEST_F(TableCell, KeepsItsMarkedFieldAndUnusualValuesApart) {
    first()->asMarkedField("A");
    const std::string marked = cellsText();
    first()->setBackColor(color(1000));
    first()->setBackColor(eNoColor);
    EXPECT_EQ(cellsText(), marked);
}

TEST_F(TableCell, IsChangedByAnotherColorOnly) {
    EXPECT_TRUE(marksChanged(*document, [&] { first()->setBackColor(eRed); }));
    EXPECT_FALSE(marksChanged(*document, [&] { first()->setBackColor(eRed); }));
    EXPECT_TRUE(marksChanged(*document, [&] { first()->setBackColor(eNavyBlue); }));
    EXPECT_TRUE(marksChanged(*document, [&] { first()->setBackColor(eNoColor); }));
}

TEST(DarkColors, AreTheseAndNoOthers) {
    const std::set<int> dark{3,  4,  5,  8,  9,  10, 11, 12, 13, 14, 15, 17, 24, 25, 29,
                             31, 38, 39, 41, 43, 44, 46, 48, 49, 51, 52, 53, 55, 57};
    for (int number = 0; number <= 57; ++number) {
        EXPECT_EQ(isDarkColor(color(number)), dark.contains(number)) << number;
    }
}

TEST(DarkColors, DoNotExistOutsideTheTable) {
    for (const int number : {-1, -64, -61, 58, 63, 64, 67, 68, INT32_MAX, INT32_MIN}) {
        EXPECT_FALSE(isDarkColor(color(number))) << number;
    }
}

TEST_F(TableCell, MakesTheTextOfItsParagraphsWhiteOnEveryDarkColor) {
    const Ref<CRtfParagraphs> paragraphs = first()->Paragraphs();
    paragraphs->AddTail();
    paragraphs->AddTail();
    for (int number = 1; number <= 57; ++number) {
        first()->setBackColor(eNoColor);
        paragraphs->Item(1)->setForeColor(eRed);
        paragraphs->Item(2)->setForeColor(eNoColor);

        first()->setBackColor(color(number));

        const bool isDark = isDarkColor(color(number));
        EXPECT_EQ(paragraphs->Item(1)->ForeColor(), isDark ? eWhite : eRed) << number;
        EXPECT_EQ(paragraphs->Item(2)->ForeColor(), isDark ? eWhite : eNoColor) << number;
    }
}

TEST_F(TableCell, LeavesTheTextOfItsParagraphsWhiteOnALightColor) {
    first()->Paragraphs()->AddTail();
    first()->setBackColor(eBlack);

    first()->setBackColor(eYellow);

    EXPECT_EQ(first()->Paragraphs()->PeekTail()->ForeColor(), eWhite);
}

TEST_F(TableCell, LeavesTheTextAloneWhenItsDarkColorStaysTheSame) {
    first()->Paragraphs()->AddTail();
    first()->setBackColor(eBlack);
    first()->Paragraphs()->PeekTail()->setForeColor(eRed);

    first()->setBackColor(eBlack);

    EXPECT_EQ(first()->Paragraphs()->PeekTail()->ForeColor(), eRed);
}

TEST_F(TableCell, LeavesTheTextOfParagraphsThatAreAddedLater) {
    first()->setBackColor(eBlack);
    first()->Paragraphs()->AddTail();

    EXPECT_EQ(first()->Paragraphs()->PeekTail()->ForeColor(), eNoColor);
}

class StyledCell : public TableCell {
protected:
    StyledCell() {
        document->LoadStyleSheetFromMemmory(
            "{name: dark; style-def: cell; format: navy-blue}"
            "{name: light; style-def: cell; format: yellow}"
            "{name: plain; style-def: cell; format: none}");
        first()->Paragraphs()->AddTail();
        first()->Paragraphs()->PeekTail()->setText("x");
    }
};

TEST_F(StyledCell, WritesTheColorOfItsStyle) {
    first()->setStyle("light");

    EXPECT_EQ(cellsText(), " \\clcbpat37\\cellx9000 \r\n\r\n\r\n\\pard\\plain\\intbl x\\cell");
}

TEST_F(StyledCell, TakesTheColorOfItsStyleForGoodWhenItIsWritten) {
    first()->setStyle("dark");
    EXPECT_EQ(first()->BackColor(), eNoColor);

    EXPECT_EQ(cellsText(),
              " \\clcbpat24\\cellx9000 \r\n\r\n\r\n\\pard\\plain\\intbl \\cf36 x\\cell");

    EXPECT_EQ(first()->BackColor(), eNavyBlue);
    EXPECT_EQ(first()->Paragraphs()->PeekTail()->ForeColor(), eWhite);
    first()->setStyle("light");
    EXPECT_EQ(cellsText(),
              " \\clcbpat24\\cellx9000 \r\n\r\n\r\n\\pard\\plain\\intbl \\cf36 x\\cell");
}

TEST_F(StyledCell, LeavesTheDocumentUnchangedOnceItWasWritten) {
    first()->setStyle("dark");

    document->Contents();

    EXPECT_FALSE(document->Changed());
}

TEST_F(StyledCell, WritesColorZeroForAStyleWithoutColor) {
    for (const char* style : {"plain", "nosuch", "\xC3\xA9"}) {
        first()->setStyle(style);
        EXPECT_EQ(definition(), "\\clcbpat0\\cellx9000");
        EXPECT_EQ(first()->BackColor(), eNoColor);
    }
}

TEST_F(StyledCell, PrefersItsOwnColorToThatOfItsStyle) {
    first()->setStyle("dark");
    first()->setBackColor(eRed);

    EXPECT_EQ(definition(), "\\clcbpat30\\cellx9000");
    EXPECT_EQ(first()->Paragraphs()->PeekTail()->ForeColor(), eNoColor);
}

TEST_F(StyledCell, WritesNoColorWithoutOwnColorAndStyle) {
    first()->setStyle("dark");
    first()->setStyle("");

    EXPECT_EQ(definition(), "\\cellx9000");
}

TEST_F(StyledCell, KeepsItsStyleAsItIsNamed) {
    first()->setStyle("Dark");

    EXPECT_EQ(first()->Style(), "Dark");
    EXPECT_EQ(definition(), "\\clcbpat24\\cellx9000");
}

TEST_F(StyledCell, IsChangedByEveryStyle) {
    EXPECT_TRUE(marksChanged(*document, [&] { first()->setStyle("dark"); }));
    EXPECT_TRUE(marksChanged(*document, [&] { first()->setStyle("dark"); }));
    EXPECT_TRUE(marksChanged(*document, [&] { first()->setStyle(""); }));
}

TEST_F(StyledCell, WritesColorZeroForAStyleWhenNoStylesheetIsLoaded) {
    document->setStyleSheetFile("nosuch");
    first()->setStyle("dark");

    EXPECT_EQ(definition(), "\\clcbpat0\\cellx9000");
}

TEST_F(TableCell, GivesItsAlignmentToItsParagraphsForGoodWhenItIsWritten) {
    const Ref<CRtfParagraphs> paragraphs = first()->Paragraphs();
    paragraphs->AddTail();
    paragraphs->PeekTail()->setText("x");
    paragraphs->PeekTail()->setAlign(eRight);
    paragraphs->AddTail();
    paragraphs->PeekTail()->setText("y");

    first()->setAlign(eCentered);
    EXPECT_EQ(paragraphs->Item(1)->Align(), eRight);
    EXPECT_EQ(cellsText(),
              " \\cellx9000 \r\n\r\n\r\n\\pard\\plain\\intbl \\qc x"
              "\r\n\r\n\\par\\pard\\plain\\intbl \\qc y\\cell");

    EXPECT_EQ(paragraphs->Item(1)->Align(), eCentered);
    EXPECT_EQ(paragraphs->Item(2)->Align(), eCentered);
}

TEST_F(TableCell, LeavesItsParagraphsTheirAlignmentWithoutOneOfItsOwn) {
    first()->Paragraphs()->AddTail();
    first()->Paragraphs()->PeekTail()->setText("x");
    first()->Paragraphs()->PeekTail()->setAlign(eRight);
    first()->setAlign(eCentered);
    first()->setAlign(eNoDefault);

    EXPECT_EQ(cellsText(), " \\cellx9000 \r\n\r\n\r\n\\pard\\plain\\intbl \\qr x\\cell");
}

TEST_F(TableCell, GivesAnUnknownAlignmentToItsParagraphsToo) {
    first()->Paragraphs()->AddTail();
    first()->Paragraphs()->PeekTail()->setText("x");
    first()->Paragraphs()->PeekTail()->setAlign(eRight);
    first()->setAlign(static_cast<tCellAlign>(5));

    EXPECT_EQ(cellsText(), " \\cellx9000 \r\n\r\n\r\n\\pard\\plain\\intbl x\\cell");
    EXPECT_EQ(first()->Paragraphs()->PeekTail()->Align(), 5);
}

TEST_F(TableCell, IsNotChangedByAnAlignment) {
    EXPECT_FALSE(marksChanged(*document, [&] { first()->setAlign(eCentered); }));
    EXPECT_EQ(first()->Align(), eCentered);
}

TEST_F(TableCell, EnclosesItsContentInAMarkedField) {
    first()->Paragraphs()->AddTail();
    first()->Paragraphs()->PeekTail()->setText("Hi");
    first()->asMarkedField("AB");

    EXPECT_EQ(cellsText(),
              " \\cellx9000 "
              "{\\*\\txfieldstart\\txfieldtype0\\txfieldflags128\\txfieldbin\\txfielddata 4142}"
              "\r\n\r\n\r\n\\pard\\plain\\intbl Hi"
              "{\\*\\txfieldend}\\cell");
}

TEST_F(TableCell, EnclosesTheContentOfAnEmptyCellToo) {
    first()->asMarkedField("");

    EXPECT_EQ(cellsText(),
              " \\cellx9000 {\\*\\txfieldstart\\txfieldtype0\\txfieldflags128\\txfieldbin}\r\n"
              "{\\*\\txfieldend}\\cell");
}

TEST_F(TableCell, TakesTheLastDataOfAMarkedField) {
    first()->asMarkedField("AB");
    first()->asMarkedField(std::int16_t{-5});
    EXPECT_NE(cellsText().find("\\txfielddata 2D35}"), std::string::npos);

    first()->asMarkedField(70000);
    EXPECT_NE(cellsText().find("\\txfielddata 3730303030}"), std::string::npos);
}

class MarkedCell : public TableCell {
protected:
    MarkedCell() {
        document->setAbsorbedErrorObserver(
            [this](const AbsorbedError& error) { absorbed.push_back(error); });
    }

    const std::vector<Value> refused{
        Value(2.0),     Value(2.0F),   Value(Date{2}),   Value(true),
        Value(Empty{}), Value(Null{}), Value(Missing{}), Value(std::make_shared<Object>())};
    std::vector<AbsorbedError> absorbed;
};

TEST_F(MarkedCell, StaysUnmarkedWhenItsDataIsRefused) {
    for (const Value& data : refused) {
        first()->asMarkedField(data);
        EXPECT_EQ(cellsText(), " \\cellx9000 \r\n\\cell");
    }
}

TEST_F(MarkedCell, KeepsItsDataWhenOtherDataIsRefused) {
    first()->asMarkedField("AB");
    const std::string text = cellsText();

    for (const Value& data : refused) {
        first()->asMarkedField(data);
        EXPECT_EQ(cellsText(), text);
    }
}

TEST_F(MarkedCell, ReportsDataThatIsRefused) {
    for (const Value& data : refused) {
        absorbed.clear();
        first()->asMarkedField(data);

        ASSERT_EQ(absorbed.size(), 1U);
        EXPECT_EQ(absorbed[0].error.number, -2147219990);
        EXPECT_EQ(absorbed[0].error.description,
                  "A Marked Text Field Data can only be String or Long");
        EXPECT_EQ(absorbed[0].error.source, "GTextMarkedField.toStringRepr()");
        EXPECT_EQ(absorbed[0].moduleName, "CRtfTableCell.cls");
        EXPECT_EQ(absorbed[0].procedureName, "asMarkedField");
    }
}

TEST_F(MarkedCell, DoesNotChangeTheDocument) {
    EXPECT_FALSE(marksChanged(*document, [&] {
        first()->asMarkedField("AB");
        first()->asMarkedField(2.0);
    }));
}

TEST_F(TableCell, IsAsWideAsItsEdgesAreApart) {
    addCells(2);
    cell(1)->setWidth(eTwips, 1000);

    EXPECT_EQ(cell(1)->Width(eTwips), 1000);
    EXPECT_EQ(cell(2)->Width(eTwips), 5000);
    EXPECT_EQ(cell(3)->Width(eTwips), 3000);
}

TEST_F(TableCell, ReturnsItsWidthInPercentForEveryUnitButTwips) {
    addCells(2);

    EXPECT_EQ(cell(2)->Width(ePercent), 33);
    EXPECT_EQ(cell(2)->Width(static_cast<tWidthUnit>(9)), 33);
    EXPECT_EQ(cell(2)->Width(static_cast<tWidthUnit>(-1)), 33);
}

TEST_F(TableCell, TakesItsWidthInTwipsForEveryUnitButPercent) {
    addCells(1);

    first()->setWidth(static_cast<tWidthUnit>(9), 1000);
    EXPECT_EQ(first()->Width(eTwips), 1000);
    first()->setWidth(static_cast<tWidthUnit>(-1), 2000);
    EXPECT_EQ(first()->Width(eTwips), 2000);
}

TEST_F(TableCell, RoundsPercentHalvesToEven) {
    document->setPageWidth(3402 + 1000);
    addCells(1);
    cell(1)->setWidth(eTwips, 205);
    EXPECT_EQ(cell(1)->Width(ePercent), 20);
    cell(1)->setWidth(eTwips, 215);
    EXPECT_EQ(cell(1)->Width(ePercent), 22);

    document->setPageWidth(3402 + 1050);
    cell(1)->setWidth(ePercent, 21);
    EXPECT_EQ(cell(1)->Width(eTwips), 220);
    cell(1)->setWidth(ePercent, 23);
    EXPECT_EQ(cell(1)->Width(eTwips), 242);
}

TEST_F(TableCell, MovesItsRightEdgeWhenItIsNotTheLast) {
    addCells(2);

    cell(2)->setWidth(eTwips, 1000);

    EXPECT_EQ(definition(), "\\cellx3000 \\cellx4000 \\cellx9000");
}

TEST_F(TableCell, MovesItsLeftEdgeWhenItIsTheLastOfSeveral) {
    addCells(1);

    cell(2)->setWidth(eTwips, 3000);

    EXPECT_EQ(definition(), "\\cellx6000 \\cellx9000");
}

TEST_F(TableCell, LeavesItsRightNeighbor200Twips) {
    addCells(1);
    cell(1)->setWidth(eTwips, 8900);
    EXPECT_EQ(definition(), "\\cellx8800 \\cellx9000");
    cell(1)->setWidth(eTwips, 8801);
    EXPECT_EQ(definition(), "\\cellx8800 \\cellx9000");
    cell(1)->setWidth(eTwips, 8799);
    EXPECT_EQ(definition(), "\\cellx8799 \\cellx9000");
}

TEST_F(TableCell, KeepsAtLeast200TwipsItself) {
    addCells(2);
    for (const int twips : {199, 0, -5, INT32_MIN + 3000}) {
        cell(2)->setWidth(eTwips, twips);
        EXPECT_EQ(definition(), "\\cellx3000 \\cellx3200 \\cellx9000");
    }
}

TEST_F(TableCell, LeavesItsLeftNeighbor200TwipsWhenItIsTheLast) {
    addCells(2);
    cell(3)->setWidth(eTwips, 9000);
    EXPECT_EQ(definition(), "\\cellx3000 \\cellx3200 \\cellx9000");
    cell(3)->setWidth(eTwips, 5799);
    EXPECT_EQ(definition(), "\\cellx3000 \\cellx3201 \\cellx9000");
}

TEST_F(TableCell, KeepsAtLeast200TwipsItselfWhenItIsTheLast) {
    addCells(2);
    for (const int twips : {199, 0, -5}) {
        cell(3)->setWidth(eTwips, twips);
        EXPECT_EQ(definition(), "\\cellx3000 \\cellx8800 \\cellx9000");
    }
}

TEST_F(TableCell, IsAtMostAsWideAsTheUsableWidthWhenItIsTheOnlyOne) {
    first()->setWidth(eTwips, 9001);
    EXPECT_EQ(definition(), "\\cellx9000");
    first()->setWidth(eTwips, 8999);
    EXPECT_EQ(definition(), "\\cellx8999");
    first()->setWidth(ePercent, 50);
    EXPECT_EQ(definition(), "\\cellx4500");
    first()->setWidth(eTwips, 199);
    EXPECT_EQ(definition(), "\\cellx200");
}

TEST_F(TableCell, IsAsWideAsTheUsableWidthEvenWhenThatIsLessThan200Twips) {
    document->setPageWidth(3402 + 100);

    first()->setWidth(eTwips, 150);
    EXPECT_EQ(definition(), "\\cellx100");
    first()->setWidth(eTwips, 50);
    EXPECT_EQ(definition(), "\\cellx200");
}

TEST_F(TableCell, IsChangedByEveryWidth) {
    addCells(1);

    EXPECT_TRUE(marksChanged(*document, [&] { first()->setWidth(eTwips, 4500); }));
    EXPECT_TRUE(marksChanged(*document, [&] { first()->setWidth(ePercent, 50); }));
    EXPECT_FALSE(marksChanged(*document, [&] { (void)first()->Width(eTwips); }));
    EXPECT_FALSE(marksChanged(*document, [&] { (void)first()->Width(ePercent); }));
}

// Expects setting the width to raise the error, and nothing to be changed by it.
void expectWidthRefused(const RowDocument& parts, int position, tWidthUnit units,
                        std::int32_t width, std::int32_t error) {
    const std::string text = parts.cellsText();
    EXPECT_FALSE(marksChanged(*parts.document, [&] {
        EXPECT_EQ(errorNumberOf([&] { parts.cell(position)->setWidth(units, width); }), error);
    }));
    EXPECT_EQ(parts.cellsText(), text);
}

TEST_F(TableCell, OverflowsWhenAPercentageLeaves32Bits) {
    addCells(1);

    first()->setWidth(ePercent, 238609);
    EXPECT_EQ(definition(), "\\cellx8800 \\cellx9000");
    expectWidthRefused(*this, 1, ePercent, 238610, 6);
    expectWidthRefused(*this, 2, ePercent, 238610, 6);
    expectWidthRefused(*this, 1, ePercent, INT32_MIN, 6);
    expectWidthRefused(*this, 1, ePercent, INT32_MAX, 6);
}

TEST_F(TableCell, OverflowsWhenAnEdgeLeaves32Bits) {
    addCells(2);

    expectWidthRefused(*this, 2, eTwips, INT32_MAX, 6);
    expectWidthRefused(*this, 2, eTwips, INT32_MAX - 2999, 6);
    expectWidthRefused(*this, 3, eTwips, INT32_MAX, 6);
    expectWidthRefused(*this, 3, eTwips, INT32_MIN, 6);
    cell(2)->setWidth(eTwips, INT32_MAX - 3000);
    EXPECT_EQ(definition(), "\\cellx3000 \\cellx8800 \\cellx9000");
    cell(1)->setWidth(eTwips, INT32_MIN);
    EXPECT_EQ(definition(), "\\cellx200 \\cellx8800 \\cellx9000");
}

TEST_F(TableCell, OverflowsWhenItsWidthTimes100Leaves32Bits) {
    document->setPageWidth(21474836 + 3402);
    cells->SetUniformWidths();
    EXPECT_EQ(first()->Width(ePercent), 100);

    document->setPageWidth(21474837 + 3402);
    cells->SetUniformWidths();
    EXPECT_EQ(errorNumberOf([&] { (void)first()->Width(ePercent); }), 6);
    EXPECT_EQ(first()->Width(eTwips), 21474837);
}

TEST_F(TableCell, OverflowsWhenTheUsableWidthDoes) {
    document->setPageWidth(INT32_MIN);

    EXPECT_EQ(errorNumberOf([&] { (void)first()->Width(ePercent); }), 6);
    EXPECT_EQ(first()->Width(eTwips), 9000);
    expectWidthRefused(*this, 1, ePercent, 1, 6);
    expectWidthRefused(*this, 1, eTwips, 300, 6);
}

TEST_F(TableCell, NeedsNoUsableWidthForTwipsWhenThereAreSeveral) {
    addCells(1);
    document->setPageWidth(INT32_MIN);

    first()->setWidth(eTwips, 1000);

    EXPECT_EQ(first()->Width(eTwips), 1000);
}

TEST_F(TableCell, HasNoWidthInPercentOfAUsableWidthOfZero) {
    addCells(1);
    document->setPageWidth(3402);

    EXPECT_EQ(errorNumberOf([&] { (void)first()->Width(ePercent); }), 11);
    EXPECT_EQ(first()->Width(eTwips), 4500);
}

TEST_F(TableCell, TakesPercentOfAUsableWidthOfZeroAsZero) {
    addCells(1);
    document->setPageWidth(3402);

    first()->setWidth(ePercent, 50);

    EXPECT_EQ(definition(), "\\cellx200 \\cellx9000");
}

TEST_F(TableCell, HasNegativePercentOfANegativeUsableWidth) {
    document->setPageWidth(3402 - 1000);

    EXPECT_EQ(first()->Width(ePercent), -900);
}

TEST_F(TableCell, HasNoWidthOnceItWasRemoved) {
    addCells(1);
    const Ref<CRtfTableCell> removed = cell(1);
    cells->Remove(1);

    EXPECT_EQ(errorNumberOf([&] { (void)removed->Width(eTwips); }), 5);
    EXPECT_EQ(errorNumberOf([&] { (void)removed->Width(ePercent); }), 5);
    EXPECT_FALSE(marksChanged(
        *document, [&] { EXPECT_EQ(errorNumberOf([&] { removed->setWidth(eTwips, 300); }), 5); }));
}

TEST_F(TableCell, IsNotChangedByReading) {
    EXPECT_FALSE(marksChanged(*document, [&] {
        (void)first()->Parent();
        (void)first()->Paragraphs();
        (void)first()->BackColor();
        (void)first()->BottomBorder();
        (void)first()->TopBorder();
        (void)first()->LeftBorder();
        (void)first()->RightBorder();
        (void)first()->Style();
        (void)first()->Align();
    }));
}

TEST_F(TableCell, ForgetsTheLastErrorWithEveryCallThatCanFail) {
    const Ref<CRtfTableCell> only = first();
    const auto expectForgotten = [](auto call) {
        setCurrentError(RtfError(RunTimeError::Overflow));
        call();
        EXPECT_EQ(currentError(), nullptr);
    };

    expectForgotten([&] { only->setTopBorder(eNone); });
    expectForgotten([&] { only->setBackColor(eNoColor); });
    expectForgotten([&] { only->setStyle("x"); });
    expectForgotten([&] { (void)only->Width(eTwips); });
    expectForgotten([&] { only->setWidth(eTwips, 300); });
    expectForgotten([&] { only->asMarkedField("x"); });
}

}  // namespace
}  // namespace quorvane
