// The hints about texts, values and keys of people who know other languages.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "quorvane/diagnostics/description/measureHints.h"
#include "quorvane/diagnostics/description/numberHints.h"
#include "quorvane/diagnostics/description/textFormatHints.h"
#include "quorvane/diagnostics/description/valueHints.h"
#include "quorvane/diagnostics/text/htmlTags.h"

namespace quorvane {
namespace {

TEST(BorderHints, NameTheBorderOfAWidth) {
    const auto meant = [](std::string_view value) {
        const std::string hint = borderValueHint(value, originalVocabulary()).text;
        const std::size_t at = hint.find("did you mean ");
        return at == std::string::npos ? hint : hint.substr(at + 13);
    };
    EXPECT_EQ(meant("0"), "none?");
    EXPECT_EQ(meant("0.25"), "hair?");
    EXPECT_EQ(meant("0.5pt"), "thin?");
    EXPECT_EQ(meant("1"), "normal?");
    EXPECT_EQ(meant("1pt"), "normal?");
    EXPECT_EQ(meant("2px solid"), "thick?");
    EXPECT_EQ(meant("2"), "thick?");
    EXPECT_EQ(meant("15"), "thin?");
    EXPECT_EQ(meant("40"), "thick?");
    EXPECT_EQ(meant("0.2mm"), "thin?");
    EXPECT_EQ(meant("3 rows"),
              "borders have names: hair is 0.25 points wide, thin 0.5, normal 1 and thick 1.5");
    EXPECT_EQ(meant("medium"), "");
    EXPECT_EQ(meant(""), "");
}

TEST(ColorHints, NameTheNearestColor) {
    const Vocabulary& vocabulary = originalVocabulary();
    EXPECT_EQ(colorValueHint("#ff0000", vocabulary).text,
              "colors have names; the nearest one to #ff0000 is red");
    EXPECT_EQ(colorValueHint("99", vocabulary).text,
              "colors have names, such as dark-red or light-yellow");
    EXPECT_TRUE(colorValueHint("crimson", vocabulary).empty());
}

TEST(FormatHints, ShowTheStyleThatDoesWhatAKeyWasMeantToDo) {
    const auto hint = [](std::string_view key, std::string_view value) {
        return textFormatHint(NodeKind::Para, key, value).text;
    };
    const auto expected = [](const std::string& name, const std::string& format) {
        return "use a style: (ps=" + name + ") with { name: " + name +
               "; style-def: s; format: " + format + " } in the stylesheet; for a few words, <" +
               name + "=words> with style-def: cs";
    };
    EXPECT_EQ(hint("color", "red"), expected("red", "\\cf30"));
    EXPECT_EQ(hint("Colour", "Navy-Blue"), expected("navy-blue", "\\cf24"));
    EXPECT_EQ(hint("text-color", "#000080"), expected("navy-blue", "\\cf24"));
    EXPECT_EQ(hint("color", "crimson"), expected("red", "\\cf30"));
    EXPECT_EQ(hint("font", "Georgia"), expected("georgia", "\\f5"));
    EXPECT_EQ(hint("font", "*"), expected("arial", "\\f0"));
    EXPECT_EQ(hint("font-size", "12pt"), expected("large", "\\fs24"));
    EXPECT_EQ(hint("size", "big"), expected("large", "\\fs28"));
    EXPECT_EQ(hint("bold", "yes"), expected("strong", "\\b"));
    EXPECT_EQ(hint("italic", ""), expected("emphasis", "\\i"));
    EXPECT_EQ(hint("underline", "1"), expected("underlined", "\\ul"));
    EXPECT_EQ(hint("strike", "1"), expected("struck", "\\strike"));
    EXPECT_EQ(hint("style", "x"), "");
}

TEST(FormatHints, TakeTheColorOfARowForItsBackground) {
    EXPECT_TRUE(textFormatHint(NodeKind::Row, "color", "red").empty());
    EXPECT_FALSE(textFormatHint(NodeKind::Cell, "bold", "yes").empty());
    EXPECT_TRUE(textFormatHint(NodeKind::Doc, "font", "Arial").empty());
}

TEST(MeasureHints, GuessTheUnitByTheNumber) {
    const auto hint = [](std::string_view key, double number) {
        const std::string text = tinyMeasureHint(key, number).text;
        return text.substr(text.find("mean ") + 5);
    };
    EXPECT_EQ(hint("paper-width", 210), "210 millimeters? Write 11906");
    EXPECT_EQ(hint("paper-height", 297), "297 millimeters? Write 16838");
    EXPECT_EQ(hint("paper-height", 29.7), "29.7 centimeters? Write 16838");
    EXPECT_EQ(hint("paper-width", 8.5), "8.5 inches? Write 12240");
    EXPECT_EQ(hint("paper-width", 595), "595 points? Write 11900");
    EXPECT_EQ(hint("left-margin", 20), "20 millimeters? Write 1134");
    EXPECT_EQ(hint("left-margin", 2.5), "2.5 centimeters? Write 1417");
    EXPECT_EQ(hint("left-margin", 72), "72 points? Write 1440");
}

TEST(MeasureHints, DoubtNoMeasureThatSomebodyMayMean) {
    EXPECT_TRUE(isTinyMeasure("paper-width", 1439));
    EXPECT_FALSE(isTinyMeasure("paper-width", 1440));
    EXPECT_FALSE(isTinyMeasure("paper-width", -1));
    EXPECT_TRUE(isTinyMeasure("top-margin", 2));
    EXPECT_TRUE(isTinyMeasure("top-margin", 99));
    EXPECT_FALSE(isTinyMeasure("top-margin", 100));
    EXPECT_FALSE(isTinyMeasure("top-margin", 1));
    EXPECT_FALSE(isTinyMeasure("cell-width", 10));
}

TEST(NumberHints, ConvertAUnitAfterANumberWithAComma) {
    EXPECT_EQ(numberHint("paper-height", "29,7cm").text, "29.7cm is 16838 twips; write 16838");
    EXPECT_EQ(numberHint("paper-height", "29,7 cm").replacement, "16838");
    EXPECT_EQ(numberHint("cell-width", "12,5%").replacement, "12.5");
    EXPECT_FALSE(numberHint("paper-height", "1,000cm").replacement);
    EXPECT_FALSE(numberHint("paper-height", "1,5,2cm").replacement);
}

/// The tags of a text with their hints.
std::vector<std::string> tagsIn(std::string_view text, const KnownStyles* styles = nullptr) {
    std::vector<std::string> tags;
    for (const HtmlTag& tag : htmlTagsIn(text, styles)) {
        tags.push_back(std::string(tag.tag) + ": " + tag.hint.text);
    }
    return tags;
}

using Tags = std::vector<std::string>;

TEST(HtmlTags, GetTheFormThatDoesTheSame) {
    EXPECT_EQ(tagsIn("a <b>Total</b> c"),
              Tags{"<b>: write <strong=Total> with { name: strong; style-def: cs; format: \\b } in "
                   "the stylesheet, or {\\b Total}"});
    EXPECT_EQ(tagsIn("<I>x"),
              Tags{"<I>: write <emphasis=words> with { name: emphasis; style-def: cs; format: \\i "
                   "} in the stylesheet, or {\\i words}"});
    EXPECT_EQ(tagsIn("<p>x</p>"),
              Tags{"<p>: write each paragraph as a node: (p, (pt=words) and p)"});
    EXPECT_EQ(tagsIn("<h1>x</h1>"),
              Tags{"<h1>: use styles: <strong=words> for words, (ps=heading) for a "
                   "paragraph"});
}

TEST(HtmlTags, AreReplacedByAStyleThatIsThere) {
    const KnownStyles styles("{ name: bold; style-def: cs; format: \\b }");
    EXPECT_EQ(tagsIn("<b>Total</b>", &styles), Tags{"<b>: write <bold=Total>, or {\\b Total}"});
}

TEST(HtmlTags, OfLineBreaksAreReplacedForCertain) {
    const std::vector<HtmlTag> tags = htmlTagsIn("a<br>b<br />c", nullptr);
    ASSERT_EQ(tags.size(), 2U);
    EXPECT_EQ(tags[1].tag, "<br />");
    EXPECT_EQ(tags[1].hint.text, "write \\line for a line break");
    EXPECT_EQ(tags[1].hint.replacement, "\\line ");
}

TEST(HtmlTags, AreNeitherInlineStylesNorOtherWordsInAngleBrackets) {
    EXPECT_EQ(tagsIn("<b=Total> <neu> a < b > c <> </b> <a@b.example> <"), Tags{});
}

}  // namespace
}  // namespace quorvane
