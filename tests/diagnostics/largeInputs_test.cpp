// Texts that are built to be slow: they take hours where the time grows faster than the text.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"

namespace quorvane {
namespace {

constexpr std::size_t many = 20000;

std::string repeated(std::string_view text, std::size_t times = many) {
    std::string all;
    for (std::size_t i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

std::string numbered(std::string_view before, std::string_view after, std::size_t times = many) {
    std::string all;
    for (std::size_t i = 0; i < times; ++i) {
        all += before;
        all += std::to_string(i);
        all += after;
    }
    return all;
}

std::string paragraphOf(const std::string& lines) {
    return "(doc\n(r\n(c\n(p\n" + lines + "p)\nc)\nr)\ndoc)\n";
}

TEST(LargeDescriptions, OfWrongLinesTakeTheirTime) {
    EXPECT_GE(checkDescription(paragraphOf(repeated("x\n"))).size(), many);
    EXPECT_GE(checkDescription(paragraphOf(repeated("(prra\n"))).size(), many);
    EXPECT_GE(checkDescription(paragraphOf(repeated("c)\n"))).size(), 1u);
    EXPECT_GE(checkDescription(paragraphOf(numbered("(key", "=1)\n"))).size(), many);
    EXPECT_GE(checkDescription(paragraphOf(repeated("(pt=x)\n"))).size(), many - 1);
}

TEST(LargeDescriptions, OfDeepNodesTakeTheirTime) {
    EXPECT_GE(checkDescription("(doc\n(r\n" + repeated("(doc\n") + repeated("p)\n")).size(), many);
    EXPECT_GE(checkDescription(repeated("(doc\n(r\n(c\n(p\n") + repeated("p)\n")).size(), 1000u);
    EXPECT_GE(checkDescription("(doc\n" + repeated("(r\n(c\n(p\n") + "doc)\n").size(), 1u);
}

TEST(LargeDescriptions, OfLongTextsTakeTheirTime) {
    const std::string styles = numbered("{name: s", "; style-def: cs}", 400);
    for (const std::string_view part :
         {"}", "{", "\\", "\\x ", "<a=", "<a=b>", "<", ">", "\t", "\xC3\xA9", "\xC3\x83\xC2\xA9",
          "\xE2\x86\x92", "(", "\\'29", "\\nestcell ", "\\fldinst\\u77?"}) {
        KnownStyles known(styles);
        checkDescription(paragraphOf("(pt=" + repeated(part) + ") ; )\n"), &known);
        checkDescription("(doc\n(r\n" + repeated(part) + "\ndoc)\n", &known);
    }
    KnownStyles known(styles);
    EXPECT_GE(checkDescription(paragraphOf("(pt=" + numbered("<t", "=b>") + ")\n"), &known).size(),
              many);
}

TEST(LargeStyleSheets, TakeTheirTime) {
    EXPECT_GE(checkStyleSheet(repeated("{name: a; style-def: s}")).size(), many - 1);
    EXPECT_GE(checkStyleSheet(numbered("{name: a", "; style-def: s; next: b}")).size(), many);
    EXPECT_GE(checkStyleSheet("{name: a" + repeated("; format: \\x") + "}").size(), many - 1);
    EXPECT_GE(checkStyleSheet("{name: a" + repeated(", a") + "}").size(), many);
    EXPECT_GE(
        checkStyleSheet("{name: a" + repeated(":") + "; style-def: s" + repeated(":") + "}").size(),
        1u);
    EXPECT_GE(
        checkStyleSheet("{name: a; style-def: s; format: " + repeated("x, \\b ") + "}").size(), 1u);
    EXPECT_GE(checkStyleSheet(repeated("{")).size(), 1u);
    EXPECT_GE(checkStyleSheet(repeated("}") + repeated("{")).size(), many);
}

TEST(LargeRtfFiles, TakeTheirTime) {
    for (const std::string_view part :
         {"{", "}", "\\", "\\'", "\\f9 ", "\\trowd", "\\cell", "\\row", "{\\odd ", "\\bin1 x"}) {
        checkRtf("{\\rtf1" + repeated(part));
    }
    EXPECT_GE(checkRtf("{\\rtf1" + repeated("\\row")).size(), many);
}

}  // namespace
}  // namespace quorvane
