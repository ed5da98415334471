#include <gmock/gmock.h>

#include <string>
#include <string_view>

#include "tests/com/examples/libraryDocuments.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

using testing::HasSubstr;

// Languages differ in how they write a text, and in where they break it: without all that.
std::string withoutNotation(std::string text) {
    for (std::size_t found = text.find("\\\\"); found != std::string::npos;
         found = text.find("\\\\", found + 1)) {
        text.erase(found, 1);
    }
    const std::string_view notation = " \t\r\n\"'+&_,";
    std::erase_if(text, [notation](char each) { return notation.find(each) != notation.npos; });
    return text;
}

/// An example whose host cannot be run in Wine. That it makes the same documents shows in its texts
/// as far as it can.
class UntriedExample : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        source_ = withoutNotation(
            bytesOfFile(wideText(std::string(QUORVANE_EXAMPLES) + "/" + GetParam())));
        ASSERT_NE(source_, "");
    }

    std::string source_;
};

TEST_P(UntriedExample, HasTheStylesheet) {
    EXPECT_THAT(source_, HasSubstr(withoutNotation(styleSheetText)));
}

TEST_P(UntriedExample, HasTheDescription) {
    EXPECT_THAT(source_, HasSubstr(withoutNotation(descriptionText)));
}

TEST_P(UntriedExample, HasEveryTextOfTheInvoice) {
    for (const std::string& text : textsOfInvoice()) {
        EXPECT_THAT(source_, HasSubstr(withoutNotation(text)));
    }
}

TEST_P(UntriedExample, HasTheWidthsOfTheInvoice) {
    for (const char* widths : {"60, 40", "12, 42, 14, 14, 18", "54, 28, 18"}) {
        EXPECT_THAT(source_, HasSubstr(withoutNotation(widths)));
    }
}

TEST_P(UntriedExample, SaysThatItIsNotRun) {
    EXPECT_THAT(source_, HasSubstr(withoutNotation("The tests do not run this example")));
}

INSTANTIATE_TEST_SUITE_P(Examples, UntriedExample,
                         testing::Values("invoice.ps1", "invoice.py", "Invoice.cs", "invoice.bas"),
                         [](const testing::TestParamInfo<const char*>& tested) {
                             const std::string name = tested.param;
                             return name.substr(name.find('.') + 1);
                         });

}  // namespace
}  // namespace quorvane::host
