#include "quorvane/diagnostics/text/textColors.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "quorvane/docmodel/inline/InlineTokens.h"
#include "quorvane/rtf/RtfControl.h"
#include "quorvane/rtf/RtfGroup.h"
#include "quorvane/stylesheet/StyleList.h"

namespace quorvane {

namespace {

/// The colors after a control word; `first` are those that text without any has.
TextColors colorsAfterWord(const RtfControl& control, TextColors colors, TextColors first) {
    const RtfWord* const word = findRtfWord(control.word);
    const std::int32_t number = control.number.value_or(0);
    switch (word ? word->role : RtfRole::None) {
        case RtfRole::TextColor:
            colors.text = number;
            break;
        case RtfRole::GroundColor:
            colors.ground = number == 0 ? first.ground : number;
            break;
        case RtfRole::Plain:
            colors = {0, first.ground};
            break;
        default:
            break;
    }
    return colors;
}

class ColorReader {
public:
    ColorReader(std::string_view text, TextColors colors, const KnownStyles* styles)
        : text_(text), first_(colors), styles_(styles), tokens_(text), groups_(1) {
        groups_.front().colors = colors;
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
    struct Group : RtfGroup {
        TextColors colors{};
        bool isToken = false;
    };

    bool isInToken() const { return groups_.back().isToken; }

    void enter() {
        groups_.back().isFresh = false;
        Group group;
        static_cast<RtfGroup&>(group) = groups_.back().inner();
        group.colors = groups_.back().colors;
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
            const std::string format =
                stylesOf(*styles_, StyleKind::Character).at(position).format();
            group.colors = colorsAfter(format, group.colors);
        }
        at_ += name.size() + 2;
    }

    void readControl() {
        const RtfControl control = rtfControlAt(text_, at_);
        Group& group = groups_.back();
        if (control.symbol == '*') {
            group.takeMark();
            at_ += control.length;
            return;
        }
        if (control.word.empty()) {
            group.isFresh = false;
        } else {
            group.takeWord(findRtfWord(control.word));
            group.colors = colorsAfterWord(control, group.colors, first_);
        }
        const std::optional<char> character = characterOf(control, text_, at_);
        if (character) {
            addSeen(control.length, *character != ' ');
        } else {
            at_ = std::min(at_ + control.length + binaryLengthAfter(control), text_.size());
        }
    }

    void addSeen(std::size_t length, bool isSeen) {
        Group& group = groups_.back();
        group.isFresh = group.isFresh && !isSeen;
        if (isSeen && group.destination == RtfDestination::Text) {
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
    // What is open, after one for the text itself.
    std::vector<Group> groups_;
    std::vector<ColoredPart> parts_;
};

}  // namespace

TextColors colorsAfter(std::string_view format, TextColors before) {
    TextColors colors = before;
    for (std::size_t at = format.find('\\'); at != std::string_view::npos;) {
        const RtfControl control = rtfControlAt(format, at);
        colors = colorsAfterWord(control, colors, {0, before.ground});
        at = format.find('\\', at + control.length);
    }
    return colors;
}

std::vector<ColoredPart> coloredParts(std::string_view text, TextColors colors,
                                      const KnownStyles* styles) {
    return ColorReader(text, colors, styles).read();
}

}  // namespace quorvane
