// The rich edit control reads what the library writes, and finds what the object model held.
//
// Limits that are the control's own: it keeps a row as lines of text in which a tab ends a cell, so
// that only the first of the paragraphs between two line breaks has an alignment of its own; it
// does not justify, and a paragraph without an alignment takes that of the one before; a line break
// within a paragraph is a blank in the text that it returns, and the number of the page nothing; it
// has no grounds, borders and styles of cells.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <regex>
#include <string>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/utf16.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/rtf/escape.h"
#include "tests/com/richEdit/RichEdit.h"

namespace quorvane::host {
namespace {

/// A part of a text in one format, and the control words that give it.
struct Piece {
    std::wstring text;
    std::string words;
};

/// A text without the control words that a host writes into it, as the control keeps it.
std::wstring textOf(std::string text) {
    const auto replaceAll = [&text](const char* pattern, const char* replacement) {
        text = std::regex_replace(text, std::regex(pattern), replacement);
    };
    std::smatch code;
    while (std::regex_search(text, code, std::regex(R"(\\'([0-9a-f]{2}))"))) {
        const int number = std::stoi(code[1], nullptr, 16);
        const std::string character =
            number == 0x92 ? "\xE2\x80\x99"
                           : utf8FromUtf16<wchar_t>(std::wstring(1, static_cast<wchar_t>(number)));
        text = std::string(code.prefix()) + character + std::string(code.suffix());
    }
    replaceAll(R"(\\bullet\b ?)", "\xE2\x80\xA2");
    replaceAll(R"(\\tab\b ?)", "\t");
    replaceAll(R"(\\line\b ?)", " ");
    replaceAll(R"(\\~)", "\xC2\xA0");
    replaceAll(R"(\\chpgn\b ?)", "");
    return utf16FromUtf8<wchar_t>(text);
}

/// The pieces of a paragraph: its text cut at its inline styles.
std::vector<Piece> piecesOf(const CRtfDoc& document, const CRtfParagraph& paragraph) {
    const std::string words(document.GetParagraphStyle(paragraph.Style()));
    const std::string color =
        paragraph.ForeColor() != 0 ? "\\cf" + std::to_string(paragraph.ForeColor()) : "";
    std::vector<Piece> pieces;
    const auto add = [&](const std::string& text, const std::string& moreWords) {
        if (!text.empty()) {
            pieces.push_back({textOf(text), words + color + moreWords});
        }
    };
    std::string rest = paragraph.Text();
    std::smatch token;
    while (std::regex_search(rest, token, std::regex("<([A-Za-z][^=<>]*)=([^<>]*)>"))) {
        add(token.prefix(), "");
        add(token[2], std::string(document.GetCharacterStyle(token[1].str())));
        rest = token.suffix().str();
    }
    add(rest, "");
    return pieces;
}

/// The number after the last such control word; nothing when there is no such word.
std::optional<int> numberOf(const std::string& words, const std::string& word) {
    std::optional<int> number;
    const std::regex pattern(R"(\\)" + word + R"((\d+))");
    for (std::sregex_iterator at(words.begin(), words.end(), pattern), end; at != end; ++at) {
        number = std::stoi((*at)[1]);
    }
    return number;
}

bool hasWord(const std::string& words, const std::string& word) {
    return std::regex_search(words, std::regex(R"(\\)" + word + R"((?![a-z0-9]))"));
}

/// The colors of the document's table.
std::vector<COLORREF> colorsOf(const std::string& rtf) {
    std::vector<COLORREF> colors;
    const std::regex pattern(R"(\\red(\d+)\\green(\d+)\\blue(\d+))");
    for (std::sregex_iterator at(rtf.begin(), rtf.end(), pattern), end; at != end; ++at) {
        colors.push_back(RGB(std::stoi((*at)[1]), std::stoi((*at)[2]), std::stoi((*at)[3])));
    }
    return colors;
}

class RichEditTest : public testing::TestWithParam<std::string> {
protected:
    RichEditTest() {
        std::filesystem::path styleSheet(GetParam());
        styleSheet.replace_extension("rtfss");
        if (!std::filesystem::exists(styleSheet)) {
            styleSheet.replace_filename("style.rtfss");
        }
        driver->setNotifyErrorHandler(
            [](CRtfDriver&, const RtfError& error) { ADD_FAILURE() << error.description; });
        driver->setStyleSheetFile(styleSheet.string());
        driver->ParseFile(GetParam());
    }
    ~RichEditTest() override { driver->setNotifyErrorHandler({}); }

    std::string bytes() const { return codePage1252FromUtf8(driver->Contents()); }

    /// Calls `visit` with each paragraph that has a text, with its place in the control's text and
    /// whether a line of the control's begins with it. Returns the whole text.
    template <class Visit>
    std::wstring walk(Visit visit) const {
        const Ref<CRtfDoc> document = driver->RtfObject();
        std::wstring text;
        const Ref<CRtfTableRows> rows = document->TableRows();
        for (std::int32_t row = 1; row <= rows->Count(); ++row) {
            text += L"\r\n";
            const Ref<CRtfTableCells> cells = rows->Item(row)->TableCells();
            for (std::int32_t cell = 1; cell <= cells->Count(); ++cell) {
                const Ref<CRtfParagraphs> paragraphs = cells->Item(cell)->Paragraphs();
                for (std::int32_t at = 1; at <= paragraphs->Count(); ++at) {
                    const Ref<CRtfParagraph> paragraph = paragraphs->Item(at);
                    if (paragraph->Text().empty()) {
                        continue;
                    }
                    text += at > 1 ? L"\r" : L"";
                    visit(*paragraph, text.size(), text.back() == L'\r' || text.back() == L'\n');
                    for (const Piece& piece : piecesOf(*document, *paragraph)) {
                        text += piece.text;
                    }
                }
                text += L'\t';
            }
            text += L"\r\n";
        }
        return text;
    }

    Ref<CRtfDriver> driver = CRtfDriver::create();
    RichEdit control;
};

TEST_P(RichEditTest, FindsTheTextOfRowsCellsAndParagraphsInTheirOrder) {
    ASSERT_EQ(control.read(bytes()), 0u);

    EXPECT_EQ(utf8FromUtf16<wchar_t>(control.text()),
              utf8FromUtf16<wchar_t>(walk([](auto&, auto, auto) {})));
}

TEST_P(RichEditTest, FindsTheFormatOfEveryPartOfAText) {
    const std::string rtf = bytes();
    const std::vector<COLORREF> colors = colorsOf(rtf);
    ASSERT_EQ(control.read(rtf), 0u);
    int compared = 0;

    walk([&](const CRtfParagraph& paragraph, std::size_t place, bool) {
        for (const Piece& piece : piecesOf(*driver->RtfObject(), paragraph)) {
            for (const std::size_t at : {std::size_t{0}, piece.text.size() - 1}) {
                if (piece.text.empty() || piece.text[at] == L'\t') {
                    continue;
                }
                const CHARFORMAT2W format = control.characterFormatAt(place + at);
                SCOPED_TRACE(utf8FromUtf16<wchar_t>(piece.text) + " " + piece.words);
                EXPECT_EQ((format.dwEffects & CFE_BOLD) != 0, hasWord(piece.words, "b"));
                EXPECT_EQ((format.dwEffects & CFE_ITALIC) != 0, hasWord(piece.words, "i"));
                EXPECT_EQ((format.dwEffects & CFE_UNDERLINE) != 0, hasWord(piece.words, "ul"));
                EXPECT_EQ(format.yHeight, 10 * numberOf(piece.words, "fs").value_or(24));
                const int color = numberOf(piece.words, "cf").value_or(0);
                EXPECT_EQ((format.dwEffects & CFE_AUTOCOLOR) != 0, color == 0);
                if (color != 0) {
                    EXPECT_EQ(format.crTextColor, colors.at(static_cast<std::size_t>(color) - 1));
                }
                ++compared;
            }
            place += piece.text.size();
        }
    });

    EXPECT_GT(compared, 0);
}

TEST_P(RichEditTest, FindsTheAlignmentOfParagraphsThatBeginALine) {
    ASSERT_EQ(control.read(bytes()), 0u);

    walk([&](const CRtfParagraph& paragraph, std::size_t place, bool beginsLine) {
        static const std::map<std::int32_t, WORD> alignments{
            {eCentered, PFA_CENTER}, {eLeft, PFA_LEFT}, {eRight, PFA_RIGHT}};
        const auto expected = alignments.find(paragraph.Align());
        if (beginsLine && expected != alignments.end()) {
            EXPECT_EQ(control.paragraphFormatAt(place).wAlignment, expected->second)
                << paragraph.Text();
        }
    });
}

/// The errors that the check finds in a document, one on a line.
std::string errorsIn(const std::string& rtf) {
    std::string errors;
    for (const Diagnostic& diagnostic : checkRtf(rtf)) {
        if (diagnostic.severity == Severity::Error) {
            errors += std::to_string(diagnostic.place.line) + ": " + diagnostic.message + "\n";
        }
    }
    return errors;
}

TEST_P(RichEditTest, WritesWhatItReadWithoutAnErrorThatTheCheckFinds) {
    ASSERT_EQ(control.read(bytes()), 0u);
    const std::string rtf = control.written();

    EXPECT_TRUE(rtf.starts_with("{\\rtf1")) << rtf;
    EXPECT_EQ(errorsIn(rtf), "") << rtf;
}

/// A document of the control's own, and what of it must be in what it writes.
struct Written {
    const char* rtf;
    std::vector<const char*> parts;
};

TEST(RichEditAsAWriter, MakesNoErrorThatTheCheckFinds) {
    const Written documents[] = {
        {R"({\rtf1\ansi plain {\b bold} {\i\fs40 large} text\par})", {"\\b", "\\fs40", "large"}},
        {R"({\rtf1\ansi\uc1 \u-10179?\u-8704? \u8364?\'e9\par})", {"\\u-10179?\\u-8704?", "\\'e9"}},
        {R"({\rtf1\ansi{\colortbl;\red255\green0\blue0;}{\cf1 red}\par{\fs18 small}\par})",
         {"\\red255", "\\cf1"}},
        {R"({\rtf1\ansi\trowd\cellx2000\cellx5000\intbl one\cell two\cell\row)"
         R"(\trowd\cellx2000\cellx5000\intbl{\b three}\cell four\cell\row after\par})",
         {"\\cellx5000", "\\row", "three"}},
        {R"({\rtf1\ansi \{braces\} and \\ and\tab a tab\par})", {"\\{braces\\}", "\\tab"}},
    };
    for (const auto& [document, parts] : documents) {
        const RichEdit control;
        ASSERT_EQ(control.read(document), 0u);
        const std::string rtf = control.written();

        for (const char* part : parts) {
            EXPECT_NE(rtf.find(part), std::string::npos) << part << " is not in " << rtf;
        }
        EXPECT_EQ(errorsIn(rtf), "") << rtf;
    }
}

/// A document with one cell that shows the text.
std::string documentOf(const std::string& text) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    document->TableRows()->AddTail();
    const Ref<CRtfTableCells> cells = document->TableRows()->PeekTail()->TableCells();
    cells->AddTail();
    const Ref<CRtfParagraphs> paragraphs = cells->PeekTail()->Paragraphs();
    paragraphs->AddTail();
    paragraphs->PeekTail()->setText(rtfText(text));
    document->Refresh();
    return codePage1252FromUtf8(document->Contents());
}

/// The characters of a block of 256 that a document can show.
std::string charactersOf(char32_t first) {
    std::string text;
    for (char32_t code = first; code < first + 0x100; ++code) {
        const bool isControl = code < 0x20 || (code >= 0x7F && code < 0xA0);
        const bool isNoncharacter = (code & 0xFFFE) == 0xFFFE || (code >= 0xFDD0 && code < 0xFDF0);
        if (!isControl && !isNoncharacter) {
            appendUtf8(code, text);
        }
    }
    return text;
}

TEST(RichEditAsAReader, ShowsEscapedTextsExactly) {
    std::vector<std::string> texts{"C:\\{x} <strong=a> \\u1234 \\'41", "a  b   c", "1\t2\t\t3"};
    for (char32_t first = 0; first < 0x10FF00; first += first < 0x10000 ? 0x100 : 0x3700) {
        if (first < 0xD800 || first >= 0xE000) {
            texts.push_back(charactersOf(first));
        }
    }
    const RichEdit control;
    for (const std::string& text : texts) {
        ASSERT_EQ(control.read(documentOf(text)), 0u);
        const std::wstring expected = utf16FromUtf8<wchar_t>(text);
        EXPECT_NE(control.text().find(expected), std::wstring::npos)
            << utf8FromUtf16<wchar_t>(control.text()).substr(0, 200);
    }
}

/// What the control makes of a description in the extended language.
class RichEditAsAReaderOfAdditions : public testing::Test {
protected:
    RichEditAsAReaderOfAdditions() {
        driver->setReadsExtended(true);
        driver->RtfObject()->setExtendedStyleSheets(true);
        driver->setNotifyErrorHandler(
            [](CRtfDriver&, const RtfError& error) { ADD_FAILURE() << error.description; });
        driver->LoadStyleSheetFromMemmory(
            "; quorvane 2\n{name: normal; style-def: s; font: Noto Sans; size: 9pt; color: #1f4e79}"
            "{name: strong; style-def: cs; bold}");
        driver->ParseFromMemmory(
            "; quorvane 2\n(doc\n(page=a4)\n(columns=50 25 25)\n(header=Left|Center|{page})\n"
            "(footer=Foot)\n"
            "(r\n(row-heading=yes)\n(c\n(span=3)\n(p\n(ps=normal)\n(pt=Heading)\np)\nc)\nr)\n"
            "(r\n(c\n(span=2)\n(cb=#ffeedd)\n(p\n(ps=normal)\n(pt=wide)\np)\nc)\n"
            "(c\n(p\n(ps=normal)\n(pt=<strong=x> \xE2\x82\xAC)\np)\nc)\nr)\n"
            "(r\n(row-page-break=yes)\n(c\n(p\n(ps=normal)\n(pt=a)\np)\nc)\n"
            "(c\n(p\n(ps=normal)\n(pt=b)\np)\nc)\n(c\n(p\n(ps=normal)\n(pt=c)\np)\nc)\nr)\ndoc)");
        EXPECT_EQ(control.read(codePage1252FromUtf8(driver->Contents())), 0u);
    }
    ~RichEditAsAReaderOfAdditions() override { driver->setNotifyErrorHandler({}); }

    Ref<CRtfDriver> driver = CRtfDriver::create();
    RichEdit control;
};

TEST_F(RichEditAsAReaderOfAdditions, FindsTheRowsOfTheBody) {
    // The page header, the heading in it and the page footer are not shown.
    EXPECT_EQ(utf8FromUtf16<wchar_t>(control.text()),
              "\r\nwide\tx \xE2\x82\xAC\t\r\n\r\r\na\tb\tc\t\r\n");
}

TEST_F(RichEditAsAReaderOfAdditions, FindsAddedColorsAndTheStylesOfTheStyleSheet) {
    const CHARFORMAT2W format = control.characterFormatAt(control.text().find(L"wide"));
    EXPECT_EQ(format.crTextColor, static_cast<COLORREF>(RGB(0x1f, 0x4e, 0x79)));
    EXPECT_EQ(format.yHeight, 9 * 20);
    EXPECT_EQ(std::wstring(format.szFaceName), L"Noto Sans");
    EXPECT_EQ(format.dwEffects & CFE_BOLD, 0u);
    EXPECT_NE(control.characterFormatAt(control.text().find(L'x')).dwEffects & CFE_BOLD, 0u);
}

/// The driver of these tests reads no others.
bool isInOriginalLanguage(const std::filesystem::path& description) {
    std::ifstream file(description);
    std::string line;
    std::getline(file, line);
    return !isMarkedExtended(line);
}

std::vector<std::string> descriptions() {
    std::vector<std::string> files;
    for (const char* folder : {QUORVANE_EXAMPLES, QUORVANE_READERS_DOCUMENTS}) {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.path().extension() == ".rtfspec" && isInOriginalLanguage(entry.path())) {
                files.push_back(entry.path().string());
            }
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string nameOf(const testing::TestParamInfo<std::string>& file) {
    std::string name = std::filesystem::path(file.param).stem().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Documents, RichEditTest, testing::ValuesIn(descriptions()), nameOf);

}  // namespace
}  // namespace quorvane::host
