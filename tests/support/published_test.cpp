#include "quorvane/support/published.h"
#include "quorvane/support/currentError.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvane {
namespace {

TEST(Published, BeginsWithoutACurrentError) {
    setCurrentError(RtfError(RunTimeError::Overflow));

    published([] { EXPECT_EQ(currentError(), nullptr); });

    EXPECT_EQ(currentError(), nullptr);
}

TEST(Published, ReturnsWhatItsBodyReturns) {
    std::string text = "a";
    EXPECT_EQ(&published([&]() -> std::string& { return text; }), &text);
}

TEST(Published, MakesAnErrorThatLeavesItTheCurrentOne) {
    try {
        published([] { raise(RtfError(445, "Bad keyword", "CRtfDriver.ParseFile")); });
        FAIL();
    } catch (const RtfError& caught) {
        EXPECT_EQ(caught.number, 445);
    }

    ASSERT_NE(currentError(), nullptr);
    EXPECT_EQ(currentError()->number, 445);
    EXPECT_EQ(currentError()->description, "Bad keyword");
    EXPECT_EQ(currentError()->source, "CRtfDriver.ParseFile");
}

TEST(Published, LeavesAnErrorThatItsBodyHandlesToIt) {
    published([] {
        try {
            raise(RunTimeError::Overflow);
        } catch (const RtfError&) {
        }
    });
    EXPECT_EQ(currentError(), nullptr);
}

}  // namespace
}  // namespace quorvane
