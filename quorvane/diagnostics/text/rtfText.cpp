#include "quorvane/diagnostics/text/rtfText.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/text/asciiCharacters.h"
#include "quorvane/base/text/nowhere.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/diagnostics/text/FieldInstructions.h"
#include "quorvane/diagnostics/text/FormatText.h"
#include "quorvane/diagnostics/text/NestedTables.h"
#include "quorvane/diagnostics/text/TextGroup.h"
#include "quorvane/diagnostics/text/TextReporter.h"
#include "quorvane/diagnostics/text/characterWarnings.h"
#include "quorvane/diagnostics/text/controlWordHints.h"
#include "quorvane/diagnostics/text/documentNumbers.h"
#include "quorvane/diagnostics/text/embeddedContent.h"
#include "quorvane/docmodel/inline/InlineTokens.h"
#include "quorvane/rtf/RtfControl.h"
#include "quorvane/rtf/RtfWord.h"

namespace quorvane {

namespace {

/// Control words that end a cell, a row or the page that the table stands on.
bool endsCell(RtfRole role) {
    return role == RtfRole::Cell || role == RtfRole::CellDefinition || role == RtfRole::Row ||
           role == RtfRole::Section || role == RtfRole::RowDefinition;
}

/// Control words that begin what a document begins with.
bool beginsHeader(const RtfWord& word) {
    return word.role == RtfRole::Document || word.destination == RtfDestination::FontTable ||
           word.destination == RtfDestination::ColorTable ||
           word.destination == RtfDestination::StyleSheet;
}

/// A \u with its number and a "?" after it.
struct UnicodeWithSubstitute {
    /// The control, without the "?".
    std::string_view control;
    std::size_t end;
};

std::optional<UnicodeWithSubstitute> unicodeWithSubstituteAt(std::string_view text,
                                                             std::size_t at) {
    if (at >= text.size() || text[at] != '\\') {
        return std::nullopt;
    }
    const RtfControl control = rtfControlAt(text, at);
    const std::size_t after = at + control.shownLength;
    const bool isUnicode = control.word == "u" && control.number;
    return isUnicode && after < text.size() && text[after] == '?'
               ? std::optional(
                     UnicodeWithSubstitute{text.substr(at, control.shownLength), after + 1})
               : std::nullopt;
}

class TextWarnings {
public:
    TextWarnings(std::string_view text, TextUse use, const KnownStyles* styles,
                 TextReporter& reporter)
        : text_(text),
          use_(use),
          styles_(styles),
          reporter_(reporter),
          tokens_(use == TextUse::Text ? text : std::string_view()),
          formatText_(text, reporter) {}

    void find() {
        groups_.emplace_back().isFresh = false;
        while (at_ < text_.size()) {
            takeCharacter();
        }
        formatText_.end();
        nestedTables_.report(text_, reporter_);
        for (auto group = groups_.begin() + 1; group != groups_.end(); ++group) {
            report(DiagnosticId::UnbalancedBrace, group->brace, 1, {"{"},
                   braceHint('{', !beginsGroup(group->brace)));
        }
        instructions_.report(reporter_);
    }

private:
    void report(DiagnosticId id, std::size_t at, std::size_t length,
                std::initializer_list<std::string_view> arguments, Hint hint = {}) {
        reporter_.report(id, text_.substr(at, length), arguments, std::move(hint));
    }

    bool isOfStyleSheet() const { return use_ != TextUse::Text; }

    void takeCharacter() {
        const char character = text_[at_];
        if (character == '{' || character == '}' || character == '\\') {
            formatText_.end();
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
            instructions_.add(character, groups_.back());
        }
        if (use_ == TextUse::Format) {
            formatText_.takeCharacter(at_);
        }
        groups_.back().isFresh = groups_.back().isFresh && (character == ' ' || character == '\t');
        const bool isPrintable = character >= ' ' && character < 0x7F;
        at_ += isPrintable ? 1 : findInCharacter(text_, at_, use_, reporter_);
    }

    void openGroup() {
        findHiddenBraces();
        groups_.back().isFresh = false;
        groups_.push_back(groups_.back().inner(at_++));
        instructions_.takeBrace();
    }

    void closeGroup() {
        if (groups_.size() == 1) {
            report(DiagnosticId::UnbalancedBrace, at_, 1, {"}"},
                   braceHint('}', !hasControlOutside_));
        } else {
            groups_.pop_back();
        }
        instructions_.takeBrace();
        ++at_;
    }

    /// A group of nothing but words at a text's own level, whose braces were meant to be seen.
    void findHiddenBraces() {
        const std::size_t end = text_.find_first_of("{}\\<", at_ + 1);
        if (use_ != TextUse::Text || groups_.size() > 1 || end == nowhere || text_[end] != '}' ||
            trimWhitespace(text_.substr(at_ + 1, end - at_ - 1)).empty()) {
            return;
        }
        report(DiagnosticId::HiddenBraces, at_, end + 1 - at_, {},
               "write \\{ and \\} for literal braces");
    }

    /// True when a control follows the brace: it may begin a group that was not closed.
    bool beginsGroup(std::size_t brace) const { return text_.substr(brace + 1).starts_with('\\'); }

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

    void readBackslash() {
        const RtfControl control = rtfControlAt(text_, at_);
        formatText_.takeControl(control);
        if (!control.word.empty()) {
            hasControlOutside_ = hasControlOutside_ || groups_.size() == 1;
            readControlWord(control);
        } else if (control.symbol == '*') {
            groups_.back().takeMark();
            at_ += control.length;
        } else {
            readSymbol(control);
        }
    }

    void readSymbol(const RtfControl& control) {
        groups_.back().isFresh = false;
        if (const std::optional<char> character = characterOf(control, text_, at_)) {
            instructions_.add(*character, groups_.back());
        }
        if (control.isBadEscape()) {
            report(DiagnosticId::LoneBackslash, at_, 2, {},
                   "write two hexadecimal digits after \\'");
            formatText_.passOver(at_ + 4);
            at_ += 2;
        } else if (isRtfSymbol(control.symbol)) {
            at_ += control.length;
        } else {
            report(DiagnosticId::LoneBackslash, at_, 1, {}, loneBackslashHint());
            formatText_.passOver(at_ + 2);
            ++at_;
        }
    }

    /// A backslash that stands before no control is meant to be seen, unless it may be meant to
    /// escape the character after it.
    Hint loneBackslashHint() const {
        const std::string_view rest = text_.substr(at_ + 1);
        const bool isSeen = rest.empty() || rest.front() == ' ' || isAsciiDigit(rest.front()) ||
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

    void readControlWord(const RtfControl& control) {
        // A stylesheet's formats are written in lower case.
        const std::string letters =
            isOfStyleSheet() ? lowerCase(control.word) : std::string(control.word);
        const RtfWord* const word = findRtfWord(letters);
        if (word && word->destination == RtfDestination::Instruction) {
            groups_.back().instruction =
                instructions_.begin(text_.substr(at_, control.shownLength));
        }
        groups_.back().takeWord(word);
        if (word) {
            readKnownWord(*word, control);
        } else {
            report(DiagnosticId::UnknownControlWord, at_, control.word.size() + 1, {"\\" + letters},
                   unknownWordHint(letters));
        }
        at_ = std::min(at_ + control.length + binaryLengthAfter(control), text_.size());
    }

    std::string unknownWordHint(const std::string& word) const {
        const std::string near = nearControlWordHint(word);
        return near.empty()       ? backslashHint()
               : isOfStyleSheet() ? near
                                  : near + " For a literal backslash, write \\\\";
    }

    void readKnownWord(const RtfWord& word, const RtfControl& control) {
        if (const std::string_view content = contentOfWord(word); !content.empty()) {
            report(DiagnosticId::EmbeddedContent, at_, control.word.size() + 1,
                   {"\\" + std::string(word.word), content});
        }
        findInPlace(word, control);
        const std::string_view shown = text_.substr(at_, control.shownLength);
        if (const std::string_view missing = missingReference(word, control, styles_);
            !missing.empty() && groups_.back().isOfDocument()) {
            reporter_.report(DiagnosticId::UnknownNumber, shown, {shown, missing});
        }
        readCharacterWord(word, control);
    }

    /// Warns of a control word that cannot stand in a text, or not in this place of it.
    void findInPlace(const RtfWord& word, const RtfControl& control) {
        const std::string_view shown = text_.substr(at_, control.shownLength);
        const TextGroup& group = groups_.back();
        if (endsCell(word.role) && group.destination == RtfDestination::Text) {
            reporter_.report(DiagnosticId::TableControl, shown, {shown});
        } else if (NestedTables::have(word.role) && group.isOfDocument()) {
            nestedTables_.add(word.role, control, shown);
        } else if (word.role == RtfRole::ParagraphReset) {
            nestedTables_.leave();
        } else if (beginsHeader(word)) {
            reporter_.report(DiagnosticId::HeaderControl, shown, {shown});
        }
    }

    void readCharacterWord(const RtfWord& word, const RtfControl& control) {
        TextGroup& group = groups_.back();
        if (const std::optional<char> character = characterOf(control, text_, at_)) {
            instructions_.add(*character, group, word.role != RtfRole::Unicode);
        }
        if (word.role == RtfRole::Unicode) {
            findShownSubstitute();
            instructions_.takeUnicode(group);
        } else if (word.role == RtfRole::UnicodeLength) {
            group.substitutes = std::clamp(control.number.value_or(1), 0, 100);
        }
    }

    /// A "?" right after a \u where the text says that nothing stands in for its character. Of
    /// those that follow each other, as the halves of a character beyond 65535, the first one is
    /// reported.
    void findShownSubstitute() {
        const TextGroup& group = groups_.back();
        if (use_ != TextUse::Text || at_ < substitutesEnd_ || group.substitutes > 0 ||
            !group.isOfDocument() || group.instruction > 0) {
            return;
        }
        const auto first = unicodeWithSubstituteAt(text_, at_);
        if (!first) {
            return;
        }
        for (auto next = first; next; next = unicodeWithSubstituteAt(text_, next->end)) {
            substitutesEnd_ = next->end;
        }
        const std::string_view all = text_.substr(at_, substitutesEnd_ - at_);
        const std::string replacement = "{\\uc1" + std::string(all) + "}";
        reporter_.report(DiagnosticId::ShownSubstitute, all, {first->control},
                         {"write " + replacement, replacement});
    }

    std::string_view text_;
    TextUse use_;
    const KnownStyles* styles_;
    TextReporter& reporter_;
    InlineTokens tokens_;
    std::size_t at_ = 0;
    // The groups that are open, after one for the text itself.
    std::vector<TextGroup> groups_;
    FieldInstructions instructions_;
    FormatText formatText_;
    NestedTables nestedTables_;
    // True when a control word stands outside of all groups: a "}" may be the end of a group that
    // was meant to begin before it.
    bool hasControlOutside_ = false;
    int openTokens_ = 0;
    // Where those \u end that were looked at for a "?" that nothing stands in for.
    std::size_t substitutesEnd_ = 0;
};

/// Data is not RTF: only its characters count.
void findInData(std::string_view data, TextReporter& reporter) {
    for (std::size_t at = 0; at < data.size();) {
        at += findInCharacter(data, at, TextUse::FieldData, reporter);
    }
}

}  // namespace

void findTextWarnings(std::string_view text, TextUse use, const KnownStyles* styles,
                      const SourceText& source, DiagnosticEngine& engine) {
    TextReporter reporter(source, engine);
    if (use == TextUse::FieldData) {
        findInData(text, reporter);
    } else {
        TextWarnings(text, use, styles, reporter).find();
    }
}

}  // namespace quorvane
