#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/docmodel/documentParts.h"
#include "tests/docmodel/picture/pictureFiles.h"
#include "tests/support/failingAllocations.h"

namespace quorvane {
namespace {

// Whatever call runs out of memory leaves the document as it was: its text is the same, its
// elements are found by the same keys, and it does not count as changed. The same call made again
// has the result that it would have had at first.

constexpr const char* newKey = "a key that is not short";

/// Whether the element can be found by the key.
template <class Collection>
bool holds(const Collection& collection, const char* key) {
    try {
        return collection.Item(key) != nullptr;
    } catch (const RtfError&) {
        return false;
    }
}

struct Subject {
    explicit Subject(int cellCount) : parts(cellCount) {
        for (int position = 1; position <= cellCount; ++position) {
            parts.cell(position)->Paragraphs()->AddTail("para");
            parts.cell(position)->Paragraphs()->PeekTail()->setText("text");
        }
        parts.document->Refresh();
    }

    /// All that calls can change, as a text. It renders the document.
    std::string state() const {
        std::string all = parts.document->Changed() ? "changed" : "unchanged";
        const auto note = [&all](const auto& collection) {
            all += std::to_string(collection.Count());
            all += holds(collection, newKey) ? 'y' : 'n';
        };
        note(*parts.document->TableRows());
        note(*parts.cells);
        for (int position = 1; position <= parts.cells->Count(); ++position) {
            note(*parts.cell(position)->Paragraphs());
        }
        return all + rowsText(*parts.document);
    }

    RowDocument parts;
};

template <class Attempt>
void expectUnchangedByFailures(int cellCount, Attempt attempt, int fewestFailures) {
    const std::string before = Subject(cellCount).state();
    Subject undisturbed(cellCount);
    attempt(undisturbed.parts);
    const std::string after = undisturbed.state();
    ASSERT_NE(after, before);
    const auto prepare = [cellCount] { return std::make_unique<Subject>(cellCount); };
    const auto tryIt = [&attempt](const std::unique_ptr<Subject>& subject) {
        attempt(subject->parts);
    };
    const auto check = [&](const std::unique_ptr<Subject>& subject) {
        ASSERT_EQ(subject->state(), before);
        ASSERT_NO_THROW(attempt(subject->parts));
        ASSERT_EQ(subject->state(), after);
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
    for (const Value& key : {Value(Missing{}), Value(newKey)}) {
        expectUnchangedByFailures(
            1, [&key](RowDocument& parts) { parts.document->TableRows()->AddHead(key); }, 2);
    }
}

TEST(OutOfMemory, NoCellIsAdded) {
    for (const int count : {0, 1, 4}) {
        expectUnchangedByFailures(
            count, [](RowDocument& parts) { parts.cells->AddTail(newKey); }, 4);
    }
}

TEST(OutOfMemory, NoParagraphIsAdded) {
    expectUnchangedByFailures(
        1, [](RowDocument& parts) { parts.cell(1)->Paragraphs()->add(newKey, "para"); }, 3);
}

TEST(OutOfMemory, NothingIsRefiled) {
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.document->TableRows()->refile(parts.row, newKey); }, 3);
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.cells->refile(parts.cell(1), newKey); }, 3);
    expectUnchangedByFailures(
        1,
        [](RowDocument& parts) {
            const Ref<CRtfParagraphs> paragraphs = parts.cell(1)->Paragraphs();
            paragraphs->refile(paragraphs->Item(1), newKey);
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

// Widths of usual size need no memory.
constexpr auto wide = static_cast<tBorderWidth>(20'000);

TEST(OutOfMemory, NoWideBorderIsSet) {
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.cell(1)->setTopBorder(wide); }, 1);
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.row->setLeftBorder(wide); }, 1);
}

TEST(OutOfMemory, NoWideBorderIsReplaced) {
    for (const tBorderWidth width : {static_cast<tBorderWidth>(wide + 1), eThin}) {
        const auto prepare = [] {
            auto subject = std::make_unique<Subject>(2);
            subject->parts.row->setLeftBorder(wide);
            subject->parts.cell(1)->setTopBorder(wide);
            subject->parts.document->Refresh();
            return subject;
        };
        const auto attempt = [width](const std::unique_ptr<Subject>& subject) {
            subject->parts.cell(1)->setTopBorder(width);
        };
        const std::string before = prepare()->state();
        const auto undisturbed = prepare();
        attempt(undisturbed);
        const std::string after = undisturbed->state();
        const auto check = [&](const std::unique_ptr<Subject>& subject) {
            ASSERT_EQ(subject->parts.cell(1)->TopBorder(), wide);
            ASSERT_EQ(subject->state(), before);
            ASSERT_NO_THROW(attempt(subject));
            ASSERT_EQ(subject->state(), after);
        };

        // The left border, shared with the other cell, stays wide.
        EXPECT_EQ(failEachAllocation(prepare, attempt, check), 1);
    }
}

// Colors of usual size need no memory.
constexpr auto unusualColor = static_cast<tColorIndex>(1000);

TEST(OutOfMemory, NoUnusualColorIsSet) {
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.cell(1)->setBackColor(unusualColor); }, 1);
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.row->setBackColor(unusualColor); }, 2);
}

TEST(OutOfMemory, NoCellOfAnUnusualColorIsRefiled) {
    const auto prepare = [] {
        auto subject = std::make_unique<Subject>(1);
        subject->parts.cell(1)->setBackColor(unusualColor);
        subject->parts.document->Refresh();
        return subject;
    };
    const auto attempt = [](const std::unique_ptr<Subject>& subject) {
        subject->parts.cells->refile(subject->parts.cell(1), newKey);
    };
    const std::string before = prepare()->state();
    const auto check = [&](const std::unique_ptr<Subject>& subject) {
        ASSERT_EQ(subject->state(), before);
        ASSERT_NO_THROW(attempt(subject));
        ASSERT_EQ(subject->parts.cell(1)->BackColor(), unusualColor);
    };

    EXPECT_GE(failEachAllocation(prepare, attempt, check), 4);
}

TEST(OutOfMemory, ElementsAreRemovedAllTheSame) {
    // Removing needs no memory: not one allocation may be made.
    const auto expectRemoved = [](const auto& remove) {
        Subject undisturbed(3);
        const std::string before = undisturbed.state();
        remove(undisturbed.parts);
        const std::string after = undisturbed.state();
        ASSERT_NE(after, before);
        Subject subject(3);
        failingAllocations::successesLeft = 0;
        try {
            remove(subject.parts);
        } catch (const std::bad_alloc&) {
            failingAllocations::successesLeft = -1;
            ADD_FAILURE() << "it needs memory";
        }
        failingAllocations::successesLeft = -1;
        ASSERT_EQ(subject.state(), after);
    };
    const Value key("para");

    expectRemoved([](RowDocument& parts) { parts.document->TableRows()->Remove(1); });
    expectRemoved([](RowDocument& parts) { parts.document->TableRows()->RemoveHead(); });
    expectRemoved([](RowDocument& parts) { parts.document->TableRows()->removeTail(); });
    expectRemoved([](RowDocument& parts) { parts.cells->Remove(1); });
    expectRemoved([](RowDocument& parts) { parts.cells->Remove(2); });
    expectRemoved([](RowDocument& parts) { parts.cells->RemoveHead(); });
    expectRemoved([](RowDocument& parts) { parts.cells->removeTail(); });
    expectRemoved([](RowDocument& parts) { parts.cell(1)->Paragraphs()->Remove(1); });
    expectRemoved([&key](RowDocument& parts) { parts.cell(1)->Paragraphs()->Remove(key); });
    expectRemoved([](RowDocument& parts) { parts.cell(1)->Paragraphs()->RemoveHead(); });
    expectRemoved([](RowDocument& parts) { parts.cell(1)->Paragraphs()->removeTail(); });
}

TEST(OutOfMemory, NoCellBecomesAMarkedField) {
    expectUnchangedByFailures(
        1, [](RowDocument& parts) { parts.cell(1)->asMarkedField("data that is not short"); }, 2);
}

TEST(OutOfMemory, NoColumnsAreSet) {
    const std::vector<std::int32_t> widths{1000, 2000};
    expectUnchangedByFailures(
        2, [&](RowDocument& parts) { parts.document->setColumnWidths(widths); }, 2);
    expectUnchangedByFailures(
        2, [&](RowDocument& parts) { parts.row->setColumnWidths(widths); }, 3);
}

TEST(OutOfMemory, NoRowSettingIsSet) {
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.row->setRepeatsAsHeading(true); }, 2);
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.row->setKeepTogether(true); }, 2);
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.row->setKeepWithNext(true); }, 2);
}

TEST(OutOfMemory, NoSpanIsSet) {
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.cell(1)->setColumnSpan(2); }, 2);
}

TEST(OutOfMemory, NoPageHeaderIsSet) {
    constexpr const char* text = "a text that is not short";
    expectUnchangedByFailures(
        1, [=](RowDocument& parts) { parts.document->setPageHeader(text, "{page}", text); }, 4);
    expectUnchangedByFailures(
        1, [=](RowDocument& parts) { parts.document->setPageFooter("", "", text); }, 3);
}

TEST(OutOfMemory, NoPictureIsSet) {
    expectUnchangedByFailures(
        1,
        [](RowDocument& parts) {
            parts.cell(1)->Paragraphs()->Item(1)->setPicture(RtfPicture(twoPixels));
        },
        4);
}

TEST(OutOfMemory, NoColorAndNoFontIsAdded) {
    const auto expectSameNumber = [](const auto& add) {
        const auto prepare = [] { return std::make_unique<Subject>(1); };
        const auto attempt = [&](const std::unique_ptr<Subject>& subject) {
            add(*subject->parts.document);
        };
        const std::string before = prepare()->parts.document->Contents();
        const auto check = [&](const std::unique_ptr<Subject>& subject) {
            CRtfDoc& document = *subject->parts.document;
            ASSERT_FALSE(document.Changed());
            document.Refresh();
            ASSERT_EQ(document.Contents(), before);
            const auto number = add(document);
            ASSERT_EQ(add(document), number);
            ASSERT_NE(document.Contents(), before);
        };

        EXPECT_GE(failEachAllocation(prepare, attempt, check), 3);
    };

    expectSameNumber([](CRtfDoc& document) { return document.addColor(1, 2, 3); });
    expectSameNumber(
        [](CRtfDoc& document) { return document.addFont("a name that is not short"); });
}

TEST(OutOfMemory, TheStructureIsNotCleared) {
    expectUnchangedByFailures(
        2, [](RowDocument& parts) { parts.document->ClearStructure(); }, 2);
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
    const std::string before = Subject(1).state();
    const auto prepare = [] { return std::make_unique<Subject>(1); };
    const auto attempt = [](const std::unique_ptr<Subject>& subject) {
        subject->parts.document->LoadStyleSheetFromMemmory(
            "{name: a, b; style-def: s; format: \\b}{name: c; style-def: cs}");
    };
    const auto check = [&](const std::unique_ptr<Subject>& subject) {
        ASSERT_FALSE(subject->parts.document->StyleSheetOk());
        ASSERT_EQ(subject->state(), before);
        ASSERT_NO_THROW(attempt(subject));
        ASSERT_TRUE(subject->parts.document->StyleSheetOk());
        ASSERT_EQ(subject->parts.document->GetParagraphStyle("b"), "\\s101\\b ");
    };

    EXPECT_GE(failEachAllocation(prepare, attempt, check), 10);
}

}  // namespace
}  // namespace quorvane
