#include "quorvane/stylesheet/styleSheetGroup.h"

#include <string_view>

#include "quorvane/base/text/trimming.h"
#include "quorvane/rtf/unicodeWords.h"

namespace quorvane {

namespace {

/// The entries of the styles of one kind.
class Entries {
public:
    Entries(const StyleList& styles, const StyleNumbers& numbers, bool isExtended)
        : styles_(styles), numbers_(numbers), isExtended_(isExtended) {}

    std::string paragraph(int position) const {
        const Style& style = styles_.at(position);
        std::string words;
        if (isExtended_ || style.name != normalStyle) {
            words = "\\" + style.kind() + std::to_string(numbers_.at(position));
        }
        words += formatOf(style);
        if (style.isAdditive()) {
            words += " \\additive";
        }
        words += reference(" \\sbasedon", style.basedOn());
        words += reference(" \\snext", style.next());
        words += " " + shownName(style);
        return "{" + std::string(trimBlanks(words)) + ";}";
    }

    std::string character(int position) const {
        const Style& style = styles_.at(position);
        std::string words = "\\*\\" + style.kind() + std::to_string(numbers_.at(position));
        if (style.isAdditive()) {
            words += " \\additive";
        }
        words += reference(" \\sbasedon", style.basedOn());
        return "{" + words + formatOf(style) + " " + shownName(style) + ";}";
    }

private:
    /// A second blank would be the first character of the name. The original language has it.
    std::string formatOf(const Style& style) const {
        const std::string format = style.format();
        return isExtended_ && format.empty() ? std::string() : " " + format;
    }

    std::string reference(std::string_view word, const std::string& name) const {
        const int position = name.empty() ? -1 : styles_.find(name);
        return position < 0 ? std::string()
                            : std::string(word) + std::to_string(numbers_.at(position));
    }

    std::string shownName(const Style& style) const {
        return isExtended_ ? nameWithUnicodeWords(style.writtenName()) : style.name;
    }

    const StyleList& styles_;
    const StyleNumbers& numbers_;
    bool isExtended_;
};

}  // namespace

std::string styleSheetGroup(const StyleList& paragraphStyles, const StyleList& characterStyles,
                            const SheetForm& form) {
    std::string group = "\r\n{\\stylesheet";
    const Entries paragraphs(paragraphStyles, form.paragraph, form.isExtended);
    for (int position = 1; position <= static_cast<int>(paragraphStyles.count()); ++position) {
        group += "\r\n" + paragraphs.paragraph(position);
    }
    const Entries characters(characterStyles, form.character, form.isExtended);
    for (int position = 1; position <= static_cast<int>(characterStyles.count()); ++position) {
        group += "\r\n" + characters.character(position);
    }
    return group + "}";
}

}  // namespace quorvane
