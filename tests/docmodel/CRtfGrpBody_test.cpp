#include "quorvane/rtfgroups/CRtfGrpBody.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/docmodel/documentParts.h"

namespace quorvane {
namespace {

TEST(CRtfGrpBody, HasRowsThatAreTheSameEveryTime) {
    const Ref<CRtfTableRows> rows = CRtfDoc::create()->TableRows();
    const CRtfGrpBody<CRtfTableRows> body(rows);

    EXPECT_EQ(body.TableRows(), rows);
}

TEST(CRtfGrpBody, WritesItsRowsAndNothingElse) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const CRtfGrpBody<CRtfTableRows> body(document->TableRows());
    std::string rtf;
    body.render(rtf);
    EXPECT_EQ(rtf, "");

    body.TableRows()->AddTail();
    body.TableRows()->AddTail();

    body.render(rtf);
    EXPECT_EQ(rtf,
              "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\row}"
              "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\row}");
}

TEST(CRtfGrpBody, TearsItsRowsDownWhenItIsDestroyedOnly) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const Ref<CRtfTableRows> rows = document->TableRows();
    rows->AddTail();
    { const CRtfGrpBody<CRtfTableRows> forgotten(rows); }
    EXPECT_EQ(rows->Count(), 1);

    CRtfGrpBody<CRtfTableRows> body(rows);
    body.destroy();

    EXPECT_EQ(rows->Count(), 0);
}

}  // namespace
}  // namespace quorvane
