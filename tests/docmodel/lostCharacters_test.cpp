// The observer of the characters that a document loses on its way into a file.

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "tests/docmodel/documentParts.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LostCharacters : public testing::Test {
protected:
    LostCharacters() {
        document->setLostCharacterObserver(
            [this](const LostCharacter& character) { lost.push_back(character); });
        document->TableRows()->AddTail();
        document->TableRows()->Item(1)->TableCells()->AddTail();
        document->TableRows()->Item(1)->TableCells()->Item(1)->Paragraphs()->AddTail();
    }

    Ref<CRtfTableCell> cell() { return document->TableRows()->Item(1)->TableCells()->Item(1); }
    Ref<CRtfParagraph> paragraph() { return cell()->Paragraphs()->Item(1); }

    /// What is lost, each with the byte of the file that stands in for it.
    std::vector<std::string> lostIn(const std::string& file) {
        std::vector<std::string> list;
        for (const LostCharacter& character : lost) {
            const char byte =
                character.offset ? file.at(static_cast<std::size_t>(*character.offset)) : '-';
            list.push_back(character.character + byte);
        }
        return list;
    }

    FakePlatform platform;
    Ref<CRtfDoc> document = CRtfDoc::create(platform);
    std::vector<LostCharacter> lost;
};

TEST_F(LostCharacters, AreReportedWithTheirPlaceInTheFile) {
    paragraph()->setText("? \u00E9 \u0159 \U0001F600 \u20AC \xFF");
    document->Commit("a.rtf");
    EXPECT_THAT(lostIn(platform.files["a.rtf"]), ElementsAre("\u0159?", "\U0001F600?", "\xFF?"));
}

TEST_F(LostCharacters, AreReportedWhereverATextIsDividedForTheFile) {
    const int count = 200'000;
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += "\u0159x";
    }
    paragraph()->setText(text);
    for (const bool exists : {false, true}) {
        lost.clear();
        document->Commit("a.rtf");
        const std::string file = platform.files["a.rtf"];
        ASSERT_EQ(lost.size(), static_cast<std::size_t>(count)) << exists;
        for (const LostCharacter& character : lost) {
            ASSERT_EQ(file.substr(static_cast<std::size_t>(*character.offset), 2), "?x");
        }
    }
}

TEST_F(LostCharacters, AreReportedOnceForEachFile) {
    paragraph()->setText("\u0159");
    document->Commit("a.rtf");
    document->Contents();
    document->Commit("a.rtf");
    EXPECT_EQ(lost.size(), 2u);
}

TEST_F(LostCharacters, AreThoseOfStyleNamesToo) {
    document->LoadStyleSheetFromMemmory("{name: \u0159; style-def: s; format: \\f9}");
    document->Commit("a.rtf");
    EXPECT_THAT(lostIn(platform.files["a.rtf"]), ElementsAre("\u0159?"));
}

TEST_F(LostCharacters, OfMarkedFieldsAreReportedWhenTheDataIsSet) {
    paragraph()->asMarkedField(Value("\u0159\u00E9"));
    EXPECT_THAT(lostIn({}), ElementsAre("\u0159-"));
    cell()->asMarkedField(Value("a\u4E2D"));
    EXPECT_THAT(lostIn({}), ElementsAre("\u0159-", "\u4E2D-"));
    document->Commit("a.rtf");
    EXPECT_EQ(lost.size(), 2u);
}

TEST_F(LostCharacters, AreThereNoneInATextOfWindows1252) {
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    paragraph()->setText(utf8FromCodePage1252(bytes));
    document->Commit("a.rtf");
    EXPECT_THAT(lost, IsEmpty());
}

TEST_F(LostCharacters, LeaveTheFileAsItIsWithoutAnObserver) {
    paragraph()->setText("\u0159 \u4E2D");
    document->Commit("a.rtf");
    document->setLostCharacterObserver({});
    document->Commit("b.rtf");
    document->setLostCharacterObserver(
        [](const LostCharacter&) { throw std::runtime_error("refused"); });
    document->Commit("c.rtf");
    EXPECT_EQ(lost.size(), 2u);
    EXPECT_EQ(platform.files["a.rtf"], platform.files["b.rtf"]);
    EXPECT_EQ(platform.files["a.rtf"], platform.files["c.rtf"]);
}

}  // namespace
}  // namespace quorvane
