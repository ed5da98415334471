#include "cli/oneLine.h"

#include <cstddef>

namespace quorvane::cli {

namespace {

/// Bytes of the control character that the text begins with; 0 when it begins with another one. The
/// control characters from U+0080 on are two bytes long.
std::size_t controlCharacterLength(std::string_view text) {
    const auto byte = [text](std::size_t index) {
        return index < text.size() ? static_cast<unsigned char>(text[index]) : 0xFFU;
    };
    if (byte(0) < 0x20 || byte(0) == 0x7F) {
        return 1;
    }
    return byte(0) == 0xC2 && byte(1) >= 0x80 && byte(1) < 0xA0 ? 2 : 0;
}

}  // namespace

std::string oneLine(std::string_view text) {
    std::string line;
    bool inRun = false;
    while (!text.empty()) {
        const std::size_t controlLength = controlCharacterLength(text);
        if (controlLength == 0) {
            line += text.front();
        } else if (!inRun) {
            line += ' ';
        }
        inRun = controlLength > 0;
        text.remove_prefix(inRun ? controlLength : 1);
    }
    return line;
}

}  // namespace quorvane::cli
