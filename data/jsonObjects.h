#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "data/recordsSource.h"
#include "data/recordsText.h"

namespace quorvane::data {

/// The objects of a JSON array, or objects one after the other, each as its text.
///
/// An object can go on over several lines, unless the one before it was a line: then each line is
/// a record (JSON Lines), and what is wrong with one leaves the lines after it as they are.
class JsonObjects {
public:
    /// The text must outlive the objects.
    explicit JsonObjects(RecordsText& text) : text_(text) {}

    /// Finds the next object; false at the end. Its text is good until the next call. Only its
    /// braces and its quotation marks are looked at. A `RecordError` for what is not an object.
    bool next(std::string_view& object);

    /// The line where the object begins that was found last, from 1.
    std::int64_t line() const noexcept { return line_; }

private:
    enum class Form : std::uint8_t { Unknown, Array, Objects, Ended };

    bool isAtEnd();
    bool skipBlanks();
    void takeBeginning();
    bool takeSeparator();
    void endArray();
    std::string_view takeObject();
    bool takeCharacter();
    bool isBroken();
    void skipLine();
    [[noreturn]] void refuse(std::string why);

    RecordsText& text_;
    Form form_ = Form::Unknown;
    std::size_t at_ = 0;
    std::int64_t line_ = 1;
    std::int64_t nextLine_ = 1;
    bool hasObjects_ = false;
    // The object before began and ended on one line.
    bool isLine_ = false;
    // Of the object that is being taken.
    std::size_t begin_ = 0;
    std::size_t depth_ = 0;
    bool isString_ = false;
};

}  // namespace quorvane::data
