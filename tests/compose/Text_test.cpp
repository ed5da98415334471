#include "quorvane/compose/Text.h"

#include <gtest/gtest.h>

#include <string>

#include "quorvane/compose/Document.h"

namespace quorvane {
namespace {

std::string rtfOf(const Text& text) {
    Document document;
    return document.addRow({text})[0][0].rtf();
}

TEST(Text, IsJoined) {
    Text text = "a ";
    text += " b";
    EXPECT_EQ(rtfOf(text), "a {} b");
    EXPECT_EQ(rtfOf("a " + Text(" b")), rtfOf("a  b"));
    text += text;
    EXPECT_EQ(rtfOf(text), "a {} ba {} b");
    EXPECT_EQ(rtfOf(Text() + "" + Text(static_cast<const char*>(nullptr))), "");
}

TEST(Text, HasPartsWithinParts) {
    EXPECT_EQ(rtfOf("a" + bold("b" + italic("c") + underlined("d")) + "e"),
              "a{\\b b{\\i c}{\\ul d}}e");
}

TEST(Text, KeepsRawRtfAndEscapesTheRest) {
    EXPECT_EQ(rtfOf(rtf("\\fs28") + "{1}" + rtf("{\\i <x>}")), "\\fs28 \\{1\\}{\\i \\'3Cx\\'3E}");
}

TEST(Text, WithBytesThatAreNotUtf8IsRefusedWhereverTheyStand) {
    for (const Text& text : {Text("a\xFF"
                                  "e"),
                             "a" + bold("\xFF"
                                        "e"),
                             rtf("\xFFn"), styled("a\xFFn", "b")}) {
        EXPECT_THROW(rtfOf(text), Error);
    }
}

TEST(Text, CanBeNestedDeeply) {
    Text text = "x";
    for (int depth = 0; depth < 2000; ++depth) {
        text = bold(text);
    }
    EXPECT_EQ(rtfOf(text).size(), 2000U * 5 + 1);
}

}  // namespace
}  // namespace quorvane
