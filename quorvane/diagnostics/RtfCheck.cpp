#include "quorvane/diagnostics/RtfCheck.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

#include "quorvane/diagnostics/rtfWords.h"

namespace quorvane {

namespace {

constexpr std::size_t deepestGroups = 1000;
// Control words and numbers are cut to these lengths: longer ones are none.
constexpr std::size_t longestWord = 64;
constexpr std::size_t longestNumber = 15;

bool isLetter(unsigned char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

bool isDigit(unsigned char byte) {
    return byte >= '0' && byte <= '9';
}

bool isHexDigit(unsigned char byte) {
    return isDigit(byte) || (byte >= 'a' && byte <= 'f') || (byte >= 'A' && byte <= 'F');
}

/// The bytes of a text that change nothing: all but braces, backslashes, line ends and ";", which
/// ends the entries of the color table.
constexpr std::array<bool, 256> plainBytes = [] {
    std::array<bool, 256> plain{};
    plain.fill(true);
    for (const char special : {'{', '}', '\\', '\r', '\n', ';'}) {
        plain[static_cast<unsigned char>(special)] = false;
    }
    return plain;
}();

/// What a control word is to the check.
enum class Role : std::uint8_t {
    None,
    RowDefinition,
    CellDefinition,
    Cell,
    Row,
    Level,
    NestedCell,
    NestedRow,
    Font,
    DefaultFont,
    Color,
    Binary,
    // In the order of the kinds of styles.
    ParagraphStyle,
    CharacterStyle,
    SectionStyle,
    TableStyle,
};

struct RoleOfWord {
    std::string_view word;
    Role role = Role::None;
};

constexpr RoleOfWord rolesOfWords[] = {
    {"trowd", Role::RowDefinition},
    {"cellx", Role::CellDefinition},
    {"cell", Role::Cell},
    {"row", Role::Row},
    {"itap", Role::Level},
    {"nestcell", Role::NestedCell},
    {"nestrow", Role::NestedRow},
    {"f", Role::Font},
    {"deff", Role::DefaultFont},
    {"bin", Role::Binary},
    {"s", Role::ParagraphStyle},
    {"cs", Role::CharacterStyle},
    {"ds", Role::SectionStyle},
    {"ts", Role::TableStyle},
    {"cf", Role::Color},
    {"cb", Role::Color},
    {"chcbpat", Role::Color},
    {"chcfpat", Role::Color},
    {"cbpat", Role::Color},
    {"cfpat", Role::Color},
    {"clcbpat", Role::Color},
    {"clcfpat", Role::Color},
    {"brdrcf", Role::Color},
    {"highlight", Role::Color},
    {"ulc", Role::Color},
    {"trcbpat", Role::Color},
    {"trcfpat", Role::Color},
};

constexpr std::size_t roleSlots = 128;

/// Where the search for a word begins in the table of roles.
constexpr std::size_t firstSlot(std::string_view word) {
    const auto first = static_cast<unsigned char>(word.front());
    const auto last = static_cast<unsigned char>(word.back());
    return (word.size() * 37 + std::size_t{5} * first + std::size_t{11} * last) % roleSlots;
}

/// The words by what they begin and end with: nearly every look-up is one comparison or none.
constexpr std::array<RoleOfWord, roleSlots> roleTable = [] {
    std::array<RoleOfWord, roleSlots> table{};
    for (const RoleOfWord& entry : rolesOfWords) {
        std::size_t slot = firstSlot(entry.word);
        while (table[slot].role != Role::None) {
            slot = (slot + 1) % roleSlots;
        }
        table[slot] = entry;
    }
    return table;
}();

Role roleOf(std::string_view word) {
    std::size_t slot = firstSlot(word);
    while (roleTable[slot].role != Role::None) {
        if (roleTable[slot].word == word) {
            return roleTable[slot].role;
        }
        slot = (slot + 1) % roleSlots;
    }
    return Role::None;
}

template <std::size_t Count>
bool isAmong(std::string_view word, const std::string_view (&words)[Count]) {
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

/// "1 cell", "2 cells".
std::string counted(std::int64_t number, std::string_view noun) {
    return std::to_string(number) + " " + std::string(noun) + (number == 1 ? "" : "s");
}

// Destinations whose text is part of the text around them.
constexpr std::string_view bodyDestinations[] = {"rtf", "field", "fldrslt", "result"};

}  // namespace

void RtfCheck::feed(std::string_view bytes) {
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
    const auto* const end = at + bytes.size();
    while (at != end) {
        if (state_ != State::Text) {
            takeByte(*at);
            endLine(*at);
            ++at;
        } else if (*at == '\\') {
            at = takeWholeWord(at, end);
        } else if (plainBytes[*at] && !groups_.back().isFresh) {
            const auto* const special =
                std::find_if_not(at, end, [](unsigned char byte) { return plainBytes[byte]; });
            offset_ += special - at;
            at = special;
            lastWasReturn_ = false;
        } else {
            takeText(*at);
            endLine(*at);
            ++at;
        }
    }
}

/// Takes a control word that ends among these bytes, or else its backslash alone. Answers what
/// follows.
const unsigned char* RtfCheck::takeWholeWord(const unsigned char* at, const unsigned char* end) {
    const auto* const wordEnd = std::find_if_not(at + 1, end, isLetter);
    const auto* numberEnd = wordEnd;
    if (numberEnd != end && *numberEnd == '-') {
        ++numberEnd;
    }
    numberEnd = std::find_if_not(numberEnd, end, isDigit);
    const auto wordLength = static_cast<std::size_t>(wordEnd - at) - 1;
    const auto numberLength = static_cast<std::size_t>(numberEnd - wordEnd);
    wordBegin_ = here(1);
    if (numberEnd == end || wordLength == 0 || wordLength > longestWord ||
        numberLength > longestNumber) {
        state_ = State::Backslash;
        endLine(*at);
        return at + 1;
    }
    word_.assign(at + 1, wordEnd);
    number_.assign(wordEnd, numberEnd);
    // A blank ends the word and is no text.
    const auto* const next = *numberEnd == ' ' ? numberEnd + 1 : numberEnd;
    offset_ += next - at;
    lastWasReturn_ = false;
    applyWord();
    return next;
}

void RtfCheck::finish() {
    if (endsWord(' ')) {
        applyWord();
    }
    switch (state_) {
        case State::Start:
            if (!toldStart_) {
                engine_.report(DiagnosticId::NotRtf, here(0));
            }
            return;
        case State::Backslash:
            engine_.report(DiagnosticId::CutOff, wordBegin_, {"a control word"});
            break;
        case State::FirstHexDigit:
        case State::SecondHexDigit:
            engine_.report(DiagnosticId::BadHexEscape, wordBegin_);
            break;
        case State::Binary:
            engine_.report(DiagnosticId::CutOff, wordBegin_, {"its binary data"});
            return;
        default:
            break;
    }
    if (!groups_.empty()) {
        engine_.report(DiagnosticId::UnclosedGroup, groups_.back().begin, {}, unclosedGroupHint());
        endDocument();
    }
}

Place RtfCheck::here(std::int64_t length) const {
    return {line_, offset_ - lineBegin_ + 1, length, offset_};
}

Place RtfCheck::wordPlace() const {
    Place place = wordBegin_;
    place.length = static_cast<std::int64_t>(1 + word_.size() + number_.size());
    return place;
}

void RtfCheck::endLine(unsigned char byte) {
    ++offset_;
    if (byte == '\r' || byte == '\n') {
        line_ += byte == '\n' && lastWasReturn_ ? 0 : 1;
        lineBegin_ = offset_;
    }
    lastWasReturn_ = byte == '\r';
}

/// True when a control word is at hand that does not go on with the byte.
bool RtfCheck::endsWord(unsigned char byte) {
    if (state_ == State::Word) {
        if (isLetter(byte)) {
            if (word_.size() < longestWord) {
                word_ += static_cast<char>(byte);
            }
            return false;
        }
        if (isDigit(byte) || byte == '-') {
            number_ = static_cast<char>(byte);
            state_ = State::Number;
            return false;
        }
        return true;
    }
    if (state_ == State::Number) {
        if (isDigit(byte)) {
            if (number_.size() < longestNumber) {
                number_ += static_cast<char>(byte);
            }
            return false;
        }
        return true;
    }
    return false;
}

void RtfCheck::takeByte(unsigned char byte) {
    if (state_ == State::Word || state_ == State::Number) {
        if (!endsWord(byte)) {
            return;
        }
        applyWord();
        // A blank ends the word and is no text.
        if (byte == ' ') {
            return;
        }
    }
    switch (state_) {
        case State::Start:
        case State::Text:
            takeText(byte);
            break;
        case State::Backslash:
            takeBackslash(byte);
            break;
        case State::FirstHexDigit:
        case State::SecondHexDigit:
            takeHexDigit(byte);
            break;
        case State::Binary:
            if (--binaryLeft_ == 0) {
                state_ = State::Text;
            }
            break;
        case State::AfterEnd:
            if (byte != '\r' && byte != '\n' && !toldAfterEnd_) {
                toldAfterEnd_ = true;
                engine_.report(DiagnosticId::TextAfterEnd, here(1));
            }
            break;
        case State::Word:
        case State::Number:
            break;
    }
}

void RtfCheck::takeText(unsigned char byte) {
    if (byte == '{') {
        openGroup();
        return;
    }
    if (state_ == State::Start) {
        const bool isBlank = byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
        if (!isBlank && !toldStart_) {
            toldStart_ = true;
            engine_.report(DiagnosticId::NotRtf, here(1));
        }
        return;
    }
    if (byte == '}') {
        closeGroup();
    } else if (byte == '\\') {
        wordBegin_ = here(1);
        state_ = State::Backslash;
    } else if (byte != '\r' && byte != '\n') {
        Group& group = groups_.back();
        if (group.isFresh && groups_.size() == 1 && !toldStart_) {
            toldStart_ = true;
            engine_.report(DiagnosticId::NotRtf, group.begin);
        }
        group.isFresh = false;
        if (byte == ';' && group.destination == Destination::ColorTable) {
            ++colors_;
        }
    }
}

void RtfCheck::openGroup() {
    if (groups_.size() >= deepestGroups) {
        if (!toldDepth_) {
            toldDepth_ = true;
            engine_.report(DiagnosticId::DeepNesting, here(1), {std::to_string(deepestGroups)});
        }
        ++deeperGroups_;
        return;
    }
    Group group;
    if (!groups_.empty()) {
        groups_.back().isFresh = false;
        group.destination = groups_.back().destination;
    }
    group.begin = here(1);
    groups_.push_back(group);
    state_ = State::Text;
}

void RtfCheck::closeGroup() {
    if (deeperGroups_ > 0) {
        --deeperGroups_;
        return;
    }
    const Group closed = groups_.back();
    groups_.pop_back();
    if (groups_.empty()) {
        if (closed.isFresh && !toldStart_) {
            toldStart_ = true;
            engine_.report(DiagnosticId::NotRtf, closed.begin);
        }
        endDocument();
        state_ = State::AfterEnd;
    } else if (closed.destination != groups_.back().destination) {
        if (closed.destination == Destination::FontTable) {
            checkDefaultFont();
        }
    } else if (closed.destination == Destination::StyleSheet && !closed.hasNumber) {
        // The number is left out of the style "normal", but counted, and paragraphs carry it.
        styles_[0].insert(lastStyle_ + 1);
        ++lastStyle_;
    }
}

void RtfCheck::takeBackslash(unsigned char byte) {
    if (isLetter(byte)) {
        word_ = static_cast<char>(byte);
        number_.clear();
        state_ = State::Word;
        return;
    }
    state_ = State::Text;
    Group& group = groups_.back();
    if (byte == '*') {
        group.isMarked = true;
        return;
    }
    group.isFresh = false;
    if (byte == '\'') {
        state_ = State::FirstHexDigit;
    }
}

void RtfCheck::takeHexDigit(unsigned char byte) {
    if (isHexDigit(byte)) {
        state_ = state_ == State::FirstHexDigit ? State::SecondHexDigit : State::Text;
        return;
    }
    Place place = wordBegin_;
    place.length = offset_ - wordBegin_.offset;
    engine_.report(DiagnosticId::BadHexEscape, place);
    state_ = State::Text;
    takeText(byte);
}

void RtfCheck::applyWord() {
    state_ = State::Text;
    Group& group = groups_.back();
    if (group.isFresh) {
        group.isFresh = false;
        applyFirstWord();
    }
    const Role role = roleOf(word_);
    if (role == Role::None) {
        return;
    }
    value_ = 0;
    std::from_chars(number_.data(), number_.data() + number_.size(), value_);
    if (role == Role::Binary) {
        if (value_ > 0) {
            binaryLeft_ = value_;
            state_ = State::Binary;
        }
    } else if (role < Role::Font) {
        if (group.destination == Destination::Body || group.destination == Destination::NestedRow) {
            applyRowWord();
        }
    } else if (group.destination != Destination::Other &&
               group.destination != Destination::Ignorable) {
        applyReference();
    }
}

void RtfCheck::applyFirstWord() {
    Group& group = groups_.back();
    if (groups_.size() == 1 && word_ != "rtf" && !toldStart_) {
        toldStart_ = true;
        engine_.report(DiagnosticId::NotRtf, group.begin);
    }
    if (group.destination == Destination::Other || group.destination == Destination::Ignorable) {
        return;
    }
    if (word_ == "fonttbl") {
        group.destination = Destination::FontTable;
    } else if (word_ == "colortbl") {
        group.destination = Destination::ColorTable;
    } else if (word_ == "stylesheet") {
        group.destination = Destination::StyleSheet;
    } else if (word_ == "nesttableprops") {
        group.destination = Destination::NestedRow;
    } else if (isAmong(word_, bodyDestinations)) {
        group.destination = Destination::Body;
    } else if (isRtfDestination(word_)) {
        group.destination = Destination::Other;
    } else if (!isRtfWord(word_)) {
        if (!group.isMarked && groups_.size() > 1) {
            engine_.report(DiagnosticId::UnknownDestination, wordPlace(), {"\\" + word_});
        }
        group.destination = Destination::Ignorable;
    }
}

void RtfCheck::applyRowWord() {
    const bool isNested = groups_.back().destination == Destination::NestedRow;
    Row& row = isNested ? nestedRow_ : row_;
    switch (roleOf(word_)) {
        case Role::RowDefinition:
            defineRow(row);
            break;
        case Role::CellDefinition:
            ++row.definitions;
            if (value_ <= row.lastEdge) {
                engine_.report(DiagnosticId::FallingEdge, wordPlace(),
                               {std::to_string(value_), std::to_string(row.lastEdge)});
            }
            row.lastEdge = value_;
            break;
        case Role::Cell:
            beginCell(row);
            ++row.cells;
            endNestedRows();
            break;
        case Role::Row:
            endRow(row, row.cells);
            noteDepth(row);
            row.cells = 0;
            row.isOpen = false;
            row.isDefinedAnew = false;
            break;
        case Role::Level:
            level_ = std::clamp<std::int64_t>(value_, 0, std::ssize(nestedCells_) - 1);
            break;
        case Role::NestedCell:
            if (!isNestedOpen_) {
                isNestedOpen_ = true;
                nestedBegin_ = wordPlace();
            }
            ++nestedCells();
            break;
        case Role::NestedRow:
            endRow(nestedRow_, nestedCells());
            nestedCells() = 0;
            isNestedOpen_ = std::any_of(nestedCells_.begin(), nestedCells_.end(),
                                        [](std::int64_t cells) { return cells > 0; });
            break;
        default:
            break;
    }
}

/// A definition may stand before the row's cells, behind them, or in both places.
void RtfCheck::defineRow(Row& row) {
    row.nextBegin = wordPlace();
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
        row.isOpen = false;
    }
    if (!row.isOpen) {
        row.begin = row.isDefinedAnew ? row.nextBegin : wordPlace();
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
    return nestedCells_[static_cast<std::size_t>(level_)];
}

void RtfCheck::endRow(Row& row, std::int64_t cells) {
    if (cells == 0 && row.definitions == 0) {
        engine_.report(DiagnosticId::RowWithoutCells, wordPlace());
    } else if (cells != row.definitions) {
        engine_.report(DiagnosticId::CellCount, wordPlace(),
                       {counted(cells, "cell"), counted(row.definitions, "cell definition")});
    }
}

/// Looks how many groups are open at the end of a row. Where that is one more than in the rows
/// before, the row has a "{" too much.
void RtfCheck::noteDepth(const Row& row) {
    if (usualDepth_ == 0) {
        usualDepth_ = groups_.size();
        firstRowLine_ = row.depth > 0 && row.depth < usualDepth_ ? wordBegin_.line : 0;
    }
    if (groups_.size() <= usualDepth_) {
        deeperRowLine_ = 0;
    } else if (deeperRowLine_ == 0) {
        deeperRowLine_ = wordBegin_.line;
    }
}

/// Where a group was most likely left open, when all but the document's own are closed: a "}" of
/// another group has closed it then.
std::string RtfCheck::unclosedGroupHint() const {
    const std::int64_t line = deeperRowLine_ != 0 ? deeperRowLine_ : firstRowLine_;
    if (groups_.size() > 1 || line == 0) {
        return {};
    }
    return "a group is open where the row of line " + std::to_string(line) + " ends that was not " +
           (deeperRowLine_ != 0 ? "at the ends of the rows before" : "where it begins");
}

void RtfCheck::applyReference() {
    const Destination destination = groups_.back().destination;
    const Role role = roleOf(word_);
    if (role == Role::Font) {
        if (destination == Destination::FontTable) {
            if (!fonts_.insert(value_).second) {
                engine_.report(DiagnosticId::DuplicateFont, wordPlace(), {std::to_string(value_)});
            }
        } else if (!fonts_.contains(value_)) {
            engine_.report(DiagnosticId::UnknownFont, wordPlace(), {std::to_string(value_)});
        }
    } else if (role == Role::DefaultFont) {
        defaultFont_ = value_;
        defaultFontPlace_ = wordPlace();
    } else if (role == Role::Color) {
        if (value_ != 0 && (value_ < 0 || value_ >= colors_)) {
            engine_.report(DiagnosticId::UnknownColor, wordPlace(), {std::to_string(value_)});
        }
    } else {
        const auto kind =
            static_cast<std::size_t>(role) - static_cast<std::size_t>(Role::ParagraphStyle);
        if (destination == Destination::StyleSheet) {
            defineStyle(kind);
        } else if (!styles_[kind].contains(value_) && (kind > 0 || value_ != 0)) {
            engine_.report(DiagnosticId::UnknownStyle, wordPlace(), {word_ + number_});
        }
    }
}

void RtfCheck::checkDefaultFont() {
    if (defaultFont_ >= 0 && !fonts_.contains(defaultFont_)) {
        engine_.report(DiagnosticId::UnknownFont, defaultFontPlace_,
                       {std::to_string(defaultFont_)});
    }
    defaultFont_ = -1;
}

void RtfCheck::defineStyle(std::size_t kind) {
    Group& group = groups_.back();
    if (!group.hasNumber && !styles_[kind].insert(value_).second) {
        engine_.report(DiagnosticId::DuplicateStyleNumber, wordPlace(),
                       {word_ + std::to_string(value_)});
    }
    if (!group.hasNumber && kind == 0) {
        lastStyle_ = value_;
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
