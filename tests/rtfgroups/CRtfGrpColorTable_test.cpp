#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

#include <gtest/gtest.h>

#include <string_view>

#include "tests/support/appendRendered.h"

namespace quorvane {
namespace {

TEST(CRtfGrpColorTable, Writes57Colors) {
    std::string rtf;

    appendRendered(CRtfGrpColorTable(), rtf);

    EXPECT_EQ(rtf,
              "\r\n{\\colortbl;"
              "\r\n\\red127\\green255\\blue212;"
              "\r\n\\red255\\green228\\blue196;"
              "\r\n\\red0\\green0\\blue0;"
              "\r\n\\red0\\green0\\blue255;"
              "\r\n\\red128\\green64\\blue47;"
              "\r\n\\red127\\green255\\blue0;"
              "\r\n\\red0\\green255\\blue255;"
              "\r\n\\red0\\green128\\blue128;"
              "\r\n\\red90\\green90\\blue90;"
              "\r\n\\red0\\green128\\blue0;"
              "\r\n\\red128\\green0\\blue128;"
              "\r\n\\red128\\green0\\blue0;"
              "\r\n\\red72\\green61\\blue139;"
              "\r\n\\red128\\green128\\blue0;"
              "\r\n\\red0\\green154\\blue205;"
              "\r\n\\red255\\green215\\blue0;"
              "\r\n\\red128\\green128\\blue128;"
              "\r\n\\red0\\green255\\blue0;"
              "\r\n\\red173\\green216\\blue230;"
              "\r\n\\red144\\green238\\blue144;"
              "\r\n\\red255\\green255\\blue224;"
              "\r\n\\red150\\green205\\blue0;"
              "\r\n\\red255\\green0\\blue255;"
              "\r\n\\red0\\green0\\blue128;"
              "\r\n\\red85\\green107\\blue47;"
              "\r\n\\red255\\green165\\blue0;"
              "\r\n\\red255\\green218\\blue185;"
              "\r\n\\red255\\green157\\blue180;"
              "\r\n\\red160\\green32\\blue240;"
              "\r\n\\red255\\green0\\blue0;"
              "\r\n\\red46\\green139\\blue87;"
              "\r\n\\red214\\green214\\blue214;"
              "\r\n\\red106\\green90\\blue205;"
              "\r\n\\red135\\green206\\blue235;"
              "\r\n\\red64\\green224\\blue208;"
              "\r\n\\red255\\green255\\blue255;"
              "\r\n\\red255\\green255\\blue0;"
              "\r\n\\red102\\green0\\blue0;"
              "\r\n\\red153\\green102\\blue0;"
              "\r\n\\red153\\green153\\blue0;"
              "\r\n\\red102\\green51\\blue0;"
              "\r\n\\red158\\green158\\blue158;"
              "\r\n\\red102\\green102\\blue153;"
              "\r\n\\red51\\green0\\blue153;"
              "\r\n\\red51\\green102\\blue255;"
              "\r\n\\red153\\green0\\blue255;"
              "\r\n\\red0\\green102\\blue255;"
              "\r\n\\red0\\green102\\blue102;"
              "\r\n\\red51\\green51\\blue204;"
              "\r\n\\red51\\green153\\blue153;"
              "\r\n\\red102\\green51\\blue102;"
              "\r\n\\red51\\green102\\blue153;"
              "\r\n\\red61\\green61\\blue69;"
              "\r\n\\red205\\green149\\blue12;"
              "\r\n\\red0\\green102\\blue51;"
              "\r\n\\red0\\green153\\blue51;"
              "\r\n\\red153\\green0\\blue0;"
              "}");
}

TEST(CRtfGrpColorTable, AppendsToWhatIsThere) {
    std::string rtf = "before";

    appendRendered(CRtfGrpColorTable(), rtf);

    EXPECT_EQ(rtf.substr(0, 19), "before\r\n{\\colortbl;");
}

TEST(CRtfGrpColorTable, NumbersTheColorsFromOne) {
    static constexpr std::string_view names[] = {
        "aquamarine",
        "bisque",
        "black",
        "blue",
        "brown",
        "chartreuse",
        "cyan",
        "dark-cyan",
        "dark-gray",
        "dark-green",
        "dark-magenta",
        "dark-red",
        "dark-slate-blue",
        "dark-yellow",
        "deep-sky-blue",
        "gold",
        "gray",
        "green",
        "light-blue",
        "light-green",
        "light-yellow",
        "lime-green",
        "magenta",
        "navy-blue",
        "olive-green",
        "orange",
        "peach-puff",
        "pink",
        "purple",
        "red",
        "sea-green",
        "silver",
        "slate-blue",
        "sky-blue",
        "turquoise",
        "white",
        "yellow",
        "brick",
        "cork",
        "yellow-cork",
        "dark-cork",
        "dark-silver",
        "gray-blue",
        "dark-navy-blue",
        "light-royal-blue",
        "violet",
        "dodger-blue",
        "sargasso-green",
        "royal-blue",
        "light-sea-green",
        "deep-purple",
        "steel-blue",
        "asphalt",
        "dark-golden-rod",
        "dark-grass",
        "grass",
        "red-brick",
    };
    std::int32_t number = 0;
    for (const std::string_view name : names) {
        EXPECT_EQ(CRtfGrpColorTable::colorNumber(name), ++number) << name;
    }
    EXPECT_EQ(number, 57);
}

TEST(CRtfGrpColorTable, NumbersSlateBlueBeforeSkyBlue) {
    EXPECT_EQ(CRtfGrpColorTable::colorNumber("slate-blue"), 33);
    EXPECT_EQ(CRtfGrpColorTable::colorNumber("sky-blue"), 34);
}

TEST(CRtfGrpColorTable, HasNoNumberForAnotherWord) {
    EXPECT_EQ(CRtfGrpColorTable::colorNumber("none"), 0);
    EXPECT_EQ(CRtfGrpColorTable::colorNumber(""), 0);
    EXPECT_EQ(CRtfGrpColorTable::colorNumber("navy"), 0);
    EXPECT_EQ(CRtfGrpColorTable::colorNumber("navy-blu"), 0);
    EXPECT_EQ(CRtfGrpColorTable::colorNumber("navy-blue "), 0);
    EXPECT_EQ(CRtfGrpColorTable::colorNumber("24"), 0);
}

TEST(CRtfGrpColorTable, TakesDashesForBlanksOnly) {
    EXPECT_EQ(CRtfGrpColorTable::colorNumber("navy blue"), 0);
    EXPECT_EQ(CRtfGrpColorTable::colorNumber("navy_blue"), 0);
}

TEST(CRtfGrpColorTable, TakesCaseIntoAccount) {
    EXPECT_EQ(CRtfGrpColorTable::colorNumber("Navy-Blue"), 0);
}

TEST(CRtfGrpColorTable, NamesAColorOfANumber) {
    EXPECT_EQ(CRtfGrpColorTable::colorName(1), "aquamarine");
    EXPECT_EQ(CRtfGrpColorTable::colorName(54), "dark-golden-rod");
    EXPECT_EQ(CRtfGrpColorTable::colorName(57), "red-brick");
    for (const std::int32_t number : {-1, 0, 58}) {
        EXPECT_EQ(CRtfGrpColorTable::colorName(number), "");
    }
}

TEST(CRtfGrpColorTable, HasTheColorsThatItWrites) {
    EXPECT_EQ(CRtfGrpColorTable::color(1), (RgbColor{127, 255, 212}));
    EXPECT_EQ(CRtfGrpColorTable::color(57), (RgbColor{153, 0, 0}));
    for (const std::int32_t number : {-1, 0, 58}) {
        EXPECT_EQ(CRtfGrpColorTable::color(number), std::nullopt);
    }
    std::string expected = "\r\n{\\colortbl;";
    for (std::int32_t number = 1; number <= CRtfGrpColorTable::colorCount; ++number) {
        const RgbColor color = *CRtfGrpColorTable::color(number);
        expected += "\r\n\\red" + std::to_string(color.red) + "\\green" +
                    std::to_string(color.green) + "\\blue" + std::to_string(color.blue) + ";";
    }
    std::string written;
    appendRendered(CRtfGrpColorTable(), written);
    EXPECT_EQ(written, expected + "}");
}

}  // namespace
}  // namespace quorvane
