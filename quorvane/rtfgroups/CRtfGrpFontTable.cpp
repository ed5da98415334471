#include "quorvane/rtfgroups/CRtfGrpFontTable.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/wildcards.h"

namespace quorvane {

namespace {

struct Font {
    std::string_view key;
    std::string_view entry;
};

constexpr std::string_view opening = R"(\fonttbl)";

// By their numbers.
constexpr Font fonts[] = {
    {"Arial", R"({\f0\fswiss\fcharset0\fprq2 Arial;})"},
    {"Book Antiqua", R"({\f1\froman\fcharset0\fprq2 Book Antiqua;})"},
    {"Bookman Old Style", R"({\f2\froman\fcharset0\fprq2 Bookman Old Style;})"},
    {"Courier New", R"({\f3\fmodern\fcharset0\fprq1 Courier New;})"},
    {"Garamond", R"({\f4\froman\fcharset0\fprq2 Garamond;})"},
    {"Georgia", R"({\f5\froman\fcharset0\fprq2 Georgia;})"},
    {"Lucida Sans", R"({\f6\fswiss\fcharset0\fprq2 Lucida Sans;})"},
    {"Symbol", R"({\f7\froman\fcharset2\fprq2 Symbol;})"},
    {"Tahoma", R"({\f8\fswiss\fcharset0\fprq2 Tahoma;})"},
    {"Times New Roman", R"({\f9\froman\fcharset0\fprq2 Times New Roman;})"},
    {"Trebuchet", R"({\f10\fswiss\fcharset0\fprq2 Trebuchet MS;})"},
    {"Verdana", R"({\f11\fswiss\fcharset0\fprq2 Verdana;})"},
    {"Webdings", R"({\f12\froman\fcharset2\fprq2 Webdings;})"},
    {"Wingdings", R"({\f13\fdecor\fcharset2\fprq2 Wingdings;})"},
    {"Arial Black", R"({\f14\fswiss\fcharset0\fprq2 Arial Black;})"},
    {"Impact", R"({\f15\fswiss\fcharset0\fprq2 Impact;})"},
    {"Comic Sans MS", R"({\f16\fscript\fcharset0\fprq2 Comic Sans MS;})"},
    {"Century Gothic", R"({\f17\fswiss\fcharset0\fprq2 Century Gothic;})"},
};

static_assert(std::size(fonts) == CRtfGrpFontTable::fontCount);

/// What stands between the control words of an entry and its end.
std::string_view nameIn(std::string_view entry) {
    const std::size_t begin = entry.find(' ') + 1;
    return entry.substr(begin, entry.find(';') - begin);
}

bool isThere(std::int32_t number) {
    return number >= 0 && static_cast<std::size_t>(number) < std::size(fonts);
}

}  // namespace

std::int32_t CRtfGrpFontTable::GetFontIndex(std::string_view sName) const {
    if (matchesWildcards(opening, sName)) {
        return -1;
    }
    const auto* const found =
        std::find_if(std::begin(fonts), std::end(fonts),
                     [sName](const Font& font) { return matchesWildcards(font.entry, sName); });
    return found == std::end(fonts) ? 0 : static_cast<std::int32_t>(found - fonts);
}

std::optional<std::int32_t> CRtfGrpFontTable::fontNumber(std::string_view key) {
    const auto* const found =
        std::find_if(std::begin(fonts), std::end(fonts),
                     [&](const Font& font) { return lowerCase(font.key) == lowerCase(key); });
    return found == std::end(fonts) ? std::nullopt
                                    : std::optional(static_cast<std::int32_t>(found - fonts));
}

std::optional<std::int32_t> CRtfGrpFontTable::fontNumberOfName(std::string_view name) {
    const auto* const found =
        std::find_if(std::begin(fonts), std::end(fonts),
                     [&](const Font& font) { return equalIgnoringCase(nameIn(font.entry), name); });
    return found == std::end(fonts) ? std::nullopt
                                    : std::optional(static_cast<std::int32_t>(found - fonts));
}

std::string_view CRtfGrpFontTable::fontName(std::int32_t number) {
    return isThere(number) ? nameIn(fonts[number].entry) : std::string_view();
}

std::string_view CRtfGrpFontTable::fontKey(std::int32_t number) {
    return isThere(number) ? fonts[number].key : std::string_view();
}

void CRtfGrpFontTable::render(TextOutput& rtf, std::span<const std::string> added) const {
    rtf << "\r\n{" << opening;
    for (const Font& font : fonts) {
        rtf << "\r\n" << font.entry;
    }
    for (const std::string& entry : added) {
        rtf << "\r\n" << entry;
    }
    rtf << "}";
}

}  // namespace quorvane
