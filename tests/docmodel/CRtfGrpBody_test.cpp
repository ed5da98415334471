#include "quorvane/rtfgroups/CRtfGrpBody.h"

#include <gtest/gtest.h>

#include <string>

#include "quorvane/base/text/StringOutput.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/docmodel/InnerRows.h"
#include "quorvane/docmodel/TableRendering.h"
#include "tests/docmodel/documentParts.h"

namespace quorvane {
namespace {

Ref<InnerRows> rowsOf(const CRtfDoc& document) {
    return Ref<InnerRows>(&inner(*document.TableRows()));
}

TEST(CRtfGrpBody, HasRowsThatAreTheSameEveryTime) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const Ref<InnerRows> rows = rowsOf(*document);
    const CRtfGrpBody<InnerRows> body(rows);

    EXPECT_EQ(body.TableRows(), rows);
}

TEST(CRtfGrpBody, WritesItsRowsAndNothingElse) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const CRtfGrpBody<InnerRows> body(rowsOf(*document));
    std::string rtf;
    StringOutput output(rtf);
    TableRendering rendering(inner(*document), output);
    body.render(rendering);
    output.flush();
    EXPECT_EQ(rtf, "");

    body.TableRows()->AddTail();
    body.TableRows()->AddTail();

    body.render(rendering);
    output.flush();
    EXPECT_EQ(rtf,
              "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\row}"
              "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\row}");
}

TEST(CRtfGrpBody, TearsItsRowsDownWhenItIsDestroyedOnly) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const Ref<InnerRows> rows = rowsOf(*document);
    rows->AddTail();
    { const CRtfGrpBody<InnerRows> forgotten(rows); }
    EXPECT_EQ(rows->Count(), 1);

    CRtfGrpBody<InnerRows> body(rows);
    body.destroy();

    EXPECT_EQ(rows->Count(), 0);
}

}  // namespace
}  // namespace quorvane
