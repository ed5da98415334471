#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// A UTF-8 text whose places are given by line and column. It must stay as long as this does.
class SourceText {
public:
    /// A line without its end (CR LF, LF or CR).
    struct Line {
        std::size_t start;
        std::size_t end;
    };

    /// `encoding` is that of the file that the text was read from.
    explicit SourceText(std::string_view text, TextEncoding encoding = TextEncoding::Windows1252);

    std::string_view text() const { return text_; }
    TextEncoding encoding() const { return encoding_; }
    const std::vector<Line>& lines() const { return lines_; }

    /// The place of the bytes from `from` to before `to`, as far as they stand on the line of
    /// `from`. It costs no more in a long line than in a short one.
    Place place(std::size_t from, std::size_t to) const;

    /// Makes parts of another text have the place of `at`, a part of this one: the other one is
    /// put in there. Texts are numbered from 1. They must stay as long as this does.
    void include(std::string_view other, std::string_view at) { included_.push_back({other, at}); }

    /// The place of a part of the text: `part` must be a view into it, or into one that is
    /// included.
    Place placeOf(std::string_view part) const;

private:
    // A character's beginning, and how many characters are before it.
    struct Mark {
        std::size_t position;
        std::size_t characters;
    };

    struct Included {
        std::string_view text;
        std::string_view at;
    };

    std::size_t charactersBefore(std::size_t position) const;

    std::string_view text_;
    TextEncoding encoding_;
    std::vector<Line> lines_;
    // One every so many bytes; none where all characters are one byte.
    std::vector<Mark> marks_;
    std::vector<Included> included_;
};

}  // namespace quorvane
