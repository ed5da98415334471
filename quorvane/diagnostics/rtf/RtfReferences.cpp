#include "quorvane/diagnostics/rtf/RtfReferences.h"

#include <algorithm>
#include <string>
#include <utility>

namespace quorvane {

namespace {

// So many different missing numbers of each kind are reported.
constexpr std::size_t maxReportedNumbers = 1000;

/// Position of a style's role among the roles that name a style.
std::size_t styleKind(RtfRole role) {
    return static_cast<std::size_t>(role) - static_cast<std::size_t>(RtfRole::ParagraphStyle);
}

}  // namespace

void RtfReferences::takeFontWord(const RtfControl& control, const RtfWord* word,
                                 const Place& place) {
    if (word && word->destination == RtfDestination::FontTable) {
        font_ = {};
    } else if (word && word->role == RtfRole::Font && !font_.hasNumber) {
        font_.hasNumber = true;
        font_.number = control.number.value_or(0);
        font_.place = place;
    } else {
        addToFont(control.word);
        addToFont(std::to_string(control.number.value_or(0)));
    }
}

void RtfReferences::takeFontText(std::string_view text) {
    for (std::size_t end = text.find(';'); end != std::string_view::npos; end = text.find(';')) {
        addToFont(text.substr(0, end));
        endFont();
        text.remove_prefix(end + 1);
    }
    addToFont(text);
}

void RtfReferences::addToFont(std::string_view bytes) {
    // FNV-1a. Blanks and line ends between the parts of a definition do not count.
    for (const char byte : bytes) {
        if (byte != ' ' && byte != '\t') {
            font_.hash = (font_.hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
        }
    }
}

void RtfReferences::endFont() {
    const Font font = std::exchange(font_, {});
    if (!font.hasNumber) {
        return;
    }
    const auto [entry, isNew] = fonts_.try_emplace(font.number, font.hash);
    if (!isNew && entry->second != font.hash) {
        engine_.report(DiagnosticId::DuplicateFont, font.place, {std::to_string(font.number)});
    }
}

void RtfReferences::takeColorText(std::string_view text) {
    colors_ += std::count(text.begin(), text.end(), ';');
}

void RtfReferences::defineStyle(RtfRole role, const RtfControl& control, const Place& place) {
    const std::int64_t number = control.number.value_or(0);
    // The rows of a table style, such as its first and its last one, repeat the style's number.
    const bool mayRepeat = role == RtfRole::TableStyle;
    if (!styles_[styleKind(role)].insert(number).second && !mayRepeat) {
        engine_.report(DiagnosticId::DuplicateStyleNumber, place,
                       {std::string(control.word) + std::to_string(number)});
    }
    if (role == RtfRole::ParagraphStyle) {
        lastStyle_ = number;
    }
}

void RtfReferences::defineUnnumberedStyle() {
    // The number that it leaves out is counted, and paragraphs carry it.
    ++lastStyle_;
    styles_[styleKind(RtfRole::ParagraphStyle)].insert(lastStyle_);
}

void RtfReferences::use(RtfRole role, const RtfControl& control, const Place& place) {
    const std::int64_t number = control.number.value_or(0);
    if (role == RtfRole::Font) {
        if (!fonts_.contains(number)) {
            reportMissing(FontKind, DiagnosticId::UnknownFont, control, place);
        }
    } else if (namesColor(role)) {
        if (number != 0 && (number < 0 || number >= colors_)) {
            reportMissing(ColorKind, DiagnosticId::UnknownColor, control, place);
        }
    } else {
        const std::size_t kind = styleKind(role);
        const bool isDefault = role == RtfRole::ParagraphStyle && number == 0;
        if (!isDefault && !styles_[kind].contains(number)) {
            reportMissing(static_cast<Kind>(FirstStyleKind + kind), DiagnosticId::UnknownStyle,
                          control, place);
        }
    }
}

/// Reports a number that no table has, once.
void RtfReferences::reportMissing(Kind kind, DiagnosticId id, const RtfControl& control,
                                  const Place& place) {
    const std::int64_t number = control.number.value_or(0);
    std::unordered_set<std::int64_t>& reported = reported_[kind];
    if (reported.size() >= maxReportedNumbers || !reported.insert(number).second) {
        return;
    }
    const std::string name = kind >= FirstStyleKind ? std::string(control.word) : "";
    engine_.report(id, place, {name + std::to_string(number)});
}

}  // namespace quorvane
