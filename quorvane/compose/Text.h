#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// A text with parts in character styles, for `Cell::addParagraph` and others:
///
///     paragraph.setText("Total: " + styled("strong", "12.50"));
///
/// Texts are UTF-8 and are shown exactly as they are, control words, braces and `<` among them. A
/// line break (CR, LF or both) begins a line, and a tab is a tab. What no document can show (see
/// `findUnshowable`) is an `Error` when the text is given to a paragraph.
class Text {
public:
    /// An empty text.
    Text() = default;
    /// A text that is shown as it is. A null pointer is an empty text.
    Text(std::string_view utf8);
    Text(const std::string& utf8) : Text(std::string_view(utf8)) {}
    Text(const char* utf8) : Text(std::string_view(utf8 ? utf8 : "")) {}

    /// Appends another text.
    Text& operator+=(const Text& other) {
        marked_ += other.marked_;
        return *this;
    }

private:
    friend class TextView;
    friend Text rtf(std::string_view raw);
    friend Text styled(std::string_view style, const Text& text);
    friend Text bold(const Text& text);
    friend Text italic(const Text& text);
    friend Text underlined(const Text& text);
    friend class TextRendering;

    static Text within(char kind, std::string_view name, const Text& text);

    // The literal parts, with marks between them that no text in UTF-8 has; see `textMarks.h`.
    std::string marked_;
};

/// Returns both texts, one after the other.
Text operator+(Text first, const Text& second);

/// Returns a text that goes into the document as it is, with control words: `rtf("\\b\\fs28 ")`.
/// It may have words that format characters and paragraphs, words for characters, and fields, as
/// `(rtf=…)` in the extended language. Words of tables, sections and the document, `\u` and braces
/// that are not in pairs are an `Error` when the text is given to a paragraph. Characters beyond
/// ASCII are shown as they are.
Text rtf(std::string_view raw);

/// Returns the text in a character style of the stylesheet, as `<strong=…>` in the extended
/// language. A style that the stylesheet does not have is an `Error` when the text is given to a
/// paragraph, so set the stylesheet before.
Text styled(std::string_view style, const Text& text);

/// Returns the text in bold.
Text bold(const Text& text);

/// Returns the text in italics.
Text italic(const Text& text);

/// Returns the text underlined.
Text underlined(const Text& text);

/// How functions take a text: as a literal text in UTF-8 or as a `Text`. It refers to the text and
/// does not copy it, so use it for parameters only.
class TextView {
public:
    /// An empty text.
    TextView() = default;
    /// A text that is shown as it is. A null pointer is an empty text.
    TextView(std::string_view utf8) : literal_(utf8) {}
    TextView(const std::string& utf8) : literal_(utf8) {}
    TextView(const char* utf8) : literal_(utf8 ? utf8 : "") {}
    /// A text with styles.
    TextView(const Text& text) : text_(&text) {}

private:
    friend class TextRendering;

    std::string_view literal_;
    const Text* text_ = nullptr;
};

}  // namespace quorvane
