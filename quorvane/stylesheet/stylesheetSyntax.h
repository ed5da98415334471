#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

// The syntax of stylesheets. A stylesheet is a sequence of definitions, each in braces; the text
// outside the braces has no meaning. A definition is a sequence of items separated by ";". An item
// is a keyword, a ":" and a value; the value of the first item, "name", is a list of names
// separated by ",". Blanks, tabs and line breaks at the ends of any part do not count. Everything
// that reads stylesheets reads them through what is declared here. All views are into the text that
// was given, and nothing fails.

/// A keyword of an item other than the first.
struct StyleKeyword {
    std::string_view word;
    /// The code of the subfield in which a parsed definition keeps the value.
    std::string_view subField;
    /// The values that the keyword accepts, in lower case; empty when it accepts any.
    std::span<const std::string_view> values = {};

    bool accepts(std::string_view value) const;
};

/// The keyword of the first item.
inline constexpr std::string_view nameKeyword = "name";

/// The kinds of styles in the order of `StyleKind`.
inline constexpr std::string_view styleKindWords[] = {"s", "cs", "cell"};

/// The values of a keyword that is true or false.
inline constexpr std::string_view styleTruthWords[] = {"yes", "no"};

inline constexpr StyleKeyword kindKeyword{"style-def", "d", styleKindWords};
inline constexpr StyleKeyword formatKeyword{"format", "f"};
inline constexpr StyleKeyword basedOnKeyword{"based-on", "b"};
inline constexpr StyleKeyword nextKeyword{"next", "n"};
inline constexpr StyleKeyword additiveKeyword{"additive", "a", styleTruthWords};

/// The codes of the subfields of a format that is written as a record string. They are joined in
/// this order.
inline constexpr std::string_view formatSubFields = "vfp";

/// The code of the subfield with the name of a style as it is written.
inline constexpr std::string_view writtenNameSubField = "w";

/// The words of these keywords.
std::span<const std::string_view> styleKeywordWords();

/// The keyword of an item other than the first; null for any other word. Case counts.
const StyleKeyword* findStyleKeyword(std::string_view word);

/// An item of a definition.
struct StyleItem {
    std::string_view whole;
    std::string_view writtenKeyword;
    /// In lower case.
    std::string keyword;
    /// What the keyword is in an item other than the first; null when it is not one of those.
    const StyleKeyword* known = nullptr;
    /// Empty when the item has no ":".
    std::string_view value;

    bool hasColon() const { return whole.size() > writtenKeyword.size(); }
    bool is(const StyleKeyword& keywordOfItem) const { return known == &keywordOfItem; }
};

StyleItem readStyleItem(std::string_view text);

/// The first word in a value that a ":" follows and that `isKeyword` is true for, in lower case: a
/// ";" is missing before it. It is not the first word of the value. Empty when there is none.
std::string_view keywordWithin(std::string_view value,
                               const std::function<bool(std::string_view)>& isKeyword);

/// What makes a stylesheet invalid.
enum class StyleSheetFault {
    BracesUnderflow,
    BracesOverflow,
    BadKeyword,
    BadStyleKind,
    BadAdditive
};

/// The fault of the first item of a definition; nothing when it is valid.
std::optional<StyleSheetFault> faultOfFirst(const StyleItem& item);

/// The fault of any other item; nothing when it is valid. The value is given in lower case.
std::optional<StyleSheetFault> faultOf(const StyleItem& item, std::string_view lowerValue);

/// The pieces of a text between separators. An empty text is one empty piece.
class Pieces {
public:
    Pieces(std::string_view text, char separator) : text_(text), separator_(separator) {}

    /// The next piece; nothing after the last one.
    std::optional<std::string_view> next() {
        if (areAllRead()) {
            return std::nullopt;
        }
        const std::size_t end = std::min(text_.find(separator_, start_), text_.size());
        const std::string_view piece = text_.substr(start_, end - start_);
        start_ = end + 1;
        return piece;
    }

    bool areAllRead() const { return start_ > text_.size(); }

private:
    std::string_view text_;
    char separator_;
    std::size_t start_ = 0;
};

/// The items of a definition. One that is empty is an item like any other, except the last.
class StyleItems {
public:
    /// `body` is the text between the braces.
    explicit StyleItems(std::string_view body) : pieces_(body, ';') {}

    /// Reads the next item, which stays valid until the next call; null after the last one.
    const StyleItem* next();

private:
    Pieces pieces_;
    StyleItem item_;
};

/// The names in the value of an item "name", in the case in which they are written.
std::vector<std::string_view> styleNamesIn(std::string_view value);

/// How many braces a text holds.
struct BraceCount {
    std::ptrdiff_t opened;
    std::ptrdiff_t closed;
};

BraceCount countBraces(std::string_view text);

/// The fault of a stylesheet with these braces; nothing when there are as many "{" as "}".
std::optional<StyleSheetFault> faultOf(const BraceCount& braces);

/// The first brace that is not one of a pair: a "}" with no "{" open, or a "{" that another "{"
/// follows before any "}". Empty when the braces alternate, each "{" followed by its "}".
std::string_view findLoneBrace(std::string_view text);

/// A definition's place in its stylesheet.
struct BracedText {
    /// Where its "{" is.
    std::size_t open;
    /// Where its "}" is; the size of the stylesheet when there is none.
    std::size_t close;
    /// The text between them; empty when the "}" comes first.
    std::string_view body;
};

/// The first "{" at or after a place, with the first "}" after it; nothing when there is no "{".
std::optional<BracedText> bracedTextFrom(std::string_view text, std::size_t from);

/// The definitions of a stylesheet that has as many "{" as "}": the first "{" goes with the first
/// "}", the second with the second, and so on, even where a "}" comes before its "{".
class BracedTexts {
public:
    explicit BracedTexts(std::string_view text);

    /// The next definition; nothing after the last one.
    std::optional<BracedText> next();

private:
    std::string_view text_;
    std::size_t open_;
    std::size_t close_;
};

}  // namespace quorvane
