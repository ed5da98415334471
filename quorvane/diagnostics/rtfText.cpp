#include "quorvane/diagnostics/rtfText.h"

#include <array>
#include <cctype>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/diagnostics/rtfWords.h"
#include "quorvane/support/codePage1252.h"
#include "quorvane/support/textCase.h"
#include "quorvane/support/utf8.h"

namespace quorvane {

namespace {

bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isHexDigit(char character) {
    return std::isxdigit(static_cast<unsigned char>(character)) != 0;
}

std::string numberedCharacter(char32_t code) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "U+";
    for (int shift = code > 0xFFFF ? 20 : 12; shift >= 0; shift -= 4) {
        text += digits[code >> shift & 15U];
    }
    return text;
}

/// What a destination or a picture brings into a document that nobody sees in the text; empty for
/// any other word.
std::string_view broughtBy(std::string_view word) {
    constexpr std::pair<std::string_view, std::string_view> words[] = {
        {"object", "an object"},
        {"objdata", "an object"},
        {"objemb", "an object"},
        {"objlink", "a link to a file"},
        {"objautlink", "a link to a file"},
        {"objocx", "a program"},
        {"pict", "a picture"},
        {"bin", "binary data"},
        {"template", "a link to a file"},
        {"nextfile", "a link to a file"},
        {"subdocument", "a link to a file"},
        {"file", "a link to a file"},
        {"ffentrymcr", "a macro"},
        {"ffexitmcr", "a macro"},
        {"datastore", "binary data"},
        {"themedata", "binary data"},
    };
    for (const auto& [name, what] : words) {
        if (word == name) {
            return what;
        }
    }
    return {};
}

/// What the instruction of a field brings along; empty when it does no harm.
std::string_view broughtByField(std::string_view instruction) {
    constexpr std::pair<std::string_view, std::string_view> fields[] = {
        {"MACROBUTTON", "a macro"},
        {"DDE", "a link to a program"},
        {"DDEAUTO", "a link to a program"},
        {"LINK", "a link to a file"},
        {"INCLUDE", "a link to a file"},
        {"INCLUDETEXT", "a link to a file"},
        {"INCLUDEPICTURE", "a link to a file"},
        {"IMPORT", "a link to a file"},
        {"RD", "a link to a file"},
        {"DATABASE", "a link to a file"},
        {"EMBED", "an object"},
        {"CONTROL", "a program"},
        {"GOTOBUTTON", "a macro"},
    };
    const std::size_t begin = instruction.find_first_not_of(" {");
    if (begin == std::string_view::npos) {
        return {};
    }
    instruction.remove_prefix(begin);
    std::string name;
    for (const char character : instruction.substr(0, 20)) {
        if (!isLetter(character)) {
            break;
        }
        name += static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    }
    for (const auto& [field, what] : fields) {
        if (name == field) {
            return what;
        }
    }
    const bool isWeb = instruction.find("http") != std::string_view::npos ||
                       instruction.find("mailto:") != std::string_view::npos;
    return name == "HYPERLINK" && !isWeb ? "a link to a file" : std::string_view();
}

class TextWarnings {
public:
    TextWarnings(std::string_view text, bool isLowered, const SourceText& source,
                 DiagnosticEngine& engine)
        : text_(text), isLowered_(isLowered), source_(source), engine_(engine) {}

    void find() {
        while (at_ < text_.size()) {
            const char character = text_[at_];
            if (character == '{') {
                open_.push_back(at_++);
            } else if (character == '}') {
                closeGroup();
            } else if (character == '\\') {
                readBackslash();
            } else if (static_cast<unsigned char>(character) < 0x20 || character == 0x7F) {
                report(DiagnosticId::ControlCharacter, 1,
                       {numberedCharacter(static_cast<unsigned char>(character))},
                       character == '\t' ? "write \\tab for a tab" : "");
                ++at_;
            } else if (static_cast<unsigned char>(character) < 0x80) {
                ++at_;
            } else {
                readOtherCharacter();
            }
        }
        for (const std::size_t brace : open_) {
            at_ = brace;
            report(DiagnosticId::UnbalancedBrace, 1, {"{"}, "write \\{ for a brace to be seen");
        }
    }

private:
    static constexpr int mostOfAKind = 10;

    void report(DiagnosticId id, std::size_t length,
                std::initializer_list<std::string_view> arguments, std::string hint) {
        int& told = told_[static_cast<std::size_t>(id)];
        if (++told <= mostOfAKind) {
            engine_.report(id, source_.placeOf(text_.substr(at_, length)), arguments,
                           std::move(hint));
        }
    }

    void closeGroup() {
        if (open_.empty()) {
            report(DiagnosticId::UnbalancedBrace, 1, {"}"}, "write \\} for a brace to be seen");
        } else {
            open_.pop_back();
        }
        ++at_;
    }

    void readBackslash() {
        const std::size_t next = at_ + 1;
        const char character = next < text_.size() ? text_[next] : '\0';
        if (isLetter(character)) {
            readControlWord();
        } else if (character == '\'') {
            const bool isWhole = next + 2 < text_.size() && isHexDigit(text_[next + 1]) &&
                                 isHexDigit(text_[next + 2]);
            if (!isWhole) {
                report(DiagnosticId::LoneBackslash, 2, {}, "two hexadecimal digits follow \\'");
            }
            at_ = next + (isWhole ? 3 : 1);
        } else if (std::string_view("\\{}~-_*|:").find(character) != std::string_view::npos &&
                   next < text_.size()) {
            at_ = next + 1;
        } else {
            report(DiagnosticId::LoneBackslash, 1, {}, "write \\\\ for a backslash to be seen");
            at_ = next;
        }
    }

    void readControlWord() {
        std::size_t end = at_ + 1;
        while (end < text_.size() && isLetter(text_[end])) {
            ++end;
        }
        const std::string_view written = text_.substr(at_ + 1, end - at_ - 1);
        const std::string word = isLowered_ ? lowerCase(written) : std::string(written);
        if (!isRtfWord(word)) {
            report(DiagnosticId::UnknownControlWord, end - at_, {"\\" + word},
                   "write \\\\ for a backslash to be seen");
        }
        std::string_view brought = broughtBy(word);
        if (word == "fldinst") {
            brought = broughtByField(text_.substr(end, 200));
        }
        if (!brought.empty()) {
            report(DiagnosticId::EmbeddedContent, end - at_, {"\\" + word, brought}, "");
        }
        at_ = end;
    }

    void readOtherCharacter() {
        const Utf8Character character = utf8CharacterAt(text_, at_);
        if (const auto meant = utf8InCodePage()) {
            const std::string_view shown = text_.substr(at_, meant->length);
            if (codePage1252FromUtf8(meant->text) == "?") {
                report(DiagnosticId::UnencodableCharacter, meant->length, {meant->text},
                       unicodeHint(meant->code));
            } else {
                report(DiagnosticId::Utf8Text, meant->length, {meant->text, shown},
                       "save the file in Windows-1252, or write " + escape(meant->text));
            }
            at_ += meant->length;
            return;
        }
        const std::string_view bytes = text_.substr(at_, character.length);
        const bool isControl = character.code < 0xA0 && character.code >= 0x80;
        if (isControl) {
            report(DiagnosticId::ControlCharacter, bytes.size(),
                   {numberedCharacter(character.code)}, "");
        } else if (codePage1252FromUtf8(bytes) == "?") {
            report(DiagnosticId::UnencodableCharacter, bytes.size(), {bytes},
                   unicodeHint(character.code));
        }
        at_ += character.length;
    }

    struct MeantCharacter {
        std::string text;
        char32_t code;
        /// Bytes that it takes up in the text here.
        std::size_t length;
    };

    /// The character that was meant where a file in UTF-8 was read in Windows-1252.
    std::optional<MeantCharacter> utf8InCodePage() const {
        std::string bytes;
        std::size_t end = at_;
        std::array<std::size_t, 5> ends{};
        while (bytes.size() < 4 && end < text_.size()) {
            const Utf8Character character = utf8CharacterAt(text_, end);
            const std::string byte = codePage1252FromUtf8(text_.substr(end, character.length));
            if (byte.size() != 1 || static_cast<unsigned char>(byte[0]) < 0x80) {
                break;
            }
            end += character.length;
            bytes += byte;
            ends[bytes.size()] = end;
        }
        const Utf8Character meant =
            bytes.empty() ? Utf8Character{strayByte} : utf8CharacterAt(bytes, 0);
        if (meant.code >= strayByte || meant.length < 2) {
            return std::nullopt;
        }
        return MeantCharacter{bytes.substr(0, meant.length), meant.code, ends[meant.length] - at_};
    }

    static std::string unicodeHint(char32_t code) {
        if (code > 0xFFFF) {
            return {};
        }
        const long number = static_cast<long>(code) - (code > 0x7FFF ? 0x10000 : 0);
        return "write \\u" + std::to_string(number) + "?";
    }

    static std::string escape(const std::string& character) {
        constexpr std::string_view digits = "0123456789abcdef";
        const auto byte = static_cast<unsigned char>(codePage1252FromUtf8(character)[0]);
        return std::string("\\'") + digits[byte / 16] + digits[byte % 16];
    }

    std::string_view text_;
    bool isLowered_;
    const SourceText& source_;
    DiagnosticEngine& engine_;
    std::size_t at_ = 0;
    std::vector<std::size_t> open_;
    std::array<int, 256> told_{};
};

}  // namespace

void findTextWarnings(std::string_view text, const SourceText& source, DiagnosticEngine& engine) {
    TextWarnings(text, false, source, engine).find();
}

void findFormatWarnings(std::string_view format, const SourceText& source,
                        DiagnosticEngine& engine) {
    TextWarnings(format, true, source, engine).find();
}

}  // namespace quorvane
