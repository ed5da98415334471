#include "data/csvRows.h"

#include <algorithm>
#include <cstring>

#include "data/recordsSource.h"

namespace quorvane::data {

namespace {

// Four times as many as spreadsheets have. Each takes memory of its own.
constexpr std::size_t mostFields = 65'536;

bool isLineEnd(char character) {
    return character == '\n' || character == '\r';
}

}  // namespace

CsvRows::CsvRows(RecordsText& text, char delimiter, std::int64_t firstLine)
    : text_(text), delimiter_(delimiter), nextLine_(firstLine) {
    for (const char character : {delimiter, '\n', '\r'}) {
        endsField_[static_cast<unsigned char>(character)] = true;
    }
}

bool CsvRows::next(std::vector<std::string_view>& fields) {
    fields.clear();
    if (isBroken_) {
        return false;
    }
    makeRoom();
    skipLineEnds();
    if (isAtEnd()) {
        return false;
    }
    line_ = nextLine_;
    places_.clear();
    readRow();
    for (const Place& place : places_) {
        fields.push_back(text_.view().substr(place.begin, place.end - place.begin));
    }
    return true;
}

void CsvRows::makeRoom() {
    text_.discardBefore(at_);
    rowBegin_ = at_;
}

bool CsvRows::isAtEnd() {
    while (at_ >= text_.size()) {
        requireLength();
        if (!text_.readMore()) {
            return true;
        }
    }
    return false;
}

void CsvRows::requireLength() {
    if (at_ - rowBegin_ > longestRecord) {
        refuse("The row has more than 4 MB. Is there a quotation mark that is not closed?", false);
    }
}

void CsvRows::requireFields() {
    if (places_.size() > mostFields) {
        refuse("The row has more than 65,536 fields.", false);
    }
}

void CsvRows::skipLineEnds() {
    while (!isAtEnd() && isLineEnd(text_.data()[at_])) {
        takeLineEnd();
        makeRoom();
    }
}

/// A carriage return and the line feed after it are one end.
void CsvRows::takeLineEnd() {
    ++nextLine_;
    if (text_.data()[at_++] == '\r' && !isAtEnd() && text_.data()[at_] == '\n') {
        ++at_;
    }
}

void CsvRows::readRow() {
    for (;;) {
        readField();
        requireFields();
        if (isAtEnd()) {
            return;
        }
        if (text_.data()[at_] != delimiter_) {
            takeLineEnd();
            return;
        }
        ++at_;
    }
}

void CsvRows::readField() {
    if (!isAtEnd() && text_.data()[at_] == '"') {
        readQuoted();
    } else {
        readPlain();
    }
}

void CsvRows::readPlain() {
    const std::size_t begin = at_;
    do {
        const char* const data = text_.data();
        const std::size_t size = text_.size();
        while (at_ < size && !endsField_[static_cast<unsigned char>(data[at_])]) {
            ++at_;
        }
    } while (at_ == text_.size() && !isAtEnd());
    places_.push_back({begin, at_});
}

/// The field is put together where it stands: without its quotation marks it is never longer.
void CsvRows::readQuoted() {
    ++at_;
    const std::size_t begin = at_;
    std::size_t end = begin;
    do {
        if (isAtEnd()) {
            refuse("A quotation mark opens a field, and none closes it.", false);
        }
    } while (takeQuoted(end));
    places_.push_back({begin, end});
    if (!isAtEnd() && !endsField_[static_cast<unsigned char>(text_.data()[at_])]) {
        skipLine();
        refuse(
            "After the quotation mark that closes a field, the next field or row must begin. Write "
            "\"\" for a quotation mark in a field.",
            true);
    }
}

/// Takes a part of a field, up to a quotation mark or to the end of what is in memory. False after
/// the mark that closes it.
bool CsvRows::takeQuoted(std::size_t& end) {
    char* const data = text_.data();
    const std::size_t size = text_.size();
    const void* const mark = std::memchr(data + at_, '"', size - at_);
    const std::size_t stop =
        mark ? static_cast<std::size_t>(static_cast<const char*>(mark) - data) : size;
    for (std::size_t i = at_; i < stop; ++i) {
        const bool isSecond = data[i] == '\n' && i > rowBegin_ && data[i - 1] == '\r';
        nextLine_ += isLineEnd(data[i]) && !isSecond ? 1 : 0;
    }
    std::memmove(data + end, data + at_, stop - at_);
    end += stop - at_;
    at_ = stop;
    if (!mark) {
        return true;
    }
    ++at_;
    if (isAtEnd() || text_.data()[at_] != '"') {
        return false;
    }
    text_.data()[end++] = '"';
    ++at_;
    return true;
}

void CsvRows::skipLine() {
    while (!isAtEnd() && !isLineEnd(text_.data()[at_])) {
        ++at_;
    }
}

void CsvRows::refuse(const char* why, bool canGoOn) {
    isBroken_ = !canGoOn;
    throw RecordError(line_, why, canGoOn);
}

}  // namespace quorvane::data
