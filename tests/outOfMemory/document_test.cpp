// Memory runs out at every place of a call of the modern interface. The call throws std::bad_alloc,
// loses no memory and leaves the rows as they were; it works when it is repeated.

#include "quorvane/compose/Document.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "quorvane/compose/render.h"
#include "quorvane/support/currentError.h"
#include "tests/support/failEachAllocation.h"

namespace quorvane {
namespace {

constexpr std::string_view styles =
    "{ name: a paragraph style with a long name; style-def: s; format: \\f0 }"
    "{ name: a character style with a long name; style-def: cs; format: \\b }"
    "{ name: a cell style with a long name; style-def: cell; format: navy-blue }";

Document filledDocument() {
    Document document;
    document.setStyleSheet(styles);
    document.addRow({"the text of the first cell", "the text of the second cell"})
        .setBorders(static_cast<tBorderWidth>(100'000))
        .setBackColor("navy-blue");
    return document;
}

using Change = std::function<void(Document&)>;

void expectWholeOrNothing(const Change& change, int fewestFailures) {
    Document changed = filledDocument();
    change(changed);
    const std::string expected = changed.rtf();
    const std::string before = filledDocument().rtf();
    long livingBefore = 0;
    const auto prepare = [&livingBefore] {
        clearCurrentError();
        livingBefore = failingAllocations::living;
        return std::make_unique<Document>(filledDocument());
    };
    const auto attempt = [&](const std::unique_ptr<Document>& document) { change(*document); };
    const auto check = [&](std::unique_ptr<Document>& document) {
        ASSERT_EQ(document->rtf(), before);
        change(*document);
        ASSERT_EQ(document->rtf(), expected);
        document = nullptr;
        clearCurrentError();
        ASSERT_EQ(failingAllocations::living, livingBefore);
    };
    EXPECT_GE(failEachAllocation(prepare, attempt, check), fewestFailures);
}

TEST(DocumentsOutOfMemory, AddWholeRowsOrNone) {
    expectWholeOrNothing(
        [](Document& document) {
            document.addRow({"a text that is longer than others",
                             styled("a character style with a long name", "and another one"),
                             bold("a third text that is long")},
                            "a paragraph style with a long name");
        },
        10);
}

TEST(DocumentsOutOfMemory, InsertWholeCellsAndParagraphsOrNone) {
    expectWholeOrNothing(
        [](Document& document) {
            document[0].insertCell(1, "a text that is longer than others",
                                   "a paragraph style with a long name");
        },
        3);
    expectWholeOrNothing(
        [](Document& document) {
            document[0][0].addParagraph("a text that is longer than others");
        },
        2);
}

TEST(DocumentsOutOfMemory, SetAllOrNothing) {
    expectWholeOrNothing(
        [](Document& document) {
            document[0][1][0].setText("a text that is longer than the one before");
        },
        1);
    expectWholeOrNothing(
        [](Document& document) { document[0][1].setStyle("a cell style with a long name"); }, 1);
    expectWholeOrNothing([](Document& document) { document.setColumns({20, "30%", "auto"}); }, 1);
    expectWholeOrNothing([](Document& document) { document[0].setColumns({20, "auto"}); }, 3);
    expectWholeOrNothing(
        [](Document& document) { document.setHeader({.left = "a text that is not short"}); }, 1);
    expectWholeOrNothing(
        [](Document& document) { document[0][0].setMarkedField("data that is not short"); }, 1);
}

TEST(DocumentsOutOfMemory, CanBeRenderedLater) {
    const std::string expected = filledDocument().rtf();
    const auto prepare = [] { return std::make_unique<Document>(filledDocument()); };
    const auto attempt = [](const std::unique_ptr<Document>& document) { document->rtf(); };
    const auto check = [&](const std::unique_ptr<Document>& document) {
        ASSERT_EQ(document->rtf(), expected);
    };
    EXPECT_GE(failEachAllocation(prepare, attempt, check), 3);
}

TEST(DocumentsOutOfMemory, AreNotMadeOfADescription) {
    const std::string description =
        "; quorvane 2\n(doc\n(row\n(cell\n(para\n(pt=a text that is not short)\npara)\ncell)\n"
        "row)\ndoc)\n";
    long livingBefore = 0;
    const auto prepare = [&livingBefore] {
        clearCurrentError();
        livingBefore = failingAllocations::living;
        return 0;
    };
    const auto attempt = [&](int) { render(description, {.styleSheet = std::string(styles)}); };
    const auto check = [&](int) {
        clearCurrentError();
        ASSERT_EQ(failingAllocations::living, livingBefore);
    };
    render(description);
    EXPECT_GE(failEachAllocation(prepare, attempt, check), 50);
}

}  // namespace
}  // namespace quorvane
