#include "quorvane/diagnostics/textColors.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "quorvane/diagnostics/rtfControls.h"
#include "quorvane/diagnostics/rtfWords.h"

namespace quorvane {

namespace {

bool isGroundWord(std::string_view word) {
    return word == "highlight" || word == "cb" || word == "chcbpat" || word == "cbpat";
}

/// The colors behind a control word; `first` are those that text without any has.
TextColors colorsBehindWord(const RtfControl& control, TextColors colors, TextColors first) {
    const std::int32_t number = control.number.value_or(0);
    if (control.word == "cf") {
        colors.text = number;
    } else if (isGroundWord(control.word)) {
        colors.ground = number == 0 ? first.ground : number;
    } else if (control.word == "plain") {
        colors = {0, first.ground};
    }
    return colors;
}

class ColorReader {
public:
    ColorReader(std::string_view text, TextColors colors, const KnownStyles* styles)
        : text_(text), first_(colors), styles_(styles), tokens_(text), groups_{{colors}} {
        groups_.front().isFresh = false;
    }

    std::vector<ColoredPart> read() {
        while (at_ < text_.size()) {
            const char character = text_[at_];
            const auto name = character == '<' ? tokens_.nameAt(at_) : std::nullopt;
            if (character == '{') {
                enter();
                ++at_;
            } else if (character == '}' || (character == '>' && isInToken())) {
                leave();
                ++at_;
            } else if (name) {
                enterToken(*name);
            } else if (character == '\\') {
                readControl();
            } else {
                addSeen(1, character != ' ');
            }
        }
        return std::move(parts_);
    }

private:
    struct Group {
        TextColors colors;
        bool isFresh = true;
        // True for text that is not seen where it stands.
        bool isAside = false;
        bool isToken = false;
    };

    bool isInToken() const { return groups_.back().isToken; }

    void enter() {
        Group group = groups_.back();
        group.isFresh = true;
        group.isToken = false;
        groups_.push_back(group);
    }

    void leave() {
        if (groups_.size() > 1) {
            groups_.pop_back();
        }
    }

    void enterToken(std::string_view name) {
        enter();
        Group& group = groups_.back();
        group.isFresh = false;
        group.isToken = true;
        const int position = styles_ ? styles_->find(StyleKind::Character, name) : -1;
        if (position > 0) {
            const std::string format = styles_->styles(StyleKind::Character).at(position).format();
            group.colors = colorsBehind(format, group.colors);
        }
        at_ += name.size() + 2;
    }

    void readControl() {
        const RtfControl control = rtfControlAt(text_, at_);
        Group& group = groups_.back();
        if (control.symbol == '*') {
            group.isAside = group.isAside || group.isFresh;
            at_ += control.length;
            return;
        }
        if (group.isFresh && isRtfDestination(control.word)) {
            group.isAside = control.word != "field" && control.word != "fldrslt";
        }
        group.isAside = group.isAside || control.word == "fldinst";
        group.isFresh = false;
        group.colors = colorsBehindWord(control, group.colors, first_);
        const std::optional<char> character = characterOf(control, text_, at_);
        if (character) {
            addSeen(control.length, *character != ' ');
        } else {
            at_ += control.length;
        }
    }

    void addSeen(std::size_t length, bool isSeen) {
        Group& group = groups_.back();
        group.isFresh = false;
        if (isSeen && !group.isAside) {
            if (parts_.empty() || parts_.back().colors != group.colors) {
                parts_.push_back({text_.substr(at_, 0), group.colors});
            }
            std::string_view& part = parts_.back().part;
            const auto begin = static_cast<std::size_t>(part.data() - text_.data());
            part = text_.substr(begin, at_ + length - begin);
        }
        at_ += length;
    }

    std::string_view text_;
    TextColors first_;
    const KnownStyles* styles_;
    InlineTokens tokens_;
    std::size_t at_ = 0;
    // What is open, behind one for the text itself.
    std::vector<Group> groups_;
    std::vector<ColoredPart> parts_;
};

}  // namespace

TextColors colorsBehind(std::string_view format, TextColors before) {
    TextColors colors = before;
    for (std::size_t at = format.find('\\'); at != std::string_view::npos;) {
        const RtfControl control = rtfControlAt(format, at);
        colors = colorsBehindWord(control, colors, {0, before.ground});
        at = format.find('\\', at + control.length);
    }
    return colors;
}

std::vector<ColoredPart> coloredParts(std::string_view text, TextColors colors,
                                      const KnownStyles* styles) {
    return ColorReader(text, colors, styles).read();
}

}  // namespace quorvane
