#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "quorvane/base/text/utf8.h"

namespace quorvane {

/// What a reader shows of a text that was escaped. A control word at its end has no blank after it
/// when a description has left that out; no letter follows there.
inline std::string shownText(std::string_view rtf) {
    std::string text;
    char32_t lead = 0;
    while (!rtf.empty()) {
        const std::size_t length = rtf.front() == '\\' ? 2 : 1;
        const std::string_view next = rtf.substr(0, length);
        if (next == "\\'") {
            appendUtf8(
                static_cast<char32_t>(std::stoul(std::string(rtf.substr(2, 2)), nullptr, 16)),
                text);
            rtf.remove_prefix(4);
        } else if (rtf.starts_with("\\tab ") || rtf == "\\tab") {
            text += '\t';
            rtf.remove_prefix(std::min<std::size_t>(5, rtf.size()));
        } else if (rtf.starts_with("\\line ") || rtf == "\\line") {
            text += '\n';
            rtf.remove_prefix(std::min<std::size_t>(6, rtf.size()));
        } else if (rtf.starts_with("{\\uc1")) {
            rtf.remove_prefix(5);
            for (; !rtf.starts_with('}'); rtf.remove_prefix(rtf.find('?') + 1)) {
                const auto unit =
                    static_cast<char16_t>(std::stoi(std::string(rtf.substr(2, rtf.find('?') - 2))));
                if (unit >= 0xD800 && unit < 0xDC00) {
                    lead = unit;
                } else if (unit >= 0xDC00 && unit < 0xE000) {
                    appendUtf8(0x10000 + ((lead - 0xD800) << 10) + (unit - 0xDC00), text);
                } else {
                    appendUtf8(unit, text);
                }
            }
            rtf.remove_prefix(1);
        } else if (rtf.starts_with("{}")) {
            rtf.remove_prefix(2);
        } else {
            text += next.back();
            rtf.remove_prefix(length);
        }
    }
    return text;
}

}  // namespace quorvane
