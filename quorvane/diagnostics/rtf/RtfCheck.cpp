#include "quorvane/diagnostics/rtf/RtfCheck.h"

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

constexpr std::size_t deepestGroups = 1000;
// Of what a file lacks or RTF does not know, so many different ones are reported of each kind.
constexpr std::size_t maxReported = 1000;

/// "1 cell", "2 cells".
std::string counted(std::int64_t number, std::string_view noun) {
    return std::to_string(number) + " " + std::string(noun) + (number == 1 ? "" : "s");
}

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

void RtfCheck::feed(std::string_view bytes) {
    if (hasLostText_) {
        return;
    }
    lexer_.feed(bytes);
    for (RtfLexer::Token token = lexer_.next(); token != RtfLexer::Token::None;
         token = lexer_.next()) {
        take(token);
    }
}

void RtfCheck::take(RtfLexer::Token token) {
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

void RtfCheck::takeBeforeDocument(RtfLexer::Token token) {
    if (token == RtfLexer::Token::Text &&
        std::all_of(lexer_.text().begin(), lexer_.text().end(), isBlank)) {
        return;
    }
    Place at = place(1);
    if (token == RtfLexer::Token::Text) {
        const auto blanks = std::find_if_not(lexer_.text().begin(), lexer_.text().end(), isBlank) -
                            lexer_.text().begin();
        at.column += blanks;
        at.offset += blanks;
    }
    reportNotRtf(at);
}

/// Looks for text after the document, which readers do not show.
void RtfCheck::takeAfterDocument(RtfLexer::Token token) {
    if (hasLostText_) {
        return;
    }
    const std::string_view text =
        token == RtfLexer::Token::Text ? lexer_.text() : std::string_view();
    Place at = place(1);
    if (!text.empty()) {
        const auto padding = std::find_if_not(text.begin(), text.end(), isPadding) - text.begin();
        if (padding == std::ssize(text)) {
            return;
        }
        at.column += padding;
        at.offset += padding;
    }
    if (!std::exchange(hasMore_, true)) {
        moreBegin_ = at;
    }
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
    if (hasLostText_) {
        engine_.report(DiagnosticId::TextAfterEnd, moreBegin_);
    }
}

void RtfCheck::finish() {
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
        reportNotRtf({end.line, end.offset - end.lineBegin + 1, 0, end.offset});
    } else {
        engine_.report(DiagnosticId::UnclosedGroup, groups_.back().begin, {}, unclosedGroupHint());
        endDocument();
    }
}

Place RtfCheck::place(std::int64_t length) const {
    const RtfLexer::Position& begin = lexer_.begin();
    return {begin.line, begin.offset - begin.lineBegin + 1, length, begin.offset};
}

Place RtfCheck::controlPlace() const {
    return place(static_cast<std::int64_t>(lexer_.control().shownLength));
}

void RtfCheck::reportNotRtf(const Place& place) {
    if (!std::exchange(reportedStart_, true)) {
        engine_.report(DiagnosticId::NotRtf, place);
    }
}

void RtfCheck::openGroup() {
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
        group.level = groups_.back().level;
        group.isNested = groups_.back().isNested;
        group.nestedPlace = groups_.back().nestedPlace;
    }
    group.begin = place(1);
    groups_.push_back(group);
}

void RtfCheck::closeGroup() {
    if (deeperGroups_ > 0) {
        --deeperGroups_;
        return;
    }
    const Group closed = groups_.back();
    groups_.pop_back();
    if (closed.destination == RtfDestination::FontTable) {
        endFont();
    }
    if (groups_.empty()) {
        if (!hasBegun_) {
            reportNotRtf(closed.begin);
        }
        endDocument();
        hasEnded_ = true;
    } else if (closed.destination == RtfDestination::StyleSheet &&
               groups_.back().destination == RtfDestination::StyleSheet && !closed.hasNumber) {
        // The number is left out of the style "normal", but counted, and paragraphs carry it.
        styles_[0].insert(lastStyle_ + 1);
        ++lastStyle_;
    }
}

void RtfCheck::takeText(std::string_view text) {
    Group& group = groups_.back();
    if (!hasBegun_) {
        reportNotRtf(group.begin);
        hasBegun_ = true;
    }
    if (group.isFresh || !hasTextInCell_) {
        const bool isEmpty = std::all_of(text.begin(), text.end(), isBlank);
        group.isFresh = group.isFresh && isEmpty;
        hasTextInCell_ = hasTextInCell_ || (!isEmpty && group.destination == RtfDestination::Text);
    }
    if (group.destination == RtfDestination::ColorTable) {
        colors_ += std::count(text.begin(), text.end(), ';');
    } else if (group.destination == RtfDestination::FontTable) {
        for (std::size_t end = text.find(';'); end != std::string_view::npos;
             end = text.find(';')) {
            addToFont(text.substr(0, end));
            endFont();
            text.remove_prefix(end + 1);
        }
        addToFont(text);
    }
}

void RtfCheck::takeControl() {
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
    hasTextInCell_ = hasTextInCell_ || (group.destination == RtfDestination::Text &&
                                        showsCharacter(control, nullptr));
    if (group.destination == RtfDestination::FontTable) {
        addToFont({&control.symbol, 1});
    }
}

void RtfCheck::takeWord() {
    const RtfWord* const word = lexer_.word();
    Group& group = groups_.back();
    if (group.isFresh) {
        takeFirstWord();
    } else if (word && word->destination == RtfDestination::Instruction) {
        group.takeWord(word);
    }
    if (group.destination == RtfDestination::FontTable) {
        takeFontWord();
        return;
    }
    if (!word) {
        return;
    }
    hasTextInCell_ =
        hasTextInCell_ || word->brings != RtfContent::None ||
        (group.destination == RtfDestination::Text && showsCharacter(lexer_.control(), word));
    if (word->role == RtfRole::None) {
        return;
    }
    if (word->role == RtfRole::Binary) {
        binaryPlace_ = place(1);
        if (lexer_.control().number.value_or(0) <= 0) {
            engine_.report(DiagnosticId::BinaryLength, controlPlace());
        }
    } else if (word->role < RtfRole::Font) {
        if (group.isOfDocument()) {
            takeTableWord(word->role);
        }
    } else if (word->role <= RtfRole::TableStyle) {
        if (group.destination == RtfDestination::StyleSheet && namesStyle(word->role)) {
            defineStyle(static_cast<std::size_t>(word->role) -
                        static_cast<std::size_t>(RtfRole::ParagraphStyle));
        } else if (group.isOfDocument() || group.destination == RtfDestination::StyleSheet) {
            takeReference(word->role);
        }
    }
}

void RtfCheck::takeFirstWord() {
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

void RtfCheck::takeTableWord(RtfRole role) {
    const bool isNested = groups_.back().destination == RtfDestination::NestedRow;
    Row& row = isNested ? nestedRow_ : row_;
    const std::int64_t number = lexer_.control().number.value_or(0);
    switch (role) {
        case RtfRole::RowDefinition:
            hasTable_ = true;
            defineRow(row);
            break;
        case RtfRole::InTable:
            hasTable_ = true;
            break;
        case RtfRole::Section:
            if (row.isOpen || row.isDefinedAnew) {
                engine_.report(DiagnosticId::SectionInRow, controlPlace());
            }
            break;
        case RtfRole::CellDefinition:
            ++row.definitions;
            if (number <= row.lastEdge) {
                engine_.report(DiagnosticId::FallingEdge, controlPlace(),
                               {std::to_string(number), std::to_string(row.lastEdge)});
            }
            row.lastEdge = number;
            break;
        case RtfRole::Cell:
            if (hasTable_) {
                beginCell(row);
                ++row.cells;
                row.lastWithText = hasTextInCell_ ? row.cells : row.lastWithText;
                hasTextInCell_ = false;
                if (groups_.back().isNested && !isNestedOpen_) {
                    engine_.report(DiagnosticId::UnendedRow, groups_.back().nestedPlace);
                }
                endNestedRows();
            }
            break;
        case RtfRole::Row:
            endRow(row, row.cells, row.lastWithText);
            noteDepth(row);
            row.cells = 0;
            row.lastWithText = 0;
            row.isOpen = false;
            row.isDefinedAnew = false;
            break;
        case RtfRole::Level:
            groups_.back().level =
                std::clamp<std::int64_t>(number, 0, std::ssize(nestedCells_) - 1);
            groups_.back().isNested = number > 1;
            groups_.back().nestedPlace = controlPlace();
            break;
        case RtfRole::ParagraphReset:
            groups_.back().isNested = false;
            break;
        case RtfRole::NestedCell:
            if (!std::exchange(isNestedOpen_, true)) {
                nestedBegin_ = controlPlace();
            }
            ++nestedCells();
            break;
        case RtfRole::NestedRow:
            endRow(nestedRow_, nestedCells(), nestedCells());
            nestedCells() = 0;
            isNestedOpen_ = std::any_of(nestedCells_.begin(), nestedCells_.end(),
                                        [](std::int64_t cells) { return cells > 0; });
            break;
        default:
            break;
    }
}

/// A definition may stand before the row's cells, after them, or in both places.
void RtfCheck::defineRow(Row& row) {
    row.nextBegin = controlPlace();
    row.depth = row.isOpen ? row.depth : groups_.size();
    row.definitionsBefore = row.definitions;
    row.isDefinedAnew = true;
    row.definitions = 0;
    row.lastEdge = INT64_MIN;
}

void RtfCheck::beginCell(Row& row) {
    // All cells of the definition before are there: the new one is that of another row.
    const bool isNextRow = row.isOpen && row.isDefinedAnew && row.cells >= row.definitionsBefore;
    if (isNextRow && row.definitionsBefore > 0) {
        engine_.report(DiagnosticId::UnendedRow, row.begin);
        row.cells = 0;
        row.lastWithText = 0;
        row.isOpen = false;
    }
    if (!row.isOpen) {
        row.begin = row.isDefinedAnew ? row.nextBegin : controlPlace();
    }
    row.isOpen = true;
    row.isDefinedAnew = false;
}

/// The cell or the document ends that holds nested rows.
void RtfCheck::endNestedRows() {
    if (isNestedOpen_) {
        engine_.report(DiagnosticId::UnendedRow, nestedBegin_);
        nestedCells_.fill(0);
        isNestedOpen_ = false;
    }
}

std::int64_t& RtfCheck::nestedCells() {
    return nestedCells_[static_cast<std::size_t>(groups_.back().level)];
}

/// Ends a row of so many cells, of which the last one with text has that position.
void RtfCheck::endRow(const Row& row, std::int64_t cells, std::int64_t lastWithText) {
    if (cells == 0) {
        engine_.report(DiagnosticId::RowWithoutCells, controlPlace());
    } else if (cells != row.definitions) {
        // Readers drop the cells that have no definition.
        const bool losesText = lastWithText > row.definitions || row.definitions == 0;
        engine_.report(losesText ? DiagnosticId::CellCount : DiagnosticId::UnevenRow,
                       controlPlace(),
                       {counted(cells, "cell"), counted(row.definitions, "cell definition")});
    }
}

/// Looks how many groups are open at the end of a row. Where that is one more than in the rows
/// before, the row has a "{" too much.
void RtfCheck::noteDepth(const Row& row) {
    const std::int64_t line = lexer_.begin().line;
    if (usualDepth_ == 0) {
        usualDepth_ = groups_.size();
        firstRowLine_ = row.depth > 0 && row.depth < usualDepth_ ? line : 0;
    }
    if (groups_.size() <= usualDepth_) {
        deeperRowLine_ = 0;
    } else if (deeperRowLine_ == 0) {
        deeperRowLine_ = line;
    }
}

/// Where a group was most likely left open, when all but the document's own are closed: a "}" of
/// another group has closed it then.
std::string RtfCheck::unclosedGroupHint() const {
    const std::int64_t line = deeperRowLine_ != 0 ? deeperRowLine_ : firstRowLine_;
    if (groups_.size() > 1 || line == 0) {
        return {};
    }
    return "when the row on line " + std::to_string(line) + " ends, a group is open that was not " +
           (deeperRowLine_ != 0 ? "open at the end of earlier rows" : "open at its beginning");
}

/// A control word in the font table: the number of a font, or a part of its definition.
void RtfCheck::takeFontWord() {
    const RtfControl& control = lexer_.control();
    const RtfWord* const word = lexer_.word();
    if (word && word->destination == RtfDestination::FontTable) {
        font_ = {};
    } else if (word && word->role == RtfRole::Font && !font_.hasNumber) {
        font_.hasNumber = true;
        font_.number = control.number.value_or(0);
        font_.place = controlPlace();
    } else {
        addToFont(control.word);
        addToFont(std::to_string(control.number.value_or(0)));
    }
}

void RtfCheck::addToFont(std::string_view bytes) {
    // FNV-1a. Blanks and line ends between the parts of a definition do not count.
    for (const char byte : bytes) {
        if (!isBlank(byte)) {
            font_.hash = (font_.hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
        }
    }
}

void RtfCheck::endFont() {
    const Font font = std::exchange(font_, {});
    if (!font.hasNumber) {
        return;
    }
    const auto [entry, isNew] = fonts_.try_emplace(font.number, font.hash);
    if (!isNew && entry->second != font.hash) {
        engine_.report(DiagnosticId::DuplicateFont, font.place, {std::to_string(font.number)});
    }
}

void RtfCheck::takeReference(RtfRole role) {
    const std::int64_t number = lexer_.control().number.value_or(0);
    if (role == RtfRole::Font) {
        if (!fonts_.contains(number)) {
            reportMissing(FontKind, DiagnosticId::UnknownFont, number);
        }
    } else if (namesColor(role)) {
        if (number != 0 && (number < 0 || number >= colors_)) {
            reportMissing(ColorKind, DiagnosticId::UnknownColor, number);
        }
    } else {
        const auto kind =
            static_cast<std::size_t>(role) - static_cast<std::size_t>(RtfRole::ParagraphStyle);
        if (!styles_[kind].contains(number) && (kind > 0 || number != 0)) {
            reportMissing(static_cast<Kind>(FirstStyleKind + kind), DiagnosticId::UnknownStyle,
                          number);
        }
    }
}

/// Reports a number that no table has, once.
void RtfCheck::reportMissing(Kind kind, DiagnosticId id, std::int64_t number) {
    std::unordered_set<std::int64_t>& reported = reported_[kind];
    if (reported.size() >= maxReported || !reported.insert(number).second) {
        return;
    }
    const std::string name = kind >= FirstStyleKind ? std::string(lexer_.control().word) : "";
    engine_.report(id, controlPlace(), {name + std::to_string(number)});
}

/// True for an unknown word that was not reported yet.
bool RtfCheck::isNewWord(std::string_view word) {
    return reportedWords_.size() < maxReported && !reportedWords_.contains(word) &&
           reportedWords_.emplace(word).second;
}

void RtfCheck::defineStyle(std::size_t kind) {
    Group& group = groups_.back();
    const std::int64_t number = lexer_.control().number.value_or(0);
    // The rows of a table style, such as its first and its last one, repeat the style's number.
    constexpr std::size_t tableStyles = 3;
    if (!group.hasNumber && !styles_[kind].insert(number).second && kind != tableStyles) {
        engine_.report(DiagnosticId::DuplicateStyleNumber, controlPlace(),
                       {std::string(lexer_.control().word) + std::to_string(number)});
    }
    if (!group.hasNumber && kind == 0) {
        lastStyle_ = number;
    }
    group.hasNumber = true;
}

void RtfCheck::endDocument() {
    endNestedRows();
    if (row_.isOpen) {
        engine_.report(DiagnosticId::UnendedRow, row_.begin);
    }
}

std::vector<Diagnostic> checkRtf(std::string_view bytes) {
    std::vector<Diagnostic> findings;
    RtfCheck check([&](Diagnostic finding) { findings.push_back(std::move(finding)); });
    check.feed(bytes);
    check.finish();
    sortByPlace(findings);
    return findings;
}

}  // namespace quorvane
