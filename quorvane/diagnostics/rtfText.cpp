#include "quorvane/diagnostics/rtfText.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/diagnostics/documentNumbers.h"
#include "quorvane/diagnostics/misreadCharacters.h"
#include "quorvane/diagnostics/nearestWord.h"
#include "quorvane/diagnostics/rtfControls.h"
#include "quorvane/diagnostics/rtfWords.h"
#include "quorvane/support/codePage1252.h"
#include "quorvane/support/textCase.h"
#include "quorvane/support/utf8.h"

namespace quorvane {

namespace {

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

/// What a field of that name brings along; empty when it does no harm.
std::string_view broughtByFieldNamed(std::string_view name) {
    constexpr std::pair<std::string_view, std::string_view> fields[] = {
        {"MACROBUTTON", "a macro"},
        {"GOTOBUTTON", "a macro"},
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
        {"HTMLACTIVEX", "a program"},
        {"PRINT", "commands for the printer"},
    };
    for (const auto& [field, what] : fields) {
        if (name == field) {
            return what;
        }
    }
    return {};
}

/// The first word of a text, or what its first quotation marks hold.
std::string firstWord(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return std::string(text.starts_with('"') ? text.substr(1, text.find('"', 1) - 1)
                                             : text.substr(0, text.find(' ')));
}

/// What the instruction of a field, given as plain text, brings along; empty when it does no harm.
std::string_view broughtByField(std::string_view instruction) {
    instruction.remove_prefix(std::min(instruction.find_first_not_of(' '), instruction.size()));
    std::string name;
    for (const char character : instruction) {
        if (std::isalpha(static_cast<unsigned char>(character)) == 0) {
            break;
        }
        name += static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    }
    if (name != "HYPERLINK") {
        return broughtByFieldNamed(name);
    }
    const std::string target = lowerCase(firstWord(instruction.substr(name.size())));
    constexpr std::string_view harmless[] = {"http://", "https://", "mailto:", "\\l"};
    const bool isHarmless = target.empty() || std::any_of(std::begin(harmless), std::end(harmless),
                                                          [&](std::string_view begin) {
                                                              return target.starts_with(begin);
                                                          });
    return isHarmless ? std::string_view() : "a link to a file";
}

/// Control words that end a cell, a row or the page that the table stands on.
bool endsCell(std::string_view word) {
    constexpr std::string_view words[] = {"cell", "cellx", "row", "sect", "trowd"};
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

/// Destinations whose text is part of the text around them.
bool isOfText(std::string_view destination) {
    return destination == "field" || destination == "fldrslt" || destination == "rtf" ||
           destination == "result";
}

/// What an author most likely means by a control word that is none.
std::string nearControlWord(std::string_view word) {
    constexpr std::string_view words[] = {
        "additive", "b",     "caps",      "cb",  "cbpat", "cf",    "chcbpat", "emdash",
        "endash",   "expnd", "expndtw",   "f",   "fi",    "field", "fldinst", "fldrslt",
        "footnote", "fs",    "highlight", "i",   "keep",  "keepn", "lang",    "li",
        "line",     "outl",  "page",      "par", "plain", "qc",    "qj",      "ql",
        "qr",       "ri",    "sa",        "sb",  "scaps", "shad",  "sl",      "slmult",
        "strike",   "sub",   "super",     "tab", "uldb",  "ul",    "ulnone",  "ulw",
    };
    constexpr std::pair<std::string_view, std::string_view> others[] = {
        {"bold", "b"},        {"italic", "i"},  {"italics", "i"},     {"underline", "ul"},
        {"underlined", "ul"}, {"color", "cf"},  {"colour", "cf"},     {"size", "fs"},
        {"fontsize", "fs"},   {"font", "f"},    {"center", "qc"},     {"centered", "qc"},
        {"left", "ql"},       {"right", "qr"},  {"justify", "qj"},    {"justified", "qj"},
        {"n", "line"},        {"br", "line"},   {"newline", "line"},  {"t", "tab"},
        {"r", "line"},        {"indent", "li"}, {"background", "cb"}, {"nbsp", "~"},
    };
    for (const auto& [other, meant] : others) {
        if (lowerCase(word) == other) {
            return "did you mean \\" + std::string(meant) + "?";
        }
    }
    const std::string_view nearest = nearestWord(word, words);
    return nearest.empty() ? std::string() : "did you mean \\" + std::string(nearest) + "?";
}

class TextWarnings {
public:
    TextWarnings(std::string_view text, TextUse use, const KnownStyles* styles,
                 const SourceText& source, DiagnosticEngine& engine)
        : text_(text),
          use_(use),
          styles_(styles),
          source_(source),
          engine_(engine),
          tokens_(use == TextUse::Text ? text : std::string_view()) {}

    void find() {
        groups_.emplace_back().isFresh = false;
        while (at_ < text_.size()) {
            takeCharacter();
        }
        for (auto group = groups_.begin() + 1; group != groups_.end(); ++group) {
            at_ = group->brace;
            report(DiagnosticId::UnbalancedBrace, 1, {"{"}, braceHint('{'));
        }
        for (const Instruction& instruction : instructions_) {
            const std::string_view brought = broughtByField(instruction.text);
            if (!brought.empty()) {
                at_ = instruction.at;
                report(DiagnosticId::EmbeddedContent, instruction.length, {"\\fldinst", brought},
                       "");
            }
        }
    }

    void findInData() {
        while (at_ < text_.size()) {
            if (static_cast<unsigned char>(text_[at_]) < 0x80) {
                ++at_;
            } else {
                readOtherCharacter();
            }
        }
    }

private:
    static constexpr int mostOfAKind = 10;
    // An instruction's name and its file stand at its beginning.
    static constexpr std::size_t longestInstruction = 1000;

    /// What the field of a group is to do, as plain text.
    struct Instruction {
        std::size_t at;
        std::size_t length;
        std::string text;
    };

    struct Group {
        std::size_t brace = 0;
        bool isFresh = true;
        // True for text that is not the paragraph's own, such as that of a footnote.
        bool isAside = false;
        // Position of the instruction that the group's text belongs to, from 1 on; 0 for none.
        std::size_t instruction = 0;
        // Characters behind a \u that stand in for it.
        int substitutes = 0;
    };

    void report(DiagnosticId id, std::size_t length,
                std::initializer_list<std::string_view> arguments, std::string hint) {
        int& told = told_[static_cast<std::size_t>(id)];
        if (++told <= mostOfAKind) {
            engine_.report(id, source_.placeOf(text_.substr(at_, length)), arguments,
                           std::move(hint));
        }
    }

    bool isOfStyleSheet() const { return use_ != TextUse::Text; }

    std::string braceHint(char brace) const {
        return isOfStyleSheet() ? "a stylesheet has no braces but those around its definitions"
                                : std::string("write \\") + brace + " for a brace to be seen";
    }

    std::string backslashHint() const {
        return isOfStyleSheet() ? "a backslash begins a control word, such as \\b or \\fs20"
                                : "write \\\\ for a backslash to be seen";
    }

    void takeCharacter() {
        const char character = text_[at_];
        if (character == '{') {
            openGroup();
        } else if (character == '}') {
            closeGroup();
        } else if (character == '\\') {
            readBackslash();
        } else if (character == '<' && tokens_.nameAt(at_)) {
            // The name of an inline style is no text.
            ++openTokens_;
            at_ += tokens_.nameAt(at_)->size() + 2;
        } else if (character == '>' && openTokens_ > 0) {
            --openTokens_;
            ++at_;
        } else {
            readPlainCharacter();
        }
    }

    void readPlainCharacter() {
        const char character = text_[at_];
        addToInstruction(character);
        groups_.back().isFresh = false;
        if (static_cast<unsigned char>(character) >= 0x80) {
            readOtherCharacter();
            return;
        }
        if (static_cast<unsigned char>(character) < 0x20 || character == 0x7F) {
            report(DiagnosticId::ControlCharacter, 1,
                   {numberedCharacter(static_cast<unsigned char>(character))},
                   character == '\t' ? "write \\tab for a tab" : "");
        }
        ++at_;
    }

    void addToInstruction(char character) {
        if (substitutesLeft_ > 0) {
            --substitutesLeft_;
            return;
        }
        const Group& group = groups_.back();
        if (group.instruction > 0 && !group.isAside) {
            std::string& text = instructions_[group.instruction - 1].text;
            if (text.size() < longestInstruction) {
                text += character;
            }
        }
    }

    void openGroup() {
        Group group = groups_.back();
        groups_.back().isFresh = false;
        group.brace = at_++;
        group.isFresh = true;
        groups_.push_back(group);
        substitutesLeft_ = 0;
    }

    void closeGroup() {
        if (groups_.size() == 1) {
            report(DiagnosticId::UnbalancedBrace, 1, {"}"}, braceHint('}'));
        } else {
            groups_.pop_back();
        }
        substitutesLeft_ = 0;
        ++at_;
    }

    void readBackslash() {
        const RtfControl control = rtfControlAt(text_, at_);
        if (!control.word.empty()) {
            readControlWord(control);
            return;
        }
        if (control.symbol == '*') {
            groups_.back().isAside = groups_.back().isAside || groups_.back().isFresh;
            at_ += control.length;
            return;
        }
        groups_.back().isFresh = false;
        if (const std::optional<char> character = characterOf(control, text_, at_)) {
            addToInstruction(*character);
        }
        if (control.symbol == '\'' && control.length < 4) {
            report(DiagnosticId::LoneBackslash, 2, {}, "two hexadecimal digits follow \\'");
            at_ += 2;
        } else if (control.symbol != '\0' &&
                   std::string_view("'\\{}~-_|:").find(control.symbol) != std::string_view::npos) {
            at_ += control.length;
        } else {
            report(DiagnosticId::LoneBackslash, 1, {}, backslashHint());
            ++at_;
        }
    }

    void readControlWord(const RtfControl& control) {
        const std::string word =
            isOfStyleSheet() ? lowerCase(control.word) : std::string(control.word);
        enterDestination(word, control);
        if (!isRtfWord(word)) {
            const std::string near = nearControlWord(word);
            report(DiagnosticId::UnknownControlWord, control.word.size() + 1, {"\\" + word},
                   near.empty()       ? backslashHint()
                   : isOfStyleSheet() ? near
                                      : near + " For a backslash to be seen write \\\\");
        }
        const std::string_view brought = broughtBy(word);
        if (!brought.empty()) {
            report(DiagnosticId::EmbeddedContent, control.word.size() + 1, {"\\" + word, brought},
                   "");
        }
        const std::string_view shown = text_.substr(at_, control.shownLength);
        if (endsCell(word) && !groups_.back().isAside) {
            report(DiagnosticId::TableControl, shown.size(), {shown}, "");
        }
        if (const std::string_view missing = missingReference(word, control, styles_);
            !missing.empty() && !groups_.back().isAside) {
            report(DiagnosticId::UnknownNumber, shown.size(), {shown, missing}, "");
        }
        readCharacterWord(word, control);
        at_ += control.length;
    }

    void readCharacterWord(const std::string& word, const RtfControl& control) {
        if (const std::optional<char> character = characterOf(control, text_, at_)) {
            addToInstruction(*character);
        }
        if (word == "u") {
            substitutesLeft_ = groups_.back().substitutes;
        } else if (word == "uc") {
            groups_.back().substitutes = std::clamp(control.number.value_or(1), 0, 100);
        }
    }

    void enterDestination(const std::string& word, const RtfControl& control) {
        Group& group = groups_.back();
        if (word == "fldinst") {
            instructions_.push_back({at_, control.shownLength, {}});
            group.instruction = instructions_.size();
            group.isAside = false;
        } else if (group.isFresh && isRtfDestination(word)) {
            group.isAside = !isOfText(word);
        }
        group.isFresh = false;
    }

    void readOtherCharacter() {
        const Utf8Character character = utf8CharacterAt(text_, at_);
        if (const auto meant = utf8InCodePage()) {
            const std::string_view shown = text_.substr(at_, meant->length);
            if (codePage1252FromUtf8(meant->text) == "?") {
                report(DiagnosticId::UnencodableCharacter, meant->length,
                       {meant->text, misreadText(shown)}, unicodeHint(meant->code));
            } else {
                report(DiagnosticId::Utf8Text, meant->length, {meant->text, shown},
                       "save the file in Windows-1252" +
                           (canHoldControls() ? ", or write " + escape(meant->text) : ""));
            }
            at_ += meant->length;
            return;
        }
        const std::string_view bytes = text_.substr(at_, character.length);
        const bool isControl = character.code < 0xA0 && character.code >= 0x80;
        if (isControl && use_ != TextUse::FieldData) {
            report(DiagnosticId::ControlCharacter, bytes.size(),
                   {numberedCharacter(character.code)}, "");
        } else if (codePage1252FromUtf8(bytes) == "?") {
            report(DiagnosticId::UnencodableCharacter, bytes.size(),
                   {bytes, "becomes a question mark"}, unicodeHint(character.code));
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

    /// True where a character can be written as a control word.
    bool canHoldControls() const { return use_ == TextUse::Text || use_ == TextUse::Format; }

    // The document says that nothing stands in for such a character, but not all readers heed it.
    std::string unicodeHint(char32_t code) const {
        if (!canHoldControls() || use_ == TextUse::Format || code > 0xFFFF) {
            return {};
        }
        const long number = static_cast<long>(code) - (code > 0x7FFF ? 0x10000 : 0);
        return "write {\\uc1\\u" + std::to_string(number) + "?}";
    }

    static std::string escape(const std::string& character) {
        constexpr std::string_view digits = "0123456789abcdef";
        const auto byte = static_cast<unsigned char>(codePage1252FromUtf8(character)[0]);
        return std::string("\\'") + digits[byte / 16] + digits[byte % 16];
    }

    std::string_view text_;
    TextUse use_;
    const KnownStyles* styles_;
    const SourceText& source_;
    DiagnosticEngine& engine_;
    InlineTokens tokens_;
    std::size_t at_ = 0;
    // The groups that are open, behind one for the text itself.
    std::vector<Group> groups_;
    std::vector<Instruction> instructions_;
    int openTokens_ = 0;
    int substitutesLeft_ = 0;
    std::array<int, 256> told_{};
};

}  // namespace

void findTextWarnings(std::string_view text, TextUse use, const KnownStyles* styles,
                      const SourceText& source, DiagnosticEngine& engine) {
    TextWarnings warnings(text, use, styles, source, engine);
    if (use == TextUse::FieldData) {
        warnings.findInData();
    } else {
        warnings.find();
    }
}

}  // namespace quorvane
