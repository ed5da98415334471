#include "quorvane/diagnostics/documentNumbers.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>

#include "quorvane/rtfgroups/CRtfGrpColorTable.h"
#include "quorvane/rtfgroups/CRtfGrpFontTable.h"

namespace quorvane {

namespace {

constexpr std::string_view fontWords[] = {"f", "af"};
constexpr std::string_view colorWords[] = {
    "cf",      "cb",     "acf",     "chcbpat",   "chcfpat", "cbpat",   "cfpat",
    "clcbpat", "brdrcf", "clcfpat", "highlight", "ulc",     "trcbpat", "trcfpat",
};

template <std::size_t Count>
bool isAmong(std::string_view word, const std::string_view (&words)[Count]) {
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

int occurrences(std::string_view text, std::string_view part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos;
         at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

/// The fonts have the numbers from 0 on.
int fontCount() {
    static const int count = [] {
        std::string table;
        CRtfGrpFontTable().render(table);
        return occurrences(table, "{\\f") - 1;
    }();
    return count;
}

/// The colors have the numbers from 1 on; 0 is none of them.
int colorCount() {
    static const int count = [] {
        std::string table;
        CRtfGrpColorTable().render(table);
        return occurrences(table, "\\red");
    }();
    return count;
}

bool isStyleMissing(int number, const KnownStyles* styles, StyleKind kind) {
    if (number == 0 && kind == StyleKind::Paragraph) {
        return false;
    }
    const int first = styleNumber(1);
    return styles &&
           (number < first || number >= first + static_cast<int>(styles->styles(kind).count()));
}

}  // namespace

std::string_view missingReference(std::string_view word, const RtfControl& control,
                                  const KnownStyles* styles) {
    const int number = control.number.value_or(0);
    if (isAmong(word, fontWords)) {
        return number < 0 || number >= fontCount() ? "font" : "";
    }
    if (isAmong(word, colorWords)) {
        return number < 0 || number > colorCount() ? "color" : "";
    }
    if (word == "s" || word == "cs") {
        const StyleKind kind = word == "s" ? StyleKind::Paragraph : StyleKind::Character;
        return isStyleMissing(number, styles, kind) ? "style" : "";
    }
    return word == "ts" || word == "ds" ? "style" : "";
}

}  // namespace quorvane
