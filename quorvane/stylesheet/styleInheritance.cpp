#include "quorvane/stylesheet/styleInheritance.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <unordered_map>
#include <utility>

#include "quorvane/base/text/placeholders.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/stylesheet/LineNumbers.h"

namespace quorvane {

namespace {

class Inheritance {
public:
    Inheritance(std::vector<ExtendedStyle>& styles, std::string_view text,
                const ExtendedViolationReport& report)
        : styles_(styles), lines_(text), report_(report) {}

    void run() {
        findNames();
        for (ExtendedStyle& style : styles_) {
            bases_.push_back(find(style, style.basedOn));
            find(style, style.next);
        }
        states_.assign(styles_.size(), State::New);
        for (std::size_t i = 0; i < styles_.size(); ++i) {
            inherit(i);
        }
    }

private:
    static constexpr std::size_t none = SIZE_MAX;

    enum class State : unsigned char { New, Waiting, Whole };

    void refuse(ExtendedFault fault, std::string_view part, StyleKind kind,
                std::initializer_list<std::string_view> arguments) {
        report_({fault, part, withArguments(extendedFaultText(fault), arguments), nullptr, kind});
    }

    auto& positionsOf(StyleKind kind) { return positions_[static_cast<std::size_t>(kind)]; }

    void findNames() {
        std::vector<ExtendedStyle> sound;
        for (ExtendedStyle& style : styles_) {
            const auto [found, isNew] =
                positionsOf(style.kind).emplace(lowerCase(style.name), sound.size());
            if (isNew) {
                sound.push_back(std::move(style));
            } else {
                const std::string_view first = sound[found->second].name;
                refuse(ExtendedFault::StyleTwice, style.name, style.kind,
                       {extendedKindWord(style.kind), style.name,
                        std::to_string(lines_.lineOf(first))});
            }
        }
        styles_ = std::move(sound);
    }

    /// The position of the style that another one refers to. A reference that leads nowhere is
    /// removed.
    std::size_t find(const ExtendedStyle& style, std::string_view& name) {
        if (name.empty()) {
            return none;
        }
        const auto found = positionsOf(style.kind).find(lowerCase(name));
        if (found != positionsOf(style.kind).end()) {
            return found->second;
        }
        const std::string_view wrong = std::exchange(name, {});
        refuse(ExtendedFault::MissingStyle, wrong, style.kind,
               {extendedKindWord(style.kind), wrong});
        return none;
    }

    /// Without recursion: a style may be based on another one over any number of steps.
    void inherit(std::size_t position) {
        std::vector<std::size_t> chain;
        for (std::size_t at = position; at != none && states_[at] != State::Whole;) {
            states_[at] = State::Waiting;
            chain.push_back(at);
            breakCircle(at);
            at = bases_[at];
        }
        for (auto at = chain.rbegin(); at != chain.rend(); ++at) {
            states_[*at] = State::Whole;
            if (bases_[*at] != none) {
                takeOver(styles_[bases_[*at]].format, styles_[*at].format);
            }
        }
    }

    void breakCircle(std::size_t at) {
        const std::size_t base = bases_[at];
        if (base != none && states_[base] == State::Waiting) {
            const std::string_view part = std::exchange(styles_[at].basedOn, {});
            bases_[at] = none;
            refuse(ExtendedFault::StyleCircle, part, styles_[at].kind, {styles_[base].name});
        }
    }

    static void takeOver(const StyleFormat& inherited, StyleFormat& own) {
        StyleFormat all = inherited;
        for (const StyleValue& value : own) {
            setStyleValue(all, value);
        }
        own = std::move(all);
    }

    std::vector<ExtendedStyle>& styles_;
    LineNumbers lines_;
    const ExtendedViolationReport& report_;
    // By kind and name in lower case.
    std::array<std::unordered_map<std::string, std::size_t>, 3> positions_;
    std::vector<std::size_t> bases_;
    std::vector<State> states_;
};

}  // namespace

void inheritFormats(std::vector<ExtendedStyle>& styles, std::string_view text,
                    const ExtendedViolationReport& report) {
    Inheritance(styles, text, report).run();
}

}  // namespace quorvane
