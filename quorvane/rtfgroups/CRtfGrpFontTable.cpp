#include "quorvane/rtfgroups/CRtfGrpFontTable.h"

#include <iterator>

#include "quorvane/support/wildcards.h"

namespace quorvane {

namespace {

constexpr std::string_view entries[] = {
    R"(\fonttbl)",
    R"({\f0\fswiss\fcharset0\fprq2 Arial;})",
    R"({\f1\froman\fcharset0\fprq2 Book Antiqua;})",
    R"({\f2\froman\fcharset0\fprq2 Bookman Old Style;})",
    R"({\f3\fmodern\fcharset0\fprq1 Courier New;})",
    R"({\f4\froman\fcharset0\fprq2 Garamond;})",
    R"({\f5\froman\fcharset0\fprq2 Georgia;})",
    R"({\f6\fswiss\fcharset0\fprq2 Lucida Sans;})",
    R"({\f7\froman\fcharset2\fprq2 Symbol;})",
    R"({\f8\fswiss\fcharset0\fprq2 Tahoma;})",
    R"({\f9\froman\fcharset0\fprq2 Times New Roman;})",
    R"({\f10\fswiss\fcharset0\fprq2 Trebuchet MS;})",
    R"({\f11\fswiss\fcharset0\fprq2 Verdana;})",
    R"({\f12\froman\fcharset2\fprq2 Webdings;})",
    R"({\f13\fdecor\fcharset2\fprq2 Wingdings;})",
    R"({\f14\fswiss\fcharset0\fprq2 Arial Black;})",
    R"({\f15\fswiss\fcharset0\fprq2 Impact;})",
    R"({\f16\fscript\fcharset0\fprq2 Comic Sans MS;})",
    R"({\f17\fswiss\fcharset0\fprq2 Century Gothic;})",
};

static_assert(std::size(entries) == CRtfGrpFontTable::fontCount + 1);

}  // namespace

std::int32_t CRtfGrpFontTable::GetFontIndex(std::string_view sName) const {
    std::int32_t number = -1;
    for (const std::string_view entry : entries) {
        if (matchesWildcards(entry, sName)) {
            return number;
        }
        ++number;
    }
    return 0;
}

void CRtfGrpFontTable::render(std::string& rtf) const {
    std::string_view separator = "\r\n{";
    for (const std::string_view entry : entries) {
        rtf += separator;
        rtf += entry;
        separator = "\r\n";
    }
    rtf += '}';
}

}  // namespace quorvane
