#include "data/jsonObjects.h"

#include <algorithm>

namespace quorvane::data {

namespace {

bool isBlank(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

}  // namespace

bool JsonObjects::next(std::string_view& object) {
    text_.discardBefore(at_);
    if (form_ == Form::Unknown) {
        takeBeginning();
    }
    if (form_ == Form::Ended || !takeSeparator()) {
        return false;
    }
    line_ = nextLine_;
    object = takeObject();
    return true;
}

bool JsonObjects::isAtEnd() {
    while (at_ >= text_.size()) {
        if (!text_.readMore()) {
            return true;
        }
    }
    return false;
}

/// False at the end of the text.
bool JsonObjects::skipBlanks() {
    while (!isAtEnd() && isBlank(text_.data()[at_])) {
        nextLine_ += text_.data()[at_] == '\n' ? 1 : 0;
        ++at_;
        text_.discardBefore(at_);
    }
    return !isAtEnd();
}

void JsonObjects::takeBeginning() {
    form_ = Form::Objects;
    if (skipBlanks() && text_.data()[at_] == '[') {
        form_ = Form::Array;
        ++at_;
    }
}

/// Takes what stands before an object; false if there is none.
bool JsonObjects::takeSeparator() {
    const bool isThere = skipBlanks();
    line_ = nextLine_;
    if (form_ == Form::Objects) {
        return isThere;
    }
    if (isThere && text_.data()[at_] == ']') {
        endArray();
        return false;
    }
    if (isThere && hasObjects_) {
        if (text_.data()[at_] != ',') {
            refuse("A comma is missing between two records.");
        }
        ++at_;
        if (skipBlanks() && text_.data()[at_] == ']') {
            refuse("The list of records ends after a comma; remove the comma.");
        }
    }
    if (!isThere || !skipBlanks()) {
        refuse("The list of records does not end; ] is missing.");
    }
    return true;
}

void JsonObjects::endArray() {
    ++at_;
    form_ = Form::Ended;
    const bool goesOn = skipBlanks();
    line_ = nextLine_;
    if (goesOn) {
        refuse("The list of records ends, but the file does not.");
    }
}

/// Finds where an object ends, and takes it.
std::string_view JsonObjects::takeObject() {
    begin_ = at_;
    if (text_.data()[at_] != '{') {
        refuse("A record must be an object, which begins with {.");
    }
    depth_ = 0;
    isString_ = false;
    do {
        if (!takeCharacter()) {
            refuse(isString_ ? "The record has a text that does not end; \" is missing."
                             : "The record does not end; } is missing.");
        }
        if (at_ - begin_ > longestRecord) {
            refuse("The record has more than 4 MB.");
        }
    } while (depth_ > 0);
    hasObjects_ = true;
    const std::string_view object = text_.view().substr(begin_, at_ - begin_);
    const auto lineEnds = std::count(object.begin(), object.end(), '\n');
    isLine_ = lineEnds == 0;
    nextLine_ += lineEnds;
    return object;
}

/// Takes a character of an object; false if the object ends before it is whole.
bool JsonObjects::takeCharacter() {
    if (isAtEnd()) {
        return false;
    }
    const char character = text_.data()[at_];
    if (character == '\n' && form_ == Form::Objects && isBroken()) {
        return false;
    }
    ++at_;
    if (character == '"') {
        isString_ = !isString_;
    } else if (isString_) {
        // What follows a backslash does not end the text. It does not end a line either.
        at_ += character == '\\' && !isAtEnd() && text_.data()[at_] != '\n' ? 1 : 0;
    } else if (character == '{') {
        ++depth_;
    } else if (character == '}') {
        --depth_;
    }
    return true;
}

/// True if the object cannot go on after the line end that comes next: where the one before was a
/// line, this one is. A text does not go on, and no object begins a line but after an opening
/// bracket, a comma or a colon.
bool JsonObjects::isBroken() {
    constexpr std::string_view openEnds = "{[,:";
    if (isString_ || isLine_) {
        return true;
    }
    while (at_ + 1 == text_.size()) {
        if (!text_.readMore()) {
            return false;
        }
    }
    if (text_.data()[at_ + 1] != '{') {
        return false;
    }
    std::size_t last = at_ - 1;
    while (isBlank(text_.data()[last])) {
        --last;
    }
    return openEnds.find(text_.data()[last]) == std::string_view::npos;
}

void JsonObjects::skipLine() {
    while (!isAtEnd() && text_.data()[at_] != '\n') {
        ++at_;
        text_.discardBefore(at_);
    }
}

/// Outside a list, what is wrong ends with its line.
void JsonObjects::refuse(std::string why) {
    const bool canGoOn = form_ == Form::Objects;
    if (canGoOn) {
        const std::string_view passed = text_.view().substr(begin_, at_ - begin_);
        nextLine_ += std::count(passed.begin(), passed.end(), '\n');
        skipLine();
    } else {
        form_ = Form::Ended;
        why += isAtEnd() || text_.data()[at_] == ']' ? "" : " What follows is not read.";
    }
    throw RecordError(line_, why, canGoOn);
}

}  // namespace quorvane::data
