#include "cli/shortened.h"

#include <gtest/gtest.h>

#include <string>

#include "cli/errorText.h"
#include "quorvane/driver/driverErrors.h"
#include "tests/cli/reportOf.h"

namespace quorvane::cli {
namespace {

TEST(Shortened, KeepsUpTo200Characters) {
    const std::string text = std::string(199, 'x') + "\xC3\xA9";
    EXPECT_EQ(shortened(text), text);
    EXPECT_EQ(shortened(""), "");
}

TEST(Shortened, CutsTheMiddleOfALongerTextBetweenCharacters) {
    std::string text;
    for (int i = 0; i < 201; ++i) {
        text += "\xC3\xA9";
    }
    EXPECT_EQ(shortened(text), text.substr(0, 2 * 149) + "\xE2\x80\xA6" + text.substr(0, 2 * 50));
}

TEST(Shortened, IsTheMessageOfAnErrorInTextForm) {
    const std::string line(200'000, 'x');
    const RtfError error = driverError(eSyntaxError, line + " has a wrong syntax", "", 3);
    EXPECT_EQ(errorText({ErrorKind::Event, "a.rtfspec", error}),
              "a.rtfspec:3: error: " + line.substr(0, 149) + "\xE2\x80\xA6" + line.substr(0, 31) +
                  " has a wrong syntax");
}

TEST(Shortened, IsTheMessageOfADiagnosticInTextForm) {
    EXPECT_EQ(reportOf(paragraphWith("a", std::string(200'000, 'x') + "\n")),
              "a.rtfspec:6:1: error: " + std::string(149, 'x') + "\xE2\x80\xA6" +
                  std::string(31, 'x') + " has a wrong syntax [wrong-syntax]\n    " +
                  std::string(160, 'x') + "...\n    ^" + std::string(99, '~') + "\n");
}

}  // namespace
}  // namespace quorvane::cli
