// Inline styles that would keep a host waiting, or never end.

#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <string>

#include "quorvane/docmodel/CRtfDoc.h"
#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

/// A document of the component with one paragraph.
class InlineStylesOfAHost : public testing::Test {
protected:
    void SetUp() override {
        const LateBound rows = document_.object("TableRows");
        rows.call("AddTail");
        const LateBound cells = rows.object("Item", {1}).object("TableCells");
        cells.call("AddTail");
        const LateBound paragraphs = cells.object("Item", {1}).object("Paragraphs");
        paragraphs.call("AddTail");
        paragraph_ = paragraphs.object("Item", {1});
    }

    std::string earlyContents() const {
        const auto document = ComPtr<IDispatch>(document_.get()).as<_CRtfDoc>();
        Bstr contents;
        EXPECT_EQ(document->get_Contents(contents.out()), S_OK);
        return contents.utf8();
    }
    Outcome lateContents() const { return document_.get("Contents"); }

    Component component_;
    LateBound document_{component_.create<IDispatch>(__uuidof(::CRtfDoc))};
    LateBound paragraph_{ComPtr<IDispatch>()};
};

/// What the library itself writes for a document of one paragraph.
std::string contentsOf(const char* styleSheet, const std::string& text) {
    const Ref<quorvane::CRtfDoc> document = quorvane::CRtfDoc::create();
    document->LoadStyleSheetFromMemmory(styleSheet);
    document->TableRows()->AddTail();
    const Ref<CRtfTableCells> cells = document->TableRows()->PeekTail()->TableCells();
    cells->AddTail();
    cells->PeekTail()->Paragraphs()->AddTail();
    cells->PeekTail()->Paragraphs()->PeekTail()->setText(text);
    return std::string(document->Contents());
}

TEST_F(InlineStylesOfAHost, MayBeNestedTwentyThousandDeepWhileItsWindowLives) {
    // Windows calls a window dead that has taken no message for five seconds. A busy machine takes
    // some of them.
    constexpr std::chrono::seconds patience{2};
    std::string text;
    for (int i = 0; i < 20000; ++i) {
        text += "<a=";
    }
    text += "x" + std::string(20000, '>');
    for (const char* styleSheet :
         {"{name: a; style-def: cs; format: \\b}", "{name: other; style-def: cs; format: \\b}"}) {
        const std::string expected = contentsOf(styleSheet, text);
        ASSERT_TRUE(document_.call("LoadStyleSheetFromMemmory", {styleSheet}).succeeded());
        ASSERT_TRUE(paragraph_.set("Text", {""}).succeeded());
        ASSERT_TRUE(paragraph_.set("Text", {text}).succeeded());

        const auto start = std::chrono::steady_clock::now();
        const std::string early = earlyContents();
        const auto end = std::chrono::steady_clock::now();
        paragraph_.set("Text", {""});
        paragraph_.set("Text", {text});

        EXPECT_TRUE(early == expected) << styleSheet;
        EXPECT_LT(end - start, patience) << styleSheet;
        EXPECT_TRUE(lateContents().value.text() == expected) << styleSheet;
    }
}

TEST_F(InlineStylesOfAHost, MayBeEndlessAndLeaveTheTextThatTheDocumentHadBefore) {
    constexpr const char* styles =
        "{name: once; style-def: cs; format: <once=>}{name: p; style-def: s}";
    ASSERT_TRUE(document_.call("LoadStyleSheetFromMemmory", {styles}).succeeded());
    paragraph_.set("Text", {"fine"});
    const std::string before = earlyContents();
    ASSERT_EQ(before, contentsOf(styles, "fine"));
    ASSERT_FALSE(document_.get("Changed").value.truth());

    paragraph_.set("Text", {"<once=>"});

    EXPECT_EQ(earlyContents(), before);
    const Outcome late = lateContents();
    EXPECT_EQ(late.error, HostError{});
    EXPECT_EQ(late.value.text(), before);
    EXPECT_TRUE(document_.get("Changed").value.truth());
    paragraph_.set("Text", {"finer"});
    EXPECT_EQ(earlyContents(), contentsOf(styles, "finer"));
    EXPECT_FALSE(document_.get("Changed").value.truth());
}

}  // namespace
}  // namespace quorvane::host
