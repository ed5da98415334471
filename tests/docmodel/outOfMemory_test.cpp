#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/docmodel/documentParts.h"
#include "tests/support/failingAllocations.h"

namespace quorvane {
namespace {

// Whatever call runs out of memory leaves the document as it was: its text is the same and it does
// not count as changed.

struct Subject {
    explicit Subject(int cellCount) : parts(cellCount) {
        for (int position = 1; position <= cellCount; ++position) {
            parts.cell(position)->Paragraphs()->AddTail("para");
            parts.cell(position)->Paragraphs()->PeekTail()->setText("text");
        }
        text = rowsText(*parts.document);
    }

    RowDocument parts;
    std::string text;
};

template <class Attempt>
void expectUnchangedByFailures(int cellCount, Attempt attempt, int fewestFailures) {
    const auto prepare = [cellCount] { return std::make_unique<Subject>(cellCount); };
    const auto tryIt = [&attempt](const std::unique_ptr<Subject>& subject) {
        attempt(subject->parts);
    };
    const auto check = [](const std::unique_ptr<Subject>& subject) {
        ASSERT_FALSE(subject->parts.document->Changed());
        ASSERT_EQ(rowsText(*subject->parts.document), subject->text);
    };

    EXPECT_GE(failEachAllocation(prepare, tryIt, check), fewestFailures);
}

TEST(OutOfMemory, NoDocumentIsMade) {
    const auto prepare = [] { return Ref<CRtfDoc>(); };
    const auto attempt = [](Ref<CRtfDoc>& document) { document = CRtfDoc::create(); };
    const auto check = [](const Ref<CRtfDoc>& document) { ASSERT_EQ(document, nullptr); };

    EXPECT_GE(failEachAllocation(prepare, attempt, check), 4);
}

TEST(OutOfMemory, NoRowIsAdded) {
    for (const Value& key : {Value(Missing{}), Value("a key that is not short")}) {
        expectUnchangedByFailures(
            1, [&key](RowDocument& parts) { parts.document->TableRows()->AddHead(key); }, 2);
    }
}

TEST(OutOfMemory, NoCellIsAdded) {
    for (const int count : {0, 1, 4}) {
        expectUnchangedByFailures(
            count, [](RowDocument& parts) { parts.cells->AddTail("a key that is not short"); }, 4);
    }
}

TEST(OutOfMemory, NoParagraphIsAdded) {
    expectUnchangedByFailures(
        1,
        [](RowDocument& parts) {
            parts.cell(1)->Paragraphs()->add("a key that is not short", "para");
        },
        3);
}

TEST(OutOfMemory, NothingIsRefiled) {
    expectUnchangedByFailures(
        2,
        [](RowDocument& parts) { parts.document->TableRows()->refile(parts.row, "another key"); },
        3);
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.cells->refile(parts.cell(1), "another key"); }, 3);
    expectUnchangedByFailures(
        1,
        [](RowDocument& parts) {
            const Ref<CRtfParagraphs> paragraphs = parts.cell(1)->Paragraphs();
            paragraphs->refile(paragraphs->Item(1), "another key");
        },
        2);
}

TEST(OutOfMemory, NoTextOrStyleIsSet) {
    expectUnchangedByFailures(
        1, [](RowDocument& parts) { parts.cell(1)->Paragraphs()->Item(1)->setText("new"); }, 1);
    expectUnchangedByFailures(
        1, [](RowDocument& parts) { parts.cell(1)->Paragraphs()->Item(1)->setStyle("new"); }, 1);
    expectUnchangedByFailures(
        1, [](RowDocument& parts) { parts.cell(1)->setStyle("new"); }, 1);
}

TEST(OutOfMemory, NoCellBecomesAMarkedField) {
    expectUnchangedByFailures(
        1, [](RowDocument& parts) { parts.cell(1)->asMarkedField("data that is not short"); }, 2);
}

TEST(OutOfMemory, TheStructureIsNotCleared) {
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.document->ClearStructure(); }, 3);
}

TEST(OutOfMemory, AnUnrenderedDocumentCountsAsChanged) {
    const auto prepare = [] {
        auto subject = std::make_unique<Subject>(3);
        CRtfDoc& document = *subject->parts.document;
        document.LoadStyleSheetFromMemmory("{name: bold; style-def: cs; format: \\b}");
        subject->parts.cell(2)->Paragraphs()->Item(1)->setText("<bold=" + std::string(20'000, 'x') +
                                                               ">");
        document.setChanged(false);
        return subject;
    };
    const auto attempt = [](const std::unique_ptr<Subject>& subject) {
        subject->parts.document->Refresh();
    };
    const auto check = [](const std::unique_ptr<Subject>& subject) {
        CRtfDoc& document = *subject->parts.document;
        ASSERT_TRUE(document.Changed());
        ASSERT_NE(document.Contents().find("{\\cs100\\b xxx"), std::string::npos);
        ASSERT_FALSE(document.Changed());
    };

    EXPECT_GE(failEachAllocation(prepare, attempt, check), 3);
}

TEST(OutOfMemory, NoStylesheetIsLoaded) {
    const auto prepare = [] { return std::make_unique<Subject>(1); };
    const auto attempt = [](const std::unique_ptr<Subject>& subject) {
        subject->parts.document->LoadStyleSheetFromMemmory(
            "{name: a, b; style-def: s; format: \\b}{name: c; style-def: cs}");
    };
    const auto check = [](const std::unique_ptr<Subject>& subject) {
        ASSERT_FALSE(subject->parts.document->StyleSheetOk());
        ASSERT_FALSE(subject->parts.document->Changed());
        ASSERT_EQ(rowsText(*subject->parts.document), subject->text);
    };

    EXPECT_GE(failEachAllocation(prepare, attempt, check), 10);
}

}  // namespace
}  // namespace quorvane
