#include "quorvane/diagnostics/rtf/RtfChecker.h"

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

constexpr std::size_t deepestGroups = 1000;
// So many different unknown words are reported.
constexpr std::size_t maxReportedWords = 1000;

bool isBlank(char byte) {
    return byte == ' ' || byte == '\t';
}

/// Programs write bytes of this kind after a document.
bool isPadding(char byte) {
    return isBlank(byte) || byte == '\0';
}

/// True for a control that shows a character other than a blank.
bool showsCharacter(const RtfControl& control, const RtfWord* word) {
    if (word) {
        return word->role == RtfRole::Unicode || (word->shown != '\0' && word->shown != ' ');
    }
    return control.symbol == '\'' || control.symbol == '\\' || control.symbol == '{' ||
           control.symbol == '}' || control.symbol == '_';
}

/// What stands between the groups that follow the document.
constexpr RtfGroup betweenGroups{RtfDestination::Text, false, false};

}  // namespace

void RtfChecker::feed(std::string_view bytes) {
    if (hasLostText_) {
        return;
    }
    lexer_.feed(bytes);
    for (RtfLexer::Token token = lexer_.next(); token != RtfLexer::Token::None;
         token = lexer_.next()) {
        take(token);
    }
}

void RtfChecker::take(RtfLexer::Token token) {
    if (groups_.empty()) {
        if (hasEnded_) {
            takeAfterDocument(token);
            return;
        }
        if (token != RtfLexer::Token::Open) {
            takeBeforeDocument(token);
            return;
        }
    }
    switch (token) {
        case RtfLexer::Token::Control:
            takeControl();
            break;
        case RtfLexer::Token::Text:
            takeText(lexer_.text());
            break;
        case RtfLexer::Token::Open:
            openGroup();
            break;
        case RtfLexer::Token::Close:
            closeGroup();
            break;
        case RtfLexer::Token::None:
            break;
    }
}

void RtfChecker::takeBeforeDocument(RtfLexer::Token token) {
    if (token == RtfLexer::Token::Text &&
        std::all_of(lexer_.text().begin(), lexer_.text().end(), isBlank)) {
        return;
    }
    const std::string_view text =
        token == RtfLexer::Token::Text ? lexer_.text() : std::string_view();
    const auto blanks = std::find_if_not(text.begin(), text.end(), isBlank) - text.begin();
    reportNotRtf(place(1, blanks));
}

/// Looks for text after the document, which readers do not show.
void RtfChecker::takeAfterDocument(RtfLexer::Token token) {
    if (hasLostText_) {
        return;
    }
    const std::string_view text =
        token == RtfLexer::Token::Text ? lexer_.text() : std::string_view();
    const auto padding = std::find_if_not(text.begin(), text.end(), isPadding) - text.begin();
    if (!text.empty() && padding == std::ssize(text)) {
        return;
    }
    if (!std::exchange(hasMore_, true)) {
        moreBegin_ = place(1, padding);
    }
    followAfterDocument(token);
    if (hasLostText_) {
        engine_.report(DiagnosticId::TextAfterEnd, moreBegin_);
    }
}

/// Follows the groups after the document to know which text would be shown.
void RtfChecker::followAfterDocument(RtfLexer::Token token) {
    const bool isShown = rest_.destination == RtfDestination::Text;
    const RtfControl& control = lexer_.control();
    switch (token) {
        case RtfLexer::Token::Open:
            hiddenGroups_ += isShown ? 0 : 1;
            rest_ = isShown ? RtfGroup() : rest_;
            break;
        case RtfLexer::Token::Close:
            rest_ = hiddenGroups_ > 0 ? rest_ : betweenGroups;
            hiddenGroups_ = std::max<std::int64_t>(hiddenGroups_ - 1, 0);
            break;
        case RtfLexer::Token::Text:
            hasLostText_ = isShown;
            break;
        case RtfLexer::Token::Control:
            if (!control.word.empty()) {
                rest_.takeWord(findRtfWord(control.word));
            } else if (control.symbol == '*') {
                rest_.takeMark();
            }
            hasLostText_ = isShown && showsCharacter(control, lexer_.word());
            break;
        case RtfLexer::Token::None:
            break;
    }
}

void RtfChecker::finish() {
    const bool isCutOff = lexer_.isInBinary();
    const RtfLexer::Token last = lexer_.finish();
    if (last == RtfLexer::Token::Control) {
        const bool isInDocument = !groups_.empty();
        if (isInDocument && lexer_.control().isBadEscape()) {
            engine_.report(DiagnosticId::BadHexEscape, place(1));
        } else if (isInDocument && !lexer_.word() && lexer_.control().word.empty()) {
            engine_.report(DiagnosticId::CutOff, place(1), {"a control word"});
        } else {
            take(last);
        }
    }
    if (hasEnded_) {
        if (hasMore_ && !hasLostText_) {
            engine_.report(DiagnosticId::DataAfterEnd, moreBegin_);
        }
        return;
    }
    if (isCutOff || lexer_.isInBinary()) {
        engine_.report(DiagnosticId::CutOff, binaryPlace_, {"binary data"});
        return;
    }
    if (groups_.empty()) {
        const RtfLexer::Position end = lexer_.here();
        reportNotRtf(placeInBytes(end.line, {end.offset - end.lineBegin + 1, 0, end.offset}));
    } else {
        engine_.report(DiagnosticId::UnclosedGroup, groups_.back().begin, {},
                       groups_.size() > 1 ? std::string() : tables_.unclosedGroupHint());
        tables_.endDocument();
    }
}

Place RtfChecker::place(std::int64_t length, std::int64_t skipped) const {
    const RtfLexer::Position& begin = lexer_.begin();
    const std::int64_t offset = begin.offset + skipped;
    return placeInBytes(begin.line, {offset - begin.lineBegin + 1, length, offset});
}

Place RtfChecker::controlPlace() const {
    return place(static_cast<std::int64_t>(lexer_.control().shownLength));
}

void RtfChecker::reportNotRtf(const Place& place) {
    if (!std::exchange(reportedStart_, true)) {
        engine_.report(DiagnosticId::NotRtf, place);
    }
}

void RtfChecker::openGroup() {
    if (groups_.size() >= deepestGroups) {
        if (!std::exchange(reportedDepth_, true)) {
            engine_.report(DiagnosticId::DeepNesting, place(1), {std::to_string(deepestGroups)});
        }
        ++deeperGroups_;
        groups_.back().isFresh = false;
        return;
    }
    Group group;
    if (!groups_.empty()) {
        if (!hasBegun_) {
            reportNotRtf(groups_.back().begin);
        }
        groups_.back().isFresh = false;
        static_cast<RtfGroup&>(group) = groups_.back().inner();
        group.paragraph = groups_.back().paragraph;
    }
    group.begin = place(1);
    groups_.push_back(group);
}

void RtfChecker::closeGroup() {
    if (deeperGroups_ > 0) {
        --deeperGroups_;
        return;
    }
    const Group closed = groups_.back();
    groups_.pop_back();
    if (closed.destination == RtfDestination::FontTable) {
        references_.endFont();
    }
    if (groups_.empty()) {
        if (!hasBegun_) {
            reportNotRtf(closed.begin);
        }
        tables_.endDocument();
        hasEnded_ = true;
    } else if (closed.destination == RtfDestination::StyleSheet &&
               groups_.back().destination == RtfDestination::StyleSheet && !closed.hasNumber) {
        references_.defineUnnumberedStyle();
    }
}

void RtfChecker::takeText(std::string_view text) {
    Group& group = groups_.back();
    if (!hasBegun_) {
        reportNotRtf(group.begin);
        hasBegun_ = true;
    }
    if (group.isFresh || !tables_.hasTextInCell()) {
        const bool isEmpty = std::all_of(text.begin(), text.end(), isBlank);
        group.isFresh = group.isFresh && isEmpty;
        if (!isEmpty && group.destination == RtfDestination::Text) {
            tables_.takeText();
        }
    }
    if (group.destination == RtfDestination::ColorTable) {
        references_.takeColorText(text);
    } else if (group.destination == RtfDestination::FontTable) {
        references_.takeFontText(text);
    }
}

void RtfChecker::takeControl() {
    const RtfControl& control = lexer_.control();
    if (!control.word.empty()) {
        takeWord();
        return;
    }
    Group& group = groups_.back();
    if (!hasBegun_) {
        reportNotRtf(group.begin);
        hasBegun_ = true;
    }
    if (control.symbol == '*') {
        group.takeMark();
        return;
    }
    group.isFresh = false;
    if (control.isBadEscape()) {
        engine_.report(DiagnosticId::BadHexEscape, controlPlace());
    }
    if (group.destination == RtfDestination::Text && showsCharacter(control, nullptr)) {
        tables_.takeText();
    } else if (group.destination == RtfDestination::FontTable) {
        references_.addToFont({&control.symbol, 1});
    }
}

void RtfChecker::takeWord() {
    const RtfWord* const word = lexer_.word();
    Group& group = groups_.back();
    if (group.isFresh) {
        takeFirstWord();
    } else if (word && word->destination == RtfDestination::Instruction) {
        group.takeWord(word);
    }
    if (group.destination == RtfDestination::FontTable) {
        references_.takeFontWord(lexer_.control(), word, controlPlace());
        return;
    }
    if (!word) {
        return;
    }
    if (word->brings != RtfContent::None ||
        (group.destination == RtfDestination::Text && showsCharacter(lexer_.control(), word))) {
        tables_.takeText();
    }
    takeRole(*word);
}

void RtfChecker::takeRole(const RtfWord& word) {
    Group& group = groups_.back();
    const RtfControl& control = lexer_.control();
    if (word.role == RtfRole::None) {
        return;
    }
    if (word.role == RtfRole::Binary) {
        binaryPlace_ = place(1);
        if (control.number.value_or(0) <= 0) {
            engine_.report(DiagnosticId::BinaryLength, controlPlace());
        }
    } else if (word.role < RtfRole::Font) {
        if (group.isOfDocument()) {
            tables_.take({word.role, control.number.value_or(0), controlPlace(), groups_.size(),
                          group.destination == RtfDestination::NestedRow},
                         group.paragraph);
        }
    } else if (word.role <= RtfRole::TableStyle) {
        if (group.destination == RtfDestination::StyleSheet && namesStyle(word.role)) {
            if (!std::exchange(group.hasNumber, true)) {
                references_.defineStyle(word.role, control, controlPlace());
            }
        } else if (group.isOfDocument() || group.destination == RtfDestination::StyleSheet) {
            references_.use(word.role, control, controlPlace());
        }
    }
}

void RtfChecker::takeFirstWord() {
    Group& group = groups_.back();
    const RtfWord* const word = findRtfWord(lexer_.control().word);
    if (!std::exchange(hasBegun_, true) && (!word || word->role != RtfRole::Document)) {
        reportNotRtf(group.begin);
    } else if (!word && !group.isMarked && group.destination != RtfDestination::Other &&
               group.destination != RtfDestination::Instruction &&
               group.destination != RtfDestination::Skipped && isNewWord(lexer_.control().word)) {
        engine_.report(DiagnosticId::UnknownDestination, controlPlace(),
                       {"\\" + std::string(lexer_.control().word)});
    }
    group.takeWord(word);
}

/// True for an unknown word that was not reported yet.
bool RtfChecker::isNewWord(std::string_view word) {
    return reportedWords_.size() < maxReportedWords && !reportedWords_.contains(word) &&
           reportedWords_.emplace(word).second;
}

}  // namespace quorvane
