#include <gtest/gtest.h>

#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "tests/docmodel/layout/TextTable.h"
#include "tests/docmodel/picture/pictureFiles.h"

namespace quorvane {
namespace {

TEST(Additions, MakeASoundDocumentTogether) {
    const TextTable table;
    table.document->LoadStyleSheetFromMemmory("{name: header; style-def: s; format: \\f18}");
    table.document->addFont("Name");
    table.document->setColumnWidths({1000, 200, 3000});
    table.document->setPageHeader("{page}", "{{", "\xC5\x99");
    table.document->setPageFooter("", "{pages}", "");
    table.addRow({"a", "b", "c"})->setRepeatsAsHeading(true);
    table.addRow({"d", "e"})->setKeepWithNext(true);
    table.addRow({"f"});
    table.addRow({"g", "h", "i"})->setStartsPage(true);
    table.row(3)->setKeepTogether(true);
    table.cell(2, 1)->setColumnSpan(2);
    table.cell(2, 1)->setRowSpan(2);
    table.cell(2, 1)->setBackColor(table.document->addColor(1, 2, 3));
    table.cell(4, 2)->Paragraphs()->Item(1)->setPicture(RtfPicture(twoPixels));

    const std::vector<Diagnostic> found = checkRtf(table.document->Contents());

    EXPECT_TRUE(found.empty());
}

TEST(Additions, ChangeNothingWhenTheyAreTakenBack) {
    const TextTable table;
    table.addRow({"a", "b"});
    table.addRow({"c", "d"});
    const std::string before = table.document->Contents();
    table.document->setColumnWidths({1, 2});
    table.document->setPageFooter("a", "", "");
    table.row(1)->setRepeatsAsHeading(true);
    table.row(2)->setKeepWithNext(true);
    table.cell(1, 1)->setColumnSpan(2);
    table.cell(1, 1)->Paragraphs()->Item(1)->setPicture(RtfPicture(twoPixels));

    table.document->setColumnWidths({});
    table.document->setPageFooter("", "", "");
    table.row(1)->setRepeatsAsHeading(false);
    table.row(2)->setKeepWithNext(false);
    table.cell(1, 1)->setColumnSpan(1);
    table.cell(1, 1)->Paragraphs()->Item(1)->setPicture(std::nullopt);

    EXPECT_EQ(table.document->Contents(), before);
}

}  // namespace
}  // namespace quorvane
