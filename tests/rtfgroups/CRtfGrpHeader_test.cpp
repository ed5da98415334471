#include "quorvane/rtfgroups/CRtfGrpHeader.h"

#include <gtest/gtest.h>

#include "tests/support/appendRendered.h"

namespace quorvane {
namespace {

TEST(CRtfGrpHeader, OpensTheDocumentWithoutBracesOrLineBreaks) {
    std::string rtf = "{";

    appendRendered(CRtfGrpHeader(), rtf);

    EXPECT_EQ(rtf, R"({\rtf1\ansicpg1252\uc0\deff0)");
}

}  // namespace
}  // namespace quorvane
