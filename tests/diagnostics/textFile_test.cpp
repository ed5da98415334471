#include "quorvane/diagnostics/textFile.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvane {
namespace {

/// The message about the bytes and its hint; empty for a text.
std::string foundIn(std::string_view bytes) {
    const std::optional<Diagnostic> found = findNotATextFile(bytes);
    return found ? found->message + (found->hint.empty() ? "" : " " + found->hint) : "";
}

std::string withNul(const std::string& before, const std::string& after = {}) {
    return before + std::string(4, '\0') + after;
}

TEST(TextFile, IsNoneOfTheFilesWithAKnownBeginning) {
    EXPECT_EQ(foundIn("%PDF-1.7\n%"), "This is a PDF file, not a text file.");
    EXPECT_EQ(foundIn("\x89PNG\r\n\x1A\n"), "This is a PNG picture, not a text file.");
    EXPECT_EQ(foundIn("\xFF\xD8\xFF\xE0"), "This is a JPEG picture, not a text file.");
    EXPECT_EQ(foundIn("GIF89a"), "This is a GIF picture, not a text file.");
    EXPECT_EQ(foundIn(std::string("II*\0", 4)), "This is a TIFF picture, not a text file.");
    EXPECT_EQ(
        foundIn("PK\x03\x04"),
        "This is a ZIP archive or the document of an office program, not a text file. open it "
        "in the program that wrote it and save it as RTF");
    EXPECT_EQ(foundIn("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"),
              "This is the document of an office program, not a text file. open it in the program "
              "that wrote it and save it as RTF");
    EXPECT_EQ(foundIn("\x1F\x8B\x08"), "This is a gzip archive, not a text file.");
    EXPECT_EQ(foundIn("\x7F"
                      "ELF\x02"),
              "This is a program, not a text file.");
    EXPECT_EQ(foundIn(withNul("MZ\x90")), "This is a program, not a text file.");
}

TEST(TextFile, IsNoneWithZerosBeforeAnyLanguage) {
    EXPECT_EQ(foundIn(withNul("abc", "def")), "This is binary data, not a text file.");
}

TEST(TextFile, IsToBeSavedAnewInUtf16) {
    const std::string doc("(\0d\0o\0c\0\n\0", 10);
    const std::string message =
        "This is text in UTF-16, not in UTF-8 or Windows-1252. save it in UTF-8";
    EXPECT_EQ(foundIn(doc), message);
    EXPECT_EQ(foundIn("\xFF\xFE" + doc), message);
    EXPECT_EQ(foundIn("\xFE\xFF" + std::string("\0(\0d\0o\0c", 8)), message);
}

TEST(TextFile, MayHoldZerosWhereItIsInOneOfTheLanguages) {
    EXPECT_EQ(foundIn(withNul("(doc\n(r\n(c\n(p\n(pt=a", "b)\np)\nc)\nr)\ndoc)\n")), "");
    EXPECT_EQ(foundIn(withNul("; a comment\n(doc\n")), "");
    EXPECT_EQ(foundIn(withNul("{\\rtf1 {\\pict\\bin4 ", "}}")), "");
    EXPECT_EQ(foundIn(withNul("{\\rtf1 a}")), "");
    EXPECT_EQ(foundIn(withNul("{ name: a; style-def: s }\n")), "");
}

TEST(TextFile, IsAnyOther) {
    for (const char* text :
         {"", "Dear Sir,\n", "MZ is no program", "PK", "%PDF", "caf\xE9", "\xEF\xBB\xBF(doc\n"}) {
        EXPECT_EQ(foundIn(text), "") << text;
    }
}

TEST(TextFile, HasBytesOfItsEncodingOnly) {
    const std::string bytes =
        "\xEF\xBB\xBF"
        "a\n\u0159\xE9(";
    const std::optional<Diagnostic> found = findUnreadableText(bytes, TextEncoding::Utf8WithMark);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->id, DiagnosticId::NotUtf8);
    EXPECT_EQ(found->message, "The byte E9 in column 2 is not UTF-8.");
    EXPECT_EQ(found->place.line, 2);
    EXPECT_EQ(found->place.column, 2);
    EXPECT_EQ(found->place.bytes.offset, 7);
    EXPECT_EQ(found->place.bytes.length, 1);
    EXPECT_FALSE(findUnreadableText(bytes, TextEncoding::Windows1252));
    EXPECT_FALSE(findUnreadableText("\u0159", TextEncoding::Utf8));
    EXPECT_EQ(findUnreadableText("%PDF-1.7\n\xE9", TextEncoding::Utf8)->id,
              DiagnosticId::NotATextFile);
}

}  // namespace
}  // namespace quorvane
