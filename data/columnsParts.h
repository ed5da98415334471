#pragma once

#include <string>
#include <string_view>

namespace quorvane::data {

/// A part of a list of columns, and whether it was written between quotation marks.
struct ColumnsPart {
    std::string text;
    bool isQuoted = false;
};

/// Reads a list of columns, such as "sku:12%,name", part by part. Quotation marks let a part hold
/// any character; two stand for one.
class ColumnsParts {
public:
    explicit ColumnsParts(std::string_view text) : rest_(text) {}

    /// The part up to the next ":" or ",". Error 5 for a quotation mark that is not closed.
    ColumnsPart take() { return rest_.starts_with('"') ? takeQuoted() : takeUpTo(":,"); }
    /// All up to the next column: a comma that is not between quotation marks.
    ColumnsPart takeColumn();
    /// Takes the sign if it is the next character.
    bool takeSign(char sign);
    /// How the next part begins: what stands before the next ":", "," or "|".
    std::string_view untilSign() const;
    /// Error 5 unless all parts are taken.
    void requireEnd() const;

private:
    ColumnsPart takeUpTo(std::string_view signs);
    ColumnsPart takeQuoted();

    std::string_view rest_;
};

}  // namespace quorvane::data
