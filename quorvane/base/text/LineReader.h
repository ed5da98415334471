#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace quorvane {

/// Cuts a text into its lines, which end with CR LF, LF or CR.
class LineReader {
public:
    /// The text must outlive the lines.
    explicit LineReader(std::string_view text)
        : text_(text), lineFeed_(text, '\n'), carriageReturn_(text, '\r') {}

    /// True when nothing is left of the text. After its last line end, no line begins.
    bool atEnd() const { return position_ == text_.size(); }
    /// Where the next line begins.
    std::size_t position() const { return position_; }

    /// Reads the next line and returns it without its end.
    std::string_view next() {
        const std::size_t end =
            std::min(lineFeed_.from(position_), carriageReturn_.from(position_));
        const std::string_view line(text_.data() + position_, end - position_);
        endedLine_ = end < text_.size();
        const bool endsInBoth =
            end + 1 < text_.size() && text_[end] == '\r' && text_[end + 1] == '\n';
        position_ = end + (endsInBoth ? 2 : endedLine_ ? 1 : 0);
        return line;
    }

    /// True when the line that was read last has an end.
    bool endedLine() const { return endedLine_; }

private:
    /// The next of one character. It is looked for once, however many lines end before it.
    class Next {
    public:
        Next(std::string_view text, char character)
            : text_(text), character_(character), position_(positionFrom(0)) {}

        /// Its first position from there on; the end of the text when there is none. Never asked
        /// for an earlier one than before.
        std::size_t from(std::size_t start) {
            if (position_ < start) {
                position_ = positionFrom(start);
            }
            return position_;
        }

    private:
        std::size_t positionFrom(std::size_t start) const {
            return std::min(text_.find(character_, start), text_.size());
        }

        std::string_view text_;
        char character_;
        std::size_t position_;
    };

    std::string_view text_;
    Next lineFeed_;
    Next carriageReturn_;
    std::size_t position_ = 0;
    bool endedLine_ = false;
};

/// How many lines a text has.
inline std::size_t lineCount(std::string_view text) {
    std::size_t count = 0;
    for (LineReader lines(text); !lines.atEnd(); lines.next()) {
        ++count;
    }
    return count;
}

}  // namespace quorvane
