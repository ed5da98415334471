#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quorvane {

/// A part of an extended stylesheet; the views are into its text.
struct ExtendedSheetPart {
    enum class Kind {
        /// A line that begins with ";", outside braces.
        Comment,
        /// A "{" with the "}" that follows it before any other "{".
        Definition,
        /// A "{" that another "{" or the end of the text follows. The body ends there.
        UnclosedDefinition,
        /// A "}" outside definitions.
        LoneBrace,
        /// Any other text outside definitions, on one line.
        StrayText
    };

    Kind kind = Kind::StrayText;
    /// All of it, without the blanks at its ends.
    std::string_view whole;
    /// What stands between the braces of a definition.
    std::string_view body = {};
};

/// Takes an extended stylesheet apart. Every character but blanks and line breaks is in one part.
class ExtendedSheetParts {
public:
    explicit ExtendedSheetParts(std::string_view text);

    /// The next part; nothing after the last one.
    std::optional<ExtendedSheetPart> next();

private:
    ExtendedSheetPart take(ExtendedSheetPart::Kind kind, std::size_t length);
    ExtendedSheetPart takeDefinition();

    std::string_view rest_;
    bool isLineNew_ = true;
};

}  // namespace quorvane
