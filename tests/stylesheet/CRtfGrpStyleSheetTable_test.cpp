#include "quorvane/stylesheet/CRtfGrpStyleSheetTable.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "quorvane/base/values/RtfError.h"
#include "tests/fuzz/plainStyleSheet.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/appendRendered.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

// Counts how often it is marked changed.
class Owner final : public GroupOwner {
public:
    int changes = 0;
    void beforeChange() override {}
    void markChanged() noexcept override { ++changes; }
};

class StyleSheetTable : public testing::Test {
protected:
    std::string rendered() const {
        std::string rtf;
        appendRendered(table, rtf);
        return rtf;
    }

    void expectUnloaded() const {
        EXPECT_FALSE(table.StyleSheetOk());
        EXPECT_EQ(rendered(), "");
        for (const char* name : {"normal", "title", "bold", "shaded", ""}) {
            EXPECT_EQ(table.GetParagraphStyle(name), "");
            EXPECT_EQ(table.GetCharacterStyle(name), "");
            EXPECT_EQ(table.GetMarkedFieldStyle(name), "");
            EXPECT_EQ(table.getCellStyleBackColor(name), 0);
            EXPECT_FALSE(table.IsStyleDefined(name));
        }
    }

    // Paragraph styles normal and title, character style bold, cell style shaded.
    static constexpr const char* sheet =
        "{name: normal; style-def: s; format: \\f9}"
        "{name: title; style-def: s; format: \\b; based-on: normal; next: normal}"
        "{name: bold; style-def: cs; format: \\b}"
        "{name: shaded; style-def: cell; format: navy-blue}";
    static constexpr const char* badSheet = "{name: early; style-def: s}{name: late; bad: 1}";

    Owner owner;
    FakePlatform platform;
    CRtfGrpStyleSheetTable table{owner, platform};
};

TEST_F(StyleSheetTable, ReturnsNothingUntilAStylesheetIsLoaded) {
    expectUnloaded();
    EXPECT_EQ(table.StyleSheetFile(), "");
    EXPECT_EQ(owner.changes, 0);
}

TEST_F(StyleSheetTable, LoadsStylesFromAText) {
    table.loadStyleSheetFromMemory(sheet);

    EXPECT_TRUE(table.StyleSheetOk());
    EXPECT_EQ(table.StyleSheetFile(), "");
    EXPECT_EQ(owner.changes, 1);
}

TEST_F(StyleSheetTable, WritesParagraphStylesBeforeCharacterStylesAndNoCellStyles) {
    table.loadStyleSheetFromMemory(
        "{name: B; style-def: cs; format: F3}"
        "{name: shaded; style-def: cell; format: red}"
        "{name: normal; style-def: s; format: F1}"
        "{name: T; style-def: s; format: F2; based-on: normal; next: normal}");

    EXPECT_EQ(rendered(),
              "\r\n{\\stylesheet"
              "\r\n{f1 normal;}"
              "\r\n{\\s101 f2 \\sbasedon100 \\snext100 t;}"
              "\r\n{\\*\\cs100 f3 b;}}");
}

TEST_F(StyleSheetTable, AppendsToWhatIsThere) {
    table.loadStyleSheetFromMemory("{name: b; style-def: s}");
    std::string rtf = "before";

    appendRendered(table, rtf);

    EXPECT_EQ(rtf, "before\r\n{\\stylesheet\r\n{\\s100  b;}}");
}

TEST_F(StyleSheetTable, WritesAnEmptyGroupForAStylesheetWithoutStyles) {
    table.loadStyleSheetFromMemory("no definitions");

    EXPECT_TRUE(table.StyleSheetOk());
    EXPECT_EQ(rendered(), "\r\n{\\stylesheet}");
}

TEST_F(StyleSheetTable, WritesAllItemsOfAParagraphStyleInTheirOrder) {
    table.loadStyleSheetFromMemory(
        "{name: a; style-def: s}"
        "{name: b; next: b; based-on: a; additive: yes; format: \\b; style-def: s}");

    EXPECT_EQ(rendered(),
              "\r\n{\\stylesheet"
              "\r\n{\\s100  a;}"
              "\r\n{\\s101 \\b \\additive \\sbasedon100 \\snext101 b;}}");
}

TEST_F(StyleSheetTable, WritesAllItemsOfACharacterStyleInTheirOrder) {
    table.loadStyleSheetFromMemory(
        "{name: a; style-def: cs; format: \\i}"
        "{name: b; next: b; based-on: a; additive: yes; format: \\b; style-def: cs}"
        "{name: c; style-def: cs}");

    EXPECT_EQ(rendered(),
              "\r\n{\\stylesheet"
              "\r\n{\\*\\cs100 \\i a;}"
              "\r\n{\\*\\cs101 \\additive \\sbasedon100 \\b b;}"
              "\r\n{\\*\\cs102  c;}}");
}

TEST_F(StyleSheetTable, GivesNormalNoNumberAnywhere) {
    table.loadStyleSheetFromMemory(
        "{name: title; style-def: s; format: \\b}"
        "{name: NORMAL; style-def: s; format: \\f9}"
        "{name: body; style-def: s; format: \\i; based-on: normal; next: title}");

    EXPECT_EQ(rendered(),
              "\r\n{\\stylesheet"
              "\r\n{\\s100 \\b title;}"
              "\r\n{\\f9 normal;}"
              "\r\n{\\s102 \\i \\sbasedon101 \\snext100 body;}}");
}

TEST_F(StyleSheetTable, GivesACharacterStyleNamedNormalItsNumber) {
    table.loadStyleSheetFromMemory("{name: normal; style-def: cs; format: \\b}");

    EXPECT_EQ(rendered(), "\r\n{\\stylesheet\r\n{\\*\\cs100 \\b normal;}}");
}

TEST_F(StyleSheetTable, TrimsTheEntryOfAParagraphStyleOnly) {
    table.loadStyleSheetFromMemory(
        "{name: normal; style-def: s}"
        "{name:; style-def: s}"
        "{name:; style-def: cs}");

    EXPECT_EQ(rendered(), "\r\n{\\stylesheet\r\n{normal;}\r\n{\\s101;}\r\n{\\*\\cs100  ;}}");
}

TEST_F(StyleSheetTable, NumbersParagraphAndCharacterStylesSeparately) {
    table.loadStyleSheetFromMemory(sheet);

    EXPECT_EQ(table.GetParagraphStyle("normal"), "\\s100\\f9 ");
    EXPECT_EQ(table.GetParagraphStyle("title"), "\\s101\\b ");
    EXPECT_EQ(table.GetCharacterStyle("bold"), "\\cs100\\b ");
}

TEST_F(StyleSheetTable, NumbersEveryNameOfADefinition) {
    table.loadStyleSheetFromMemory(
        "{name: title, heading; style-def: s; format: \\b; based-on: heading}");

    EXPECT_EQ(table.GetParagraphStyle("title"), "\\s100\\b ");
    EXPECT_EQ(table.GetParagraphStyle("heading"), "\\s101\\b ");
    EXPECT_EQ(rendered(),
              "\r\n{\\stylesheet\r\n{\\s100 \\b \\sbasedon101 title;}"
              "\r\n{\\s101 \\b \\sbasedon101 heading;}}");
}

TEST_F(StyleSheetTable, WritesNoReferenceToAnUnknownStyle) {
    table.loadStyleSheetFromMemory(
        "{name: a; style-def: s; based-on: nosuch; next: shaded}"
        "{name: b; style-def: cs; based-on: a}"
        "{name: shaded; style-def: cell}");

    EXPECT_EQ(rendered(), "\r\n{\\stylesheet\r\n{\\s100  a;}\r\n{\\*\\cs100  b;}}");
}

TEST_F(StyleSheetTable, WritesNoReferenceWhereNoneIsNamed) {
    table.loadStyleSheetFromMemory(
        "{name:; style-def: s; format: \\b}{name: a; style-def: s; next: ; based-on}");

    EXPECT_EQ(rendered(), "\r\n{\\stylesheet\r\n{\\s100 \\b;}\r\n{\\s101  a;}}");
}

TEST_F(StyleSheetTable, WritesReferencesToLaterStyles) {
    table.loadStyleSheetFromMemory(
        "{name: a; style-def: s; based-on: b; next: b}{name: b; style-def: s}");

    EXPECT_EQ(rendered(),
              "\r\n{\\stylesheet\r\n{\\s100  \\sbasedon101 \\snext101 a;}\r\n{\\s101  b;}}");
}

TEST_F(StyleSheetTable, FilesATwiceDefinedNameTwiceAndFindsTheFirst) {
    table.loadStyleSheetFromMemory(
        "{name: a; style-def: s; format: \\b}{name: a; style-def: s; format: \\i}");

    EXPECT_EQ(rendered(), "\r\n{\\stylesheet\r\n{\\s100 \\b a;}\r\n{\\s101 \\i a;}}");
    EXPECT_EQ(table.GetParagraphStyle("a"), "\\s100\\b ");
}

TEST_F(StyleSheetTable, PutsTheFirstParagraphStyleInThePlaceOfAnUnknownOne) {
    table.loadStyleSheetFromMemory(sheet);

    EXPECT_EQ(table.GetParagraphStyle("nosuch"), "\\s0\\f9 ");
    EXPECT_EQ(table.GetParagraphStyle(""), "\\s0\\f9 ");
    EXPECT_EQ(table.GetParagraphStyle("bold"), "\\s0\\f9 ");
}

TEST_F(StyleSheetTable, ReturnsNothingForAParagraphStyleWhenItHasNone) {
    table.loadStyleSheetFromMemory("{name: bold; style-def: cs; format: \\b}");

    EXPECT_EQ(table.GetParagraphStyle("bold"), "");
    EXPECT_EQ(table.GetParagraphStyle("nosuch"), "");
}

TEST_F(StyleSheetTable, ReturnsNothingForAnUnknownCharacterStyle) {
    table.loadStyleSheetFromMemory(sheet);

    EXPECT_EQ(table.GetCharacterStyle("nosuch"), "");
    EXPECT_EQ(table.GetCharacterStyle("title"), "");
}

TEST_F(StyleSheetTable, LooksNamesUpWithoutRegardToCase) {
    table.loadStyleSheetFromMemory(sheet);

    EXPECT_EQ(table.GetParagraphStyle("TITLE"), "\\s101\\b ");
    EXPECT_EQ(table.GetCharacterStyle("Bold"), "\\cs100\\b ");
    EXPECT_EQ(table.getCellStyleBackColor("Shaded"), 24);
    EXPECT_EQ(table.GetMarkedFieldStyle("SHADED"), "navy-blue");
    EXPECT_TRUE(table.IsStyleDefined("sHaDeD"));
}

TEST_F(StyleSheetTable, DoesNotTrimTheNamesThatItLooksUp) {
    table.loadStyleSheetFromMemory(sheet);

    EXPECT_EQ(table.GetParagraphStyle("title "), table.GetParagraphStyle("nosuch"));
    EXPECT_EQ(table.GetCharacterStyle("bold "), "");
    EXPECT_EQ(table.getCellStyleBackColor(" shaded"), 0);
    EXPECT_EQ(table.GetMarkedFieldStyle("shaded "), "");
    EXPECT_FALSE(table.IsStyleDefined(" shaded "));
}

TEST_F(StyleSheetTable, IsNotChangedByALoadThatFailsWhenNothingWasLoaded) {
    EXPECT_EQ(errorNumberOf([&] { table.loadStyleSheetFromMemory(badSheet); }), 445);
    table.setStyleSheetFile("nosuch.rtfss");

    EXPECT_EQ(owner.changes, 0);
}

TEST_F(StyleSheetTable, KnowsWhetherWordsOfItsCharacterStylesHoldTokens) {
    table.loadStyleSheetFromMemory("{name: <x; style-def: s; format: <y=>}");
    EXPECT_FALSE(table.CharacterWordsHoldTokens());
    table.loadStyleSheetFromMemory("{name: x; style-def: cs; format: <y=>}");
    EXPECT_TRUE(table.CharacterWordsHoldTokens());
    table.loadStyleSheetFromMemory("");
    EXPECT_FALSE(table.CharacterWordsHoldTokens());
}

TEST_F(StyleSheetTable, KnowsTheColorOfACellStyle) {
    table.loadStyleSheetFromMemory(
        "{name: a; style-def: cell; format: Dark-Golden-Rod}"
        "{name: b; style-def: cell; format: slate-blue}"
        "{name: c; style-def: cell; format: sky-blue}"
        "{name: d, e; style-def: cell; format: ^fred^vdark-}");

    EXPECT_EQ(table.getCellStyleBackColor("a"), 54);
    EXPECT_EQ(table.getCellStyleBackColor("b"), 33);
    EXPECT_EQ(table.getCellStyleBackColor("c"), 34);
    EXPECT_EQ(table.getCellStyleBackColor("d"), 12);
    EXPECT_EQ(table.getCellStyleBackColor("e"), 12);
}

TEST_F(StyleSheetTable, HasNoColorForACellStyleWithoutOne) {
    table.loadStyleSheetFromMemory(
        "{name: a; style-def: cell; format: none}"
        "{name: b; style-def: cell; format: nosuch}"
        "{name: c; style-def: cell}"
        "{name: d; style-def: s; format: red}");

    for (const char* name : {"a", "b", "c", "d", "nosuch", ""}) {
        EXPECT_EQ(table.getCellStyleBackColor(name), 0) << name;
    }
}

TEST_F(StyleSheetTable, ReturnsTheFormatOfACellStyleForAMarkedField) {
    table.loadStyleSheetFromMemory(sheet);

    EXPECT_EQ(table.GetMarkedFieldStyle("shaded"), "navy-blue");
    EXPECT_EQ(table.GetMarkedFieldStyle("title"), "");
    EXPECT_EQ(table.GetMarkedFieldStyle("nosuch"), "");
}

TEST_F(StyleSheetTable, FilesADefinitionWithoutKindWithTheCellStyles) {
    table.loadStyleSheetFromMemory("{name: plain; format: red}");

    EXPECT_EQ(table.getCellStyleBackColor("plain"), 30);
    EXPECT_EQ(rendered(), "\r\n{\\stylesheet}");
}

TEST_F(StyleSheetTable, KnowsWhetherAStyleOfAnyKindIsDefined) {
    table.loadStyleSheetFromMemory(sheet);

    EXPECT_TRUE(table.IsStyleDefined("title"));
    EXPECT_TRUE(table.IsStyleDefined("bold"));
    EXPECT_TRUE(table.IsStyleDefined("shaded"));
    EXPECT_FALSE(table.IsStyleDefined("nosuch"));
    EXPECT_FALSE(table.IsStyleDefined(""));
}

TEST_F(StyleSheetTable, ForgetsTheOldStylesWithEveryLoad) {
    table.loadStyleSheetFromMemory(sheet);

    table.loadStyleSheetFromMemory("{name: other; style-def: s; format: \\i}");

    EXPECT_EQ(rendered(), "\r\n{\\stylesheet\r\n{\\s100 \\i other;}}");
    EXPECT_EQ(table.GetParagraphStyle("title"), "\\s0\\i ");
    EXPECT_EQ(table.GetCharacterStyle("bold"), "");
    EXPECT_EQ(table.getCellStyleBackColor("shaded"), 0);
    EXPECT_EQ(owner.changes, 3);
}

TEST_F(StyleSheetTable, IsUnloadedAfterABadText) {
    table.loadStyleSheetFromMemory(sheet);

    EXPECT_EQ(errorNumberOf([&] { table.loadStyleSheetFromMemory(badSheet); }), 445);

    expectUnloaded();
    EXPECT_FALSE(table.IsStyleDefined("early"));
    EXPECT_EQ(owner.changes, 2);
}

TEST_F(StyleSheetTable, ReportsWhatIsWrongWithAText) {
    try {
        table.loadStyleSheetFromMemory("{name: a; style-def: s; colour: red}");
        FAIL();
    } catch (const RtfError& error) {
        EXPECT_EQ(error.number, 445);
        EXPECT_EQ(error.description,
                  "Error while processing stylesheet.\r\ncolour is not a valid keyword.");
    }
}

TEST_F(StyleSheetTable, IsUnloadedAfterATextWithUnbalancedBraces) {
    table.loadStyleSheetFromMemory(sheet);

    EXPECT_EQ(errorNumberOf([&] { table.loadStyleSheetFromMemory("{"); }), 31037);
    expectUnloaded();
    EXPECT_EQ(errorNumberOf([&] { table.loadStyleSheetFromMemory("}"); }), 31037);
    expectUnloaded();
}

TEST_F(StyleSheetTable, IsLoadedAgainAfterABadText) {
    EXPECT_EQ(errorNumberOf([&] { table.loadStyleSheetFromMemory(badSheet); }), 445);

    table.loadStyleSheetFromMemory("{name: a; style-def: s}");

    EXPECT_EQ(rendered(), "\r\n{\\stylesheet\r\n{\\s100  a;}}");
}

TEST_F(StyleSheetTable, LoadsStylesFromAFile) {
    platform.files["style.rtfss"] = sheet;

    table.setStyleSheetFile("style.rtfss");

    EXPECT_TRUE(table.StyleSheetOk());
    EXPECT_EQ(table.StyleSheetFile(), "style.rtfss");
    EXPECT_EQ(table.GetParagraphStyle("title"), "\\s101\\b ");
    EXPECT_EQ(owner.changes, 1);
}

TEST_F(StyleSheetTable, ReadsAFileAsCodePage1252) {
    platform.files["style.rtfss"] = "{name: caf\xE9; style-def: s; format: \\b}";

    table.setStyleSheetFile("style.rtfss");

    EXPECT_EQ(table.GetParagraphStyle("CAF\xC3\x89"), "\\s100\\b ");
}

TEST_F(StyleSheetTable, TakesNoRegardOfAFilesExtension) {
    platform.files["style.txt"] = sheet;

    table.setStyleSheetFile("style.txt");

    EXPECT_TRUE(table.StyleSheetOk());
}

TEST_F(StyleSheetTable, IsUnloadedByAFileThatIsMissingAndKeepsItsName) {
    table.loadStyleSheetFromMemory(sheet);

    table.setStyleSheetFile("nosuch.rtfss");

    expectUnloaded();
    EXPECT_EQ(table.StyleSheetFile(), "nosuch.rtfss");
    EXPECT_EQ(owner.changes, 2);
    EXPECT_EQ(platform.count("readFile"), 0U);
}

TEST_F(StyleSheetTable, TakesAFileThatCannotBeReadForEmpty) {
    platform.files["style.rtfss"] = sheet;
    platform.fail("readFile", RunTimeError::PathFileAccessError);

    table.setStyleSheetFile("style.rtfss");

    EXPECT_TRUE(table.StyleSheetOk());
    EXPECT_EQ(table.StyleSheetFile(), "style.rtfss");
    EXPECT_EQ(rendered(), "\r\n{\\stylesheet}");
    EXPECT_EQ(owner.changes, 1);
}

TEST_F(StyleSheetTable, ForgetsTheNameOfABadFile) {
    platform.files["style.rtfss"] = badSheet;
    table.loadStyleSheetFromMemory(sheet);

    EXPECT_EQ(errorNumberOf([&] { table.setStyleSheetFile("style.rtfss"); }), 445);

    expectUnloaded();
    EXPECT_EQ(table.StyleSheetFile(), "");
    EXPECT_EQ(owner.changes, 2);
}

TEST_F(StyleSheetTable, ForgetsTheFilesNameWhenATextIsLoaded) {
    platform.files["style.rtfss"] = sheet;
    table.setStyleSheetFile("style.rtfss");

    table.loadStyleSheetFromMemory("{name: a; style-def: s}");

    EXPECT_EQ(table.StyleSheetFile(), "");
    EXPECT_TRUE(table.StyleSheetOk());
}

TEST_F(StyleSheetTable, ForgetsTheFilesNameWhenABadTextIsLoaded) {
    platform.files["style.rtfss"] = sheet;
    table.setStyleSheetFile("style.rtfss");

    EXPECT_EQ(errorNumberOf([&] { table.loadStyleSheetFromMemory(badSheet); }), 445);

    EXPECT_EQ(table.StyleSheetFile(), "");
}

TEST_F(StyleSheetTable, ReadsItsFileAnewWhenItsOwnNameIsSet) {
    platform.files["style.rtfss"] = sheet;
    table.setStyleSheetFile("style.rtfss");
    platform.files["style.rtfss"] = "{name: a; style-def: s}";

    table.setStyleSheetFile(table.StyleSheetFile());

    EXPECT_EQ(table.StyleSheetFile(), "style.rtfss");
    EXPECT_EQ(rendered(), "\r\n{\\stylesheet\r\n{\\s100  a;}}");
}

class RandomStyleSheet {
public:
    explicit RandomStyleSheet(unsigned seed) : random_(seed) {
        for (auto count = below(15); count > 0; --count) {
            addDefinition();
        }
    }

    std::string text;

    std::string name() {
        static const std::vector<std::string> names{"normal", "a", "b", "c d", "", "a^b", "ab"};
        return names[below(names.size())];
    }

private:
    std::size_t below(std::size_t bound) { return random_() % bound; }

    void addDefinition() {
        text += "{ name: " + name();
        for (auto count = below(3); count > 0; --count) {
            text += ", " + name();
        }
        for (auto count = below(7); count > 0; --count) {
            addItem();
        }
        text += " }\r\n";
    }

    void addItem() {
        static const std::vector<std::string> kinds{"s", "s", "cs", "cell"};
        static const std::vector<std::string> formats{"\\b", "\\f1 \\b", "navy-blue", "", "\\i^ba"};
        switch (below(6)) {
            case 0:
            case 1:
                text += "; style-def: " + kinds[below(kinds.size())];
                break;
            case 2:
                text += "; format: " + formats[below(formats.size())];
                break;
            case 3:
                text += below(2) == 0 ? "; additive: yes" : "; additive: no";
                break;
            case 4:
                text += "; based-on: " + name();
                break;
            default:
                text += "; next: " + name();
                break;
        }
    }

    std::mt19937 random_;
};

TEST_F(StyleSheetTable, DoesWhatThePlainStepsDo) {
    for (unsigned seed = 1; seed <= 600; ++seed) {
        RandomStyleSheet random(seed);
        SCOPED_TRACE(random.text);
        const plain::StyleSheet plain(random.text);
        ASSERT_EQ(plain.error().description, "");

        table.loadStyleSheetFromMemory(random.text);

        ASSERT_EQ(rendered(), plain.group());
        for (int i = 0; i < 20; ++i) {
            const std::string name = random.name();
            ASSERT_EQ(table.GetParagraphStyle(name), plain.paragraphWords(name));
            ASSERT_EQ(table.GetCharacterStyle(name), plain.characterWords(name));
            ASSERT_EQ(table.GetMarkedFieldStyle(name), plain.cellFormat(name));
            ASSERT_EQ(table.getCellStyleBackColor(name), plain.cellColor(name));
            ASSERT_EQ(table.IsStyleDefined(name), plain.isDefined(name));
        }
    }
}

TEST_F(StyleSheetTable, LoadsAndWritesManyStyles) {
    std::string text;
    for (int i = 1; i <= 20'000; ++i) {
        const std::string number = std::to_string(i);
        text += "{name: p" + number + "; style-def: s; format: \\fs" + number +
                "; based-on: p1; next: p" + number + "}";
    }

    table.loadStyleSheetFromMemory(text);

    EXPECT_EQ(table.GetParagraphStyle("p20000"), "\\s20099\\fs20000 ");
    EXPECT_TRUE(
        rendered().ends_with("\r\n{\\s20099 \\fs20000 \\sbasedon100 \\snext20099 p20000;}}"));
}

}  // namespace
}  // namespace quorvane
