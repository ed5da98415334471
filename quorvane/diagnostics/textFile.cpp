#include "quorvane/diagnostics/textFile.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <utility>

#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/hexadecimal.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/fileEncoding.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/stylesheet/StyleList.h"

namespace quorvane {

namespace {

constexpr std::size_t enough = std::size_t{64} * 1024;
constexpr std::string_view saveAsRtf = "open it in the program that wrote it and save it as RTF";

struct Signature {
    std::string_view begin;
    std::string_view what;
    std::string_view hint = {};
};

using namespace std::string_view_literals;

constexpr Signature signatures[] = {
    {"%PDF-"sv, "a PDF file"},
    {"\x89PNG\r\n"sv, "a PNG picture"},
    {"\xFF\xD8\xFF"sv, "a JPEG picture"},
    {"GIF87a"sv, "a GIF picture"},
    {"GIF89a"sv, "a GIF picture"},
    {"II*\0"sv, "a TIFF picture"},
    {"MM\0*"sv, "a TIFF picture"},
    {"PK\x03\x04"sv, "a ZIP archive or the document of an office program", saveAsRtf},
    {"\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"sv, "the document of an office program", saveAsRtf},
    {"\x1F\x8B"sv, "a gzip archive"},
    {"7z\xBC\xAF\x27\x1C"sv, "a 7z archive"},
    {"\x7F"
     "ELF"sv,
     "a program"},
};

void report(DiagnosticEngine& engine, std::string_view what, std::string_view hint) {
    engine.report(DiagnosticId::NotATextFile, {}, {what, "a text file"}, std::string(hint));
}

/// True for a text in one of the languages, whatever bytes it holds.
bool isOfALanguage(std::string_view bytes) {
    const std::string_view text = trimWhitespace(afterByteOrderMark(bytes));
    if (text.starts_with("{\\rtf") || !openingOfDescription(text).empty()) {
        return true;
    }
    const KnownStyles styles(utf8FromCodePage1252(text));
    const auto kinds = {StyleKind::Paragraph, StyleKind::Character, StyleKind::Cell};
    return std::any_of(kinds.begin(), kinds.end(),
                       [&](StyleKind kind) { return !stylesOf(styles, kind).empty(); });
}

}  // namespace

std::optional<Diagnostic> findNotATextFile(std::string_view bytes) {
    const std::string_view beginning = bytes.substr(0, enough);
    std::optional<Diagnostic> found;
    DiagnosticEngine engine([&](Diagnostic diagnostic) { found = std::move(diagnostic); });
    if (isUtf16(beginning)) {
        engine.report(DiagnosticId::NotATextFile, {},
                      {"text in UTF-16", "in UTF-8 or Windows-1252"}, "save it in UTF-8");
        return found;
    }
    for (const Signature& signature : signatures) {
        if (beginning.starts_with(signature.begin)) {
            report(engine, signature.what, signature.hint);
            return found;
        }
    }
    const bool hasNul = beginning.find('\0') != std::string_view::npos;
    if (hasNul && !isOfALanguage(beginning)) {
        report(engine, beginning.starts_with("MZ") ? "a program" : "binary data", {});
    }
    return found;
}

std::optional<Diagnostic> findByteNotOfUtf8(const SourceText& source) {
    const std::string_view bytes = source.text();
    const std::optional<std::size_t> wrong = findNotUtf8(bytes);
    std::optional<Diagnostic> found;
    if (wrong) {
        const Place place = source.place(*wrong, *wrong + 1);
        DiagnosticEngine engine([&](Diagnostic diagnostic) { found = std::move(diagnostic); });
        engine.report(DiagnosticId::NotUtf8, place,
                      {hexadecimal(static_cast<unsigned char>(bytes[*wrong]), 2),
                       std::to_string(place.column)},
                      isMarkedExtended(bytes)
                          ? "save the file in UTF-8"
                          : "save the file in UTF-8, or use --encoding windows-1252 if it is in "
                            "Windows-1252");
    }
    return found;
}

std::optional<Diagnostic> findUnreadableText(std::string_view bytes, TextEncoding encoding) {
    std::optional<Diagnostic> found = findNotATextFile(bytes);
    if (!found && isUtf8(encoding)) {
        found = findByteNotOfUtf8(SourceText(bytes.substr(bytesBeforeText(encoding)), encoding));
    }
    return found;
}

}  // namespace quorvane
