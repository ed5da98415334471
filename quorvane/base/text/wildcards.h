#pragma once

#include <string_view>
#include <vector>

namespace quorvane {

/// A pattern that texts are matched against, character by character and case-sensitively:
/// `*` stands for any run of characters, none included; `?` for any one character; `#` for one of
/// the digits 0 to 9; `[list]` for one of the characters listed and `[!list]` for one that is not.
/// A list holds characters and ranges of code points ("a-z"); in it `*`, `?`, `#`, `[`, a "!" that
/// is not first and a "-" that is first or last stand for themselves. `[]` stands for nothing,
/// `[!]` for "!". Every other character stands for itself, "]" included.
class WildcardPattern {
public:
    /// Error 5 when a "[" is not closed or a range runs backwards.
    explicit WildcardPattern(std::string_view pattern);

    /// True when the whole text fits the pattern. The time taken grows at most with the product of
    /// the two lengths.
    bool matches(std::string_view text) const;

private:
    struct Range {
        char32_t first = 0;
        char32_t last = 0;
    };
    /// What one character of a text, or any run of them, has to be.
    struct Item {
        bool isRun = false;
        bool isNegated = false;
        std::vector<Range> ranges;
        bool accepts(char32_t code) const;
    };

    void addList(std::string_view list);

    std::vector<Item> items_;
};

/// True when the whole text fits the pattern; see `WildcardPattern`. Error 5 for a pattern that is
/// none.
bool matchesWildcards(std::string_view text, std::string_view pattern);

}  // namespace quorvane
