#include "quorvane/diagnostics/text/rtfText.h"

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

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/diagnostics/text/InlineTokens.h"
#include "quorvane/diagnostics/text/documentNumbers.h"
#include "quorvane/diagnostics/text/mojibake.h"
#include "quorvane/rtf/RtfControl.h"
#include "quorvane/rtf/RtfGroup.h"
#include "quorvane/rtf/RtfWord.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

namespace quorvane {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;

std::string numberedCharacter(char32_t code) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "U+";
    for (int shift = code > 0xFFFF ? 20 : 12; shift >= 0; shift -= 4) {
        text += digits[code >> shift & 15U];
    }
    return text;
}

/// What a control word brings into a document that nobody sees in the text; empty when nothing.
std::string_view nameOf(RtfContent content) {
    switch (content) {
        case RtfContent::Object:
            return "an object";
        case RtfContent::Picture:
            return "a picture";
        case RtfContent::BinaryData:
            return "binary data";
        case RtfContent::FileLink:
            return "a link to a file";
        case RtfContent::Program:
            return "a program";
        case RtfContent::Macro:
            return "a macro";
        case RtfContent::None:
            break;
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
bool endsCell(RtfRole role) {
    return role == RtfRole::Cell || role == RtfRole::CellDefinition || role == RtfRole::Row ||
           role == RtfRole::Section || role == RtfRole::RowDefinition;
}

/// Control words of a table within a cell, which are sound in a text that holds all of its rows.
bool isOfNestedTable(RtfRole role) {
    return role == RtfRole::NestedCell || role == RtfRole::NestedRow || role == RtfRole::Level;
}

/// Control words that begin what a document begins with.
bool beginsHeader(const RtfWord& word) {
    return word.role == RtfRole::Document || word.destination == RtfDestination::FontTable ||
           word.destination == RtfDestination::ColorTable ||
           word.destination == RtfDestination::StyleSheet;
}

/// True when the rows of the tables within a text are whole.
bool hasWholeNestedRows(std::string_view text) {
    const std::vector<Diagnostic> diagnostics =
        checkRtf("{\\rtf1\\trowd\\cellx9 " + std::string(text) + "\\cell\\row}");
    return std::none_of(diagnostics.begin(), diagnostics.end(), [](const Diagnostic& diagnostic) {
        return diagnostic.id == DiagnosticId::CellCount ||
               diagnostic.id == DiagnosticId::UnevenRow ||
               diagnostic.id == DiagnosticId::UnendedRow ||
               diagnostic.id == DiagnosticId::RowWithoutCells;
    });
}

/// What an author most likely means by an unknown control word.
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
    // As other languages write a line break or a tab in front of a word.
    if (word.size() > 1 && std::string_view("nrt").find(word[0]) != nowhere &&
        std::isupper(static_cast<unsigned char>(word[1])) != 0) {
        return "did you mean \\" + std::string(word[0] == 't' ? "tab " : "line ") +
               std::string(word.substr(1)) + "?";
    }
    const std::string_view nearest = nearestWord(word, words);
    return nearest.empty() ? std::string() : "did you mean \\" + std::string(nearest) + "?";
}

/// A control word that stands in a format without its backslash, with one in front; empty for any
/// other word.
std::string asControlWord(std::string_view word) {
    const std::string control = "\\" + lowerCase(word);
    const RtfControl read = rtfControlAt(control, 0);
    return findRtfWord(read.word) && read.length == control.size() ? control : std::string();
}

/// The control words that a text in a format was most likely meant to be, where all of its words
/// are known.
std::string controlWordsMeant(std::string_view text) {
    constexpr std::string_view separators = " \t\r\n,/";
    std::string meant;
    for (std::size_t start = text.find_first_not_of(separators); start != std::string_view::npos;) {
        const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
        const std::string control = asControlWord(text.substr(start, end - start));
        if (control.empty()) {
            return {};
        }
        meant += control;
        start = text.find_first_not_of(separators, end);
    }
    return meant;
}

/// What to write in place of a text in a format that follows a control word.
std::string formatTextHint(std::string_view text, const RtfControl* before) {
    const std::string word = before ? "\\" + lowerCase(before->word) : std::string();
    const bool takesNumber = before && !before->number;
    const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
    if (takesNumber && digits > 0) {
        return "remove the blank before the number: " + word + std::string(text.substr(0, digits));
    }
    if (takesNumber && (word == "\\cf" || word == "\\highlight" || word == "\\cb")) {
        std::string name = lowerCase(text);
        std::replace(name.begin(), name.end(), ' ', '-');
        if (const int number = CRtfGrpColorTable::colorNumber(name); number > 0) {
            return "did you mean " + word + std::to_string(number) + "?";
        }
    }
    if (before && before->number && text.size() > 1 && (text[0] == '.' || text[0] == ',') &&
        std::isdigit(static_cast<unsigned char>(text[1])) != 0) {
        return "the number of a control word must be a whole number";
    }
    if (const std::string meant = controlWordsMeant(text); !meant.empty()) {
        return "did you mean " + meant + "?";
    }
    if (text == ",") {
        return "remove the comma between the control words";
    }
    if (before && before->number && lowerCase(text) == "pt") {
        return word == "\\fs" ? "write the size in half points, without a unit: \\fs20 is 10 points"
                              : "write the number without a unit";
    }
    return "a format consists of control words, such as \\fs20\\b";
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
        endFormatText();
        findBrokenNestedTables();
        for (auto group = groups_.begin() + 1; group != groups_.end(); ++group) {
            at_ = group->brace;
            report(DiagnosticId::UnbalancedBrace, 1, {"{"},
                   braceHint('{', !beginsGroup(group->brace)));
        }
        for (const Instruction& instruction : instructions_) {
            std::string_view brought = broughtByField(instruction.text);
            if (brought.empty()) {
                brought = broughtByField(instruction.substituted);
            }
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
    static constexpr int maxOfAKind = 10;
    // An instruction's name and its file stand at its beginning.
    static constexpr std::size_t longestInstruction = 1000;

    /// What the field of a group is to do, as plain text.
    struct Instruction {
        std::size_t at;
        std::size_t length;
        std::string text;
        // The same for readers that take one character to stand in for each \u.
        std::string substituted;
    };

    struct Part {
        std::size_t at;
        std::size_t length;
    };

    struct Group : RtfGroup {
        std::size_t brace = 0;
        // Position of the instruction that the group's text belongs to, counted from 1; 0 for none.
        std::size_t instruction = 0;
        // Characters after a \u that stand in for it.
        int substitutes = 0;
    };

    void report(DiagnosticId id, std::size_t length,
                std::initializer_list<std::string_view> arguments, Hint hint) {
        int& reported = reported_[static_cast<std::size_t>(id)];
        if (++reported <= maxOfAKind) {
            engine_.report(id, source_.placeOf(text_.substr(at_, length)), arguments,
                           std::move(hint));
        }
    }

    void findBrokenNestedTables() {
        if (nestedControls_.empty() || (!leavesLevel_ && hasWholeNestedRows(text_))) {
            return;
        }
        for (const Part& part : nestedControls_) {
            at_ = part.at;
            report(DiagnosticId::TableControl, part.length, {text_.substr(at_, part.length)},
                   "a nested table needs complete rows, with a definition for each \\nestcell, and "
                   "\\itap1 after them");
        }
    }

    bool isOfStyleSheet() const { return use_ != TextUse::Text; }

    /// `isSeen` is true for a brace that certainly is meant to be seen.
    Hint braceHint(char brace, bool isSeen) const {
        if (isOfStyleSheet()) {
            return "in a stylesheet, braces can only enclose definitions";
        }
        const std::string escaped = std::string("\\") + brace;
        Hint hint("write " + escaped + " for a literal brace");
        if (isSeen) {
            hint.replacement = escaped;
        }
        return hint;
    }

    /// True when a control follows the brace: it may begin a group that was not closed.
    bool beginsGroup(std::size_t brace) const { return text_.substr(brace + 1).starts_with('\\'); }

    /// What a backslash is that stands before no control: one to be seen, unless it may be meant to
    /// escape the character after it.
    Hint loneBackslashHint() const {
        const std::string_view rest = text_.substr(at_ + 1);
        const bool isSeen = rest.empty() || rest.front() == ' ' ||
                            std::isdigit(static_cast<unsigned char>(rest.front())) != 0 ||
                            static_cast<unsigned char>(rest.front()) >= 0x80;
        Hint hint(backslashHint());
        if (isSeen && !isOfStyleSheet()) {
            hint.replacement = "\\\\";
        }
        return hint;
    }

    std::string backslashHint() const {
        return isOfStyleSheet() ? "a backslash begins a control word, such as \\b or \\fs20"
                                : "write \\\\ for a literal backslash";
    }

    void takeCharacter() {
        const char character = text_[at_];
        if (character == '{' || character == '}' || character == '\\') {
            endFormatText();
        }
        if (character == '{') {
            openGroup();
        } else if (character == '}') {
            closeGroup();
        } else if (character == '\\') {
            readBackslash();
        } else if (character == '<' && tokens_.nameAt(at_)) {
            // The name of an inline style is not text.
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
        if (static_cast<unsigned char>(character) < 0x80 ||
            !isInvisible(utf8CharacterAt(text_, at_).code)) {
            addToInstruction(character);
        }
        if (use_ == TextUse::Format) {
            readFormatText(character);
        }
        groups_.back().isFresh = groups_.back().isFresh && (character == ' ' || character == '\t');
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

    /// In a format that begins with "^", a "^" and a letter begin each of its parts.
    void readFormatText(char character) {
        if (character == '^' && text_.front() == '^') {
            endFormatText();
            partBegin_ = at_;
            lastControl_.reset();
            return;
        }
        const bool isPrinted =
            partBegin_ == nowhere ||
            (at_ > partBegin_ + 1 &&
             std::string_view("vfp").find(lowerCase(text_.substr(partBegin_ + 1, 1))) != nowhere);
        if (isPrinted && at_ >= swallowedEnd_ && !isWhitespace(character)) {
            formatTextBegin_ = std::min(formatTextBegin_, at_);
            formatTextEnd_ = at_ + 1;
        }
    }

    /// Reports the text in a format that ends here.
    void endFormatText() {
        if (formatTextBegin_ == nowhere) {
            return;
        }
        const std::size_t at = std::exchange(at_, std::exchange(formatTextBegin_, nowhere));
        const std::string_view text = text_.substr(at_, formatTextEnd_ - at_);
        report(DiagnosticId::FormatText, text.size(), {text},
               formatTextHint(text, lastControl_ ? &*lastControl_ : nullptr));
        at_ = at;
    }

    /// Adds a character to what the field is to do; `isWritten` is false for one that a \u names.
    void addToInstruction(char character, bool isWritten = true) {
        const bool isSubstitute = isWritten && std::exchange(followsUnicode_, false);
        if (isWritten && substitutesLeft_ > 0) {
            --substitutesLeft_;
            return;
        }
        const Group& group = groups_.back();
        if (group.instruction == 0 || group.destination != RtfDestination::Instruction) {
            return;
        }
        Instruction& instruction = instructions_[group.instruction - 1];
        if (instruction.text.size() < longestInstruction) {
            instruction.text += character;
        }
        if (!isSubstitute && instruction.substituted.size() < longestInstruction) {
            instruction.substituted += character;
        }
    }

    /// A group of nothing but words at a text's own level, whose braces were meant to be seen.
    void findHiddenBraces() {
        const std::size_t end = text_.find_first_of("{}\\<", at_ + 1);
        if (use_ != TextUse::Text || groups_.size() > 1 || end == nowhere || text_[end] != '}' ||
            trimWhitespace(text_.substr(at_ + 1, end - at_ - 1)).empty()) {
            return;
        }
        const std::string_view group = text_.substr(at_, end + 1 - at_);
        report(DiagnosticId::HiddenBraces, group.size(), {},
               "write \\{ and \\} for literal braces");
    }

    void openGroup() {
        findHiddenBraces();
        groups_.back().isFresh = false;
        Group group = groups_.back();
        static_cast<RtfGroup&>(group) = groups_.back().inner();
        group.brace = at_++;
        groups_.push_back(group);
        substitutesLeft_ = 0;
        followsUnicode_ = false;
    }

    void closeGroup() {
        if (groups_.size() == 1) {
            report(DiagnosticId::UnbalancedBrace, 1, {"}"}, braceHint('}', !hasControlOutside_));
        } else {
            groups_.pop_back();
        }
        substitutesLeft_ = 0;
        followsUnicode_ = false;
        ++at_;
    }

    void readBackslash() {
        const RtfControl control = rtfControlAt(text_, at_);
        lastControl_.reset();
        if (!control.word.empty()) {
            lastControl_ = control;
            hasControlOutside_ = hasControlOutside_ || groups_.size() == 1;
            readControlWord(control);
            return;
        }
        if (control.symbol == '*') {
            groups_.back().takeMark();
            at_ += control.length;
            return;
        }
        groups_.back().isFresh = false;
        if (const std::optional<char> character = characterOf(control, text_, at_)) {
            addToInstruction(*character);
        }
        if (control.isBadEscape()) {
            report(DiagnosticId::LoneBackslash, 2, {}, "write two hexadecimal digits after \\'");
            swallowedEnd_ = at_ + 4;
            at_ += 2;
        } else if (isRtfSymbol(control.symbol)) {
            at_ += control.length;
        } else {
            report(DiagnosticId::LoneBackslash, 1, {}, loneBackslashHint());
            swallowedEnd_ = at_ + 2;
            ++at_;
        }
    }

    void readControlWord(const RtfControl& control) {
        // A stylesheet's formats are written in lower case.
        const std::string letters =
            isOfStyleSheet() ? lowerCase(control.word) : std::string(control.word);
        const RtfWord* const word = findRtfWord(letters);
        enterDestination(word, control);
        if (word) {
            readKnownWord(*word, control);
        } else {
            const std::string near = nearControlWord(letters);
            report(DiagnosticId::UnknownControlWord, control.word.size() + 1, {"\\" + letters},
                   near.empty()       ? backslashHint()
                   : isOfStyleSheet() ? near
                                      : near + " For a literal backslash, write \\\\");
        }
        at_ = std::min(at_ + control.length + binaryLengthAfter(control), text_.size());
    }

    void readKnownWord(const RtfWord& word, const RtfControl& control) {
        const std::string_view brought = nameOf(word.brings);
        if (!brought.empty()) {
            report(DiagnosticId::EmbeddedContent, control.word.size() + 1,
                   {"\\" + std::string(word.word), brought}, "");
        }
        const std::string_view shown = text_.substr(at_, control.shownLength);
        const Group& group = groups_.back();
        if (endsCell(word.role) && group.destination == RtfDestination::Text) {
            report(DiagnosticId::TableControl, shown.size(), {shown}, "");
        } else if (isOfNestedTable(word.role) && group.isOfDocument()) {
            nestedControls_.push_back({at_, shown.size()});
            leavesLevel_ =
                word.role == RtfRole::Level ? control.number.value_or(0) > 1 : leavesLevel_;
        } else if (word.role == RtfRole::ParagraphReset) {
            leavesLevel_ = false;
        } else if (beginsHeader(word)) {
            report(DiagnosticId::HeaderControl, shown.size(), {shown}, "");
        }
        if (const std::string_view missing = missingReference(word, control, styles_);
            !missing.empty() && group.isOfDocument()) {
            report(DiagnosticId::UnknownNumber, shown.size(), {shown, missing}, "");
        }
        readCharacterWord(word, control);
    }

    void readCharacterWord(const RtfWord& word, const RtfControl& control) {
        if (const std::optional<char> character = characterOf(control, text_, at_)) {
            addToInstruction(*character, word.role != RtfRole::Unicode);
        }
        if (word.role == RtfRole::Unicode) {
            findShownSubstitute();
            substitutesLeft_ = groups_.back().substitutes;
            followsUnicode_ = true;
        } else if (word.role == RtfRole::UnicodeLength) {
            groups_.back().substitutes = std::clamp(control.number.value_or(1), 0, 100);
        }
    }

    /// A "?" right after a \u where the text says that nothing stands in for its character. Of
    /// those that follow each other, as the halves of a character beyond 65535, the first one is
    /// reported.
    void findShownSubstitute() {
        const std::size_t first = at_;
        std::size_t end = at_;
        std::size_t shown = 0;
        while (end < text_.size() && text_[end] == '\\') {
            const RtfControl control = rtfControlAt(text_, end);
            const std::size_t after = end + control.shownLength;
            if (control.word != "u" || !control.number || after >= text_.size() ||
                text_[after] != '?') {
                break;
            }
            shown = shown == 0 ? control.shownLength : shown;
            end = after + 1;
        }
        if (use_ != TextUse::Text || end == first || first < substitutesEnd_ ||
            groups_.back().substitutes > 0 || !groups_.back().isOfDocument() ||
            groups_.back().instruction > 0) {
            return;
        }
        substitutesEnd_ = end;
        const std::string group = "{\\uc1" + std::string(text_.substr(first, end - first)) + "}";
        report(DiagnosticId::ShownSubstitute, end - first, {text_.substr(first, shown)},
               {"write " + group, group});
    }

    void enterDestination(const RtfWord* word, const RtfControl& control) {
        Group& group = groups_.back();
        if (word && word->destination == RtfDestination::Instruction) {
            instructions_.push_back({at_, control.shownLength, {}, {}});
            group.instruction = instructions_.size();
        }
        group.takeWord(word);
    }

    void readOtherCharacter() {
        const Utf8Character character = utf8CharacterAt(text_, at_);
        if (const auto meant = utf8InCodePage()) {
            const std::string_view shown = text_.substr(at_, meant->length);
            if (codePage1252FromUtf8(meant->text) == "?") {
                report(DiagnosticId::UnencodableCharacter, meant->length,
                       {meant->text, mojibakeText(shown)}, unicodeHint(meant->code));
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
            report(DiagnosticId::UnencodableCharacter, bytes.size(), {bytes, "?"},
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
    // The groups that are open, after one for the text itself.
    std::vector<Group> groups_;
    std::vector<Instruction> instructions_;
    // The text in a format that is being read, and the control word before it.
    std::size_t formatTextBegin_ = nowhere;
    std::size_t formatTextEnd_ = 0;
    // Where that ends which a lone backslash swallows.
    std::size_t swallowedEnd_ = 0;
    // Where the "^" stands that begins the part of the format at hand.
    std::size_t partBegin_ = nowhere;
    std::optional<RtfControl> lastControl_;
    std::vector<Part> nestedControls_;
    // True when the text ends on a level of a table within the cell.
    bool leavesLevel_ = false;
    // True when a control word stands outside of all groups: a "}" may be the end of a group that
    // was meant to begin before it.
    bool hasControlOutside_ = false;
    int openTokens_ = 0;
    int substitutesLeft_ = 0;
    // Where those \u end that were looked at for a "?" that nothing stands in for.
    std::size_t substitutesEnd_ = 0;
    // True where the next character stands in for the one that a \u names.
    bool followsUnicode_ = false;
    std::array<int, 256> reported_{};
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
