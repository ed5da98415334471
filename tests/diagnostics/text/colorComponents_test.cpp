#include "quorvane/diagnostics/text/colorComponents.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

std::string nearest(std::string_view text) {
    const std::optional<RgbColor> components = componentsIn(text);
    return components ? nearestColorName(*components, originalVocabulary()) : "";
}

TEST(ColorComponents, AreReadInAllTheirForms) {
    for (const char* text : {"#ff0000", "#FF0000", "#f00", "ff0000", "0xff0000", "255,0,0",
                             "255, 0, 0", "rgb(255, 0, 0)", "RGB(255,0,0"}) {
        EXPECT_EQ(nearest(text), "red") << text;
    }
}

TEST(ColorComponents, AreNotReadFromOtherTexts) {
    for (const char* text : {"", "#", "#ff00", "#ff00zz", "red", "255,0", "256,0,0", "1,2,3,4",
                             "-1,0,0", "f00", "0x", "rgb", "100"}) {
        EXPECT_FALSE(componentsIn(text)) << text;
    }
}

TEST(ColorComponents, AreNearToAColorThatIsSeenAsAlike) {
    EXPECT_EQ(nearest("#000080"), "navy-blue");
    EXPECT_EQ(nearest("#d0d0d0"), "silver");
    EXPECT_EQ(nearest("#eeeeee"), "white");
    EXPECT_EQ(nearest("#ffffe0"), "light-yellow");
    EXPECT_EQ(nearest("#ffa000"), "orange");
}

TEST(ColorComponents, KnowWhichColorTheLanguageShowsUnderACrossedName) {
    // In descriptions, slate-blue shows a sky blue.
    EXPECT_EQ(nearest("#87ceeb"), "slate-blue");
    EXPECT_EQ(nearest("#6a5acd"), "sky-blue");
}

}  // namespace
}  // namespace quorvane
