#include "quorvane/diagnostics/text/controlWordHints.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "quorvane/base/text/asciiCharacters.h"
#include "quorvane/base/text/nowhere.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/rtf/RtfWord.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

namespace quorvane {

namespace {

/// A control word that stands in a format without its backslash, with one in front; empty for any
/// other word.
std::string asControlWord(std::string_view word) {
    const std::string control = "\\" + lowerCase(word);
    const RtfControl read = rtfControlAt(control, 0);
    return findRtfWord(read.word) && read.length == control.size() ? control : std::string();
}

/// The control words that a text in a format was most likely meant to be, where all of its words
/// are known.
std::string controlWordsMeant(std::string_view text) {
    constexpr std::string_view separators = " \t\r\n,/";
    std::string meant;
    for (std::size_t start = text.find_first_not_of(separators); start != nowhere;) {
        const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
        const std::string control = asControlWord(text.substr(start, end - start));
        if (control.empty()) {
            return {};
        }
        meant += control;
        start = text.find_first_not_of(separators, end);
    }
    return meant;
}

}  // namespace

std::string nearControlWordHint(std::string_view word) {
    constexpr std::string_view words[] = {
        "additive", "b",     "caps",      "cb",  "cbpat", "cf",    "chcbpat", "emdash",
        "endash",   "expnd", "expndtw",   "f",   "fi",    "field", "fldinst", "fldrslt",
        "footnote", "fs",    "highlight", "i",   "keep",  "keepn", "lang",    "li",
        "line",     "outl",  "page",      "par", "plain", "qc",    "qj",      "ql",
        "qr",       "ri",    "sa",        "sb",  "scaps", "shad",  "sl",      "slmult",
        "strike",   "sub",   "super",     "tab", "uldb",  "ul",    "ulnone",  "ulw",
    };
    constexpr std::pair<std::string_view, std::string_view> others[] = {
        {"bold", "b"},        {"italic", "i"},  {"italics", "i"},     {"underline", "ul"},
        {"underlined", "ul"}, {"color", "cf"},  {"colour", "cf"},     {"size", "fs"},
        {"fontsize", "fs"},   {"font", "f"},    {"center", "qc"},     {"centered", "qc"},
        {"left", "ql"},       {"right", "qr"},  {"justify", "qj"},    {"justified", "qj"},
        {"n", "line"},        {"br", "line"},   {"newline", "line"},  {"t", "tab"},
        {"r", "line"},        {"indent", "li"}, {"background", "cb"}, {"nbsp", "~"},
    };
    for (const auto& [other, meant] : others) {
        if (lowerCase(word) == other) {
            return "did you mean \\" + std::string(meant) + "?";
        }
    }
    // As other languages write a line break or a tab in front of a word.
    if (word.size() > 1 && std::string_view("nrt").find(word[0]) != nowhere && word[1] >= 'A' &&
        word[1] <= 'Z') {
        return "did you mean \\" + std::string(word[0] == 't' ? "tab " : "line ") +
               std::string(word.substr(1)) + "?";
    }
    const std::string_view nearest = nearestWord(word, words);
    return nearest.empty() ? std::string() : "did you mean \\" + std::string(nearest) + "?";
}

std::string formatTextHint(std::string_view text, const RtfControl* before) {
    const std::string word = before ? "\\" + lowerCase(before->word) : std::string();
    const bool takesNumber = before && !before->number;
    const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
    if (takesNumber && digits > 0) {
        return "remove the blank before the number: " + word + std::string(text.substr(0, digits));
    }
    if (takesNumber && (word == "\\cf" || word == "\\highlight" || word == "\\cb")) {
        std::string name = lowerCase(text);
        std::replace(name.begin(), name.end(), ' ', '-');
        if (const int number = CRtfGrpColorTable::colorNumber(name); number > 0) {
            return "did you mean " + word + std::to_string(number) + "?";
        }
    }
    if (before && before->number && text.size() > 1 && (text[0] == '.' || text[0] == ',') &&
        isAsciiDigit(text[1])) {
        return "the number of a control word must be a whole number";
    }
    if (const std::string meant = controlWordsMeant(text); !meant.empty()) {
        return "did you mean " + meant + "?";
    }
    if (text == ",") {
        return "remove the comma between the control words";
    }
    if (before && before->number && lowerCase(text) == "pt") {
        return word == "\\fs" ? "write the size in half points, without a unit: \\fs20 is 10 points"
                              : "write the number without a unit";
    }
    return "a format consists of control words, such as \\fs20\\b";
}

}  // namespace quorvane
