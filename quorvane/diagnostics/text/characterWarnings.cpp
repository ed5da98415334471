#include "quorvane/diagnostics/text/characterWarnings.h"

#include <string>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/hexadecimal.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/diagnostics/text/mojibake.h"
#include "quorvane/rtf/unicodeWords.h"

namespace quorvane {

namespace {

std::string numberedCharacter(char32_t code) {
    return "U+" + hexadecimal(code, code > 0xFFFF ? 6 : 4);
}

/// True where a character can be written as a control word.
bool canHoldControls(TextUse use) {
    return use == TextUse::Text || use == TextUse::Format;
}

/// The escape of a character of Windows-1252.
std::string escape(const std::string& character) {
    const auto byte = static_cast<unsigned char>(codePage1252FromUtf8(character)[0]);
    return "\\'" + hexadecimal(byte, 2, lowerHexadecimalDigits);
}

// The document says that nothing stands in for such a character, but not all readers respect that.
std::string unicodeHint(char32_t code, TextUse use) {
    if (use != TextUse::Text) {
        return {};
    }
    std::string hint = "write {\\uc1";
    appendUnicodeWords(code, hint);
    return hint + "}";
}

void reportMojibake(const MeantCharacter& meant, std::string_view shown, TextUse use,
                    TextReporter& reporter) {
    if (codePage1252FromUtf8(meant.text) == "?") {
        reporter.reportMojibake(DiagnosticId::UnencodableCharacter, shown,
                                {meant.text, std::string(shown) + ", because the file is in UTF-8"},
                                unicodeHint(meant.code, use));
    } else {
        reporter.reportMojibake(
            DiagnosticId::Utf8Text, shown, {meant.text, shown},
            "save the file in Windows-1252" +
                (canHoldControls(use) ? ", or write " + escape(meant.text) : ""));
    }
}

void findInAscii(std::string_view character, TextUse use, TextReporter& reporter) {
    const auto code = static_cast<unsigned char>(character.front());
    if (use != TextUse::FieldData && (code < 0x20 || code == 0x7F)) {
        reporter.report(DiagnosticId::ControlCharacter, character, {numberedCharacter(code)},
                        code == '\t' ? "write \\tab for a tab" : "");
    }
}

void findInOther(std::string_view character, char32_t code, TextUse use, TextReporter& reporter) {
    const bool isControl = code < 0xA0 && code >= 0x80;
    if (isControl && use != TextUse::FieldData) {
        reporter.report(DiagnosticId::ControlCharacter, character, {numberedCharacter(code)});
    } else if (!isUtf8(reporter.encoding()) && codePage1252FromUtf8(character) == "?") {
        reporter.report(DiagnosticId::UnencodableCharacter, character, {character, "?"},
                        unicodeHint(code, use));
    }
}

}  // namespace

std::size_t findInCharacter(std::string_view text, std::size_t at, TextUse use,
                            TextReporter& reporter) {
    if (static_cast<unsigned char>(text[at]) < 0x80) {
        findInAscii(text.substr(at, 1), use, reporter);
        return 1;
    }
    // In a file in UTF-8, characters are meant as they are.
    const bool isMeant = isUtf8(reporter.encoding());
    if (const auto meant = isMeant ? std::nullopt : meantCharacterAt(text, at)) {
        reportMojibake(*meant, text.substr(at, meant->length), use, reporter);
        return meant->length;
    }
    const Utf8Character character = utf8CharacterAt(text, at);
    findInOther(text.substr(at, character.length), character.code, use, reporter);
    return character.length;
}

}  // namespace quorvane
