#include "quorvane/docmodel/CRtfGrpBody.h"

#include <gtest/gtest.h>

#include "tests/docmodel/documentParts.h"

namespace quorvane {
namespace {

std::string rendered(const CRtfGrpBody& body) {
    std::string rtf;
    body.render(rtf);
    return rtf;
}

TEST(CRtfGrpBody, HasRowsThatAreTheSameEveryTime) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const CRtfGrpBody body(*document);

    EXPECT_EQ(body.TableRows(), body.TableRows());
    EXPECT_EQ(body.TableRows()->Count(), 0);
    EXPECT_EQ(body.TableRows()->Parent(), document);
}

TEST(CRtfGrpBody, WritesNothingWithoutRows) {
    const Ref<CRtfDoc> document = CRtfDoc::create();

    EXPECT_EQ(rendered(CRtfGrpBody(*document)), "");
}

TEST(CRtfGrpBody, WritesItsRowsAndNothingElse) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const CRtfGrpBody body(*document);
    body.TableRows()->AddTail();
    body.TableRows()->AddTail();

    EXPECT_EQ(rendered(body),
              "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\row}"
              "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\row}");
}

}  // namespace
}  // namespace quorvane
