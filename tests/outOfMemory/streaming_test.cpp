// Memory runs out at every place of a Commit that streams, and of what needs its text afterwards.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "tests/docmodel/picture/pictureFiles.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/failEachAllocation.h"

namespace quorvane {
namespace {

/// Files that always find memory for themselves.
class FilesWithMemory : public FakePlatform {
public:
    bool fileExists(const std::string& path) override {
        const UnlimitedMemory here;
        return FakePlatform::fileExists(path);
    }
    void deleteFile(const std::string& path) override {
        const UnlimitedMemory here;
        FakePlatform::deleteFile(path);
    }
    std::unique_ptr<OutputFile> createFile(const std::string& path) override {
        const UnlimitedMemory here;
        return std::make_unique<File>(FakePlatform::createFile(path));
    }

private:
    class File : public OutputFile {
    public:
        explicit File(std::unique_ptr<OutputFile> file) : file_(std::move(file)) {}
        void write(std::string_view bytes) override {
            const UnlimitedMemory here;
            file_->write(bytes);
        }
        void close() override {
            const UnlimitedMemory here;
            file_->close();
        }

    private:
        std::unique_ptr<OutputFile> file_;
    };
};

/// A document that is too long to be kept, with everything for which rendering takes memory.
struct LongDocument {
    LongDocument() {
        document->LoadStyleSheetFromMemmory(
            "{name: a style with a long name; style-def: s; format: \\f0}"
            "{name: another style with a long name; style-def: cs; format: \\b}"
            "{name: foreign; style-def: cs; format: \\i\xC3\xA9}"
            "{name: a cell style with a long name; style-def: cell; format: light-royal-blue}");
        for (int row = 0; row < 3; ++row) {
            document->TableRows()->AddTail();
            const Ref<CRtfTableCells> cells = document->TableRows()->PeekTail()->TableCells();
            cells->AddTail();
            cells->PeekTail()->setStyle(row == 1 ? "a cell style with a long name"
                                                 : "an unknown cell style with a long name");
            cells->PeekTail()->setAlign(eRight);
            cells->PeekTail()->setTopBorder(static_cast<tBorderWidth>(100'000 + row));
            const Ref<CRtfParagraphs> paragraphs = cells->PeekTail()->Paragraphs();
            const std::string number = std::to_string(row);
            addParagraph(*paragraphs, std::string(30'000, 'x'));
            addParagraph(*paragraphs,
                         "<another style with a long name=text> and <an unknown style " + number +
                             "=more text> and <another style with a long name=text>");
            addParagraph(*paragraphs, "\xC3\xA9 <foreign=\xE2\x82\xAC " + number +
                                          "> <another style with a long name=\xC3\xA9>");
        }
    }

    /// What is written piece by piece without more memory.
    void addColorsAndPictures() const {
        document->TableRows()->Item(1)->TableCells()->Item(1)->setBackColor(
            document->addColor(1, 2, 3));
        document->addFont("a name that is not short");
        document->TableRows()->Item(2)->TableCells()->Item(1)->Paragraphs()->Item(1)->setPicture(
            RtfPicture(twoPixels));
    }

    /// Whatever else rendering takes memory for.
    void addToLayout() const {
        document->setColumnWidths({1000, 200, 3000});
        document->setPageHeader("a text that is not short", "{page} of {pages}", "");
        const Ref<CRtfTableRows> rows = document->TableRows();
        rows->Item(1)->setRepeatsAsHeading(true);
        rows->Item(3)->TableCells()->AddTail();
        rows->Item(2)->TableCells()->PeekTail()->setRowSpan(2);
        rows->Item(3)->setKeepWithNext(true);
    }

    void addParagraph(CRtfParagraphs& paragraphs, const std::string& text) const {
        paragraphs.AddTail();
        paragraphs.PeekTail()->setText(text);
        paragraphs.PeekTail()->setStyle("a style with a long name, number " +
                                        std::to_string(paragraphs.Count()));
    }

    FilesWithMemory platform;
    Ref<CRtfDoc> document = CRtfDoc::create(platform);
};

std::string fileOfLongDocument() {
    LongDocument subject;
    return codePage1252FromUtf8(subject.document->Contents());
}

using Subject = std::unique_ptr<LongDocument>;

/// Whatever allocation fails, an older file stays until the new text is certain.
template <class Addition>
void expectThatAnOlderFileStays(Addition add, std::size_t fewestWrites) {
    const auto prepare = [&] {
        auto subject = std::make_unique<LongDocument>();
        add(*subject);
        subject->platform.files["a.rtf"] = "older";
        return subject;
    };
    const std::string expected = codePage1252FromUtf8(prepare()->document->Contents());
    const auto attempt = [](const Subject& subject) { subject->document->Commit("a.rtf"); };
    const auto check = [&](const Subject& subject) {
        ASSERT_EQ(subject->platform.files["a.rtf"], "older");
        ASSERT_EQ(subject->platform.count("deleteFile"), 0U);
        ASSERT_TRUE(subject->document->Changed());
        subject->document->Commit("a.rtf");
        ASSERT_EQ(subject->platform.files["a.rtf"], expected);
        ASSERT_GE(subject->platform.count("write"), fewestWrites);
        ASSERT_FALSE(subject->document->Changed());
    };

    EXPECT_GE(failEachAllocation(prepare, attempt, check), 20);
}

TEST(StreamingOutOfMemory, KeepsAnOlderFile) {
    expectThatAnOlderFileStays([](const LongDocument&) {}, 2);
}

TEST(StreamingOutOfMemory, KeepsAnOlderFileForPictures) {
    expectThatAnOlderFileStays([](const LongDocument& subject) { subject.addColorsAndPictures(); },
                               2);
}

TEST(StreamingOutOfMemory, KeepsAnOlderFileWhenTheLayoutNeedsMemory) {
    // The text is in memory before the file goes, so it is written at once.
    expectThatAnOlderFileStays([](const LongDocument& subject) { subject.addToLayout(); }, 1);
}

TEST(StreamingOutOfMemory, EndsANewFileWhenTheLayoutNeedsMemory) {
    const auto prepare = [] {
        auto subject = std::make_unique<LongDocument>();
        subject->addToLayout();
        return subject;
    };
    const auto attempt = [](const Subject& subject) { subject->document->Commit("a.rtf"); };
    const auto check = [](const Subject& subject) {
        ASSERT_EQ(subject->platform.openFiles, 0);
        ASSERT_EQ(subject->platform.count("close"), 0U);
        ASSERT_TRUE(subject->document->Changed());
        subject->platform.files.clear();
        subject->document->Commit("a.rtf");
        ASSERT_EQ(subject->platform.files["a.rtf"],
                  codePage1252FromUtf8(subject->document->Contents()));
    };

    EXPECT_GE(failEachAllocation(prepare, attempt, check), 30);
}

TEST(StreamingOutOfMemory, EndsANewFileAndCanBeRepeated) {
    const std::string expected = fileOfLongDocument();
    const auto prepare = [] { return std::make_unique<LongDocument>(); };
    const auto attempt = [](const Subject& subject) { subject->document->Commit("a.rtf"); };
    const auto check = [&](const Subject& subject) {
        ASSERT_EQ(subject->platform.openFiles, 0);
        ASSERT_EQ(subject->platform.count("close"), 0U);
        ASSERT_TRUE(subject->document->Changed());
        subject->platform.files.clear();
        subject->document->Commit("a.rtf");
        ASSERT_EQ(subject->platform.files["a.rtf"], expected);
    };

    EXPECT_GE(failEachAllocation(prepare, attempt, check), 20);
}

Subject streamed() {
    auto subject = std::make_unique<LongDocument>();
    subject->document->Commit("a.rtf");
    return subject;
}

TEST(StreamingOutOfMemory, ChangesNothingWhenTheTextCannotBeKept) {
    const std::string expected = fileOfLongDocument();
    const auto attempt = [](const Subject& subject) {
        subject->document->TableRows()->Item(2)->TableCells()->Item(1)->setAlign(eLeft);
    };
    const auto check = [&](const Subject& subject) {
        CRtfDoc& document = *subject->document;
        const Ref<CRtfTableCell> cell = document.TableRows()->Item(2)->TableCells()->Item(1);
        ASSERT_EQ(cell->Align(), eRight);
        ASSERT_FALSE(document.Changed());
        attempt(subject);
        ASSERT_EQ(cell->Align(), eLeft);
        ASSERT_EQ(codePage1252FromUtf8(document.Contents()), expected);
        document.Refresh();
        ASSERT_NE(codePage1252FromUtf8(document.Contents()), expected);
    };

    EXPECT_GE(failEachAllocation(streamed, attempt, check), 10);
}

TEST(StreamingOutOfMemory, LosesNothingWhenTheStructureCannotBeCleared) {
    const std::string expected = fileOfLongDocument();
    const auto attempt = [](const Subject& subject) { subject->document->ClearStructure(); };
    const auto check = [&](const Subject& subject) {
        ASSERT_EQ(subject->document->TableRows()->Count(), 3);
        attempt(subject);
        ASSERT_EQ(subject->document->TableRows()->Count(), 0);
        ASSERT_EQ(codePage1252FromUtf8(subject->document->Contents()), expected);
    };

    EXPECT_GE(failEachAllocation(streamed, attempt, check), 10);
}

TEST(StreamingOutOfMemory, ReturnsTheTextLater) {
    const std::string expected = fileOfLongDocument();
    for (const bool isChanged : {false, true}) {
        const auto prepare = [&] {
            Subject subject = streamed();
            subject->document->setChanged(isChanged);
            return subject;
        };
        const auto attempt = [](const Subject& subject) { subject->document->Contents(); };
        const auto check = [&](const Subject& subject) {
            ASSERT_EQ(subject->document->Changed(), isChanged);
            ASSERT_EQ(codePage1252FromUtf8(subject->document->Contents()), expected);
        };

        EXPECT_GE(failEachAllocation(prepare, attempt, check), 10);
    }
}

/// Files whose bytes are not kept.
class LostFiles : public FakePlatform {
public:
    std::unique_ptr<OutputFile> createFile(const std::string&) override {
        return std::make_unique<File>(written);
    }

    std::size_t written = 0;

private:
    class File : public OutputFile {
    public:
        explicit File(std::size_t& written) : written_(written) {}
        void write(std::string_view bytes) override { written_ += bytes.size(); }
        void close() override {}

    private:
        std::size_t& written_;
    };
};

TEST(Streaming, TakesNoMoreMemoryForALongerText) {
    LostFiles platform;
    const Ref<CRtfDoc> document = CRtfDoc::create(platform);
    document->LoadStyleSheetFromMemmory("{name: bold; style-def: cs; format: \\b}");
    for (int row = 0; row < 20'000; ++row) {
        document->TableRows()->AddTail();
        const Ref<CRtfTableCells> cells = document->TableRows()->PeekTail()->TableCells();
        cells->AddTail();
        cells->PeekTail()->Paragraphs()->AddTail();
        cells->PeekTail()->Paragraphs()->PeekTail()->setText(
            "Article <bold=" + std::to_string(row) + "> \xC3\xA9");
    }

    const long most = mostMemoryOf([&] { document->Commit("a.rtf"); });

    EXPECT_GT(platform.written, 2'000'000U);
    EXPECT_LT(most, 400'000);
}

}  // namespace
}  // namespace quorvane
