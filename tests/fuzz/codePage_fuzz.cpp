// Any bytes as UTF-8, as UTF-16 and as code page 1252.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/utf16.h"
#include "quorvane/base/text/utf8.h"
#include "tests/fuzz/require.h"

namespace {

using namespace quorvane;

constexpr std::array<char32_t, 32> upperControls = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t codeOfByte(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80U] : byte;
}

std::string plainBytes(std::string_view text) {
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Character character = utf8CharacterAt(text, at);
        at += character.length;
        char found = '?';
        for (unsigned byte = 0; byte < 256; ++byte) {
            if (codeOfByte(static_cast<unsigned char>(byte)) == character.code) {
                found = static_cast<char>(byte);
            }
        }
        bytes += found;
    }
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);

    std::string text;
    for (const char byte : bytes) {
        appendUtf8(codeOfByte(static_cast<unsigned char>(byte)), text);
    }
    requireEqual(utf8FromCodePage1252(bytes), text, "each byte is the character of the table");
    requireEqual(codePage1252FromUtf8(text), bytes, "bytes come back as they were");

    requireEqual(codePage1252FromUtf8(bytes), plainBytes(bytes),
                 "each character is the byte of the table, or a question mark");
    std::string appended = "x";
    appendCodePage1252(bytes, appended);
    requireEqual(appended, "x" + plainBytes(bytes), "what is appended is the same");

    std::u16string units;
    for (std::size_t i = 0; i + 1 < size; i += 2) {
        units += static_cast<char16_t>(data[i] * 256 + data[i + 1]);
    }
    const std::string fromUnits = utf8FromUtf16<char16_t>(units);
    require(utf16FromUtf8<char16_t>(fromUnits) == units, "UTF-16 comes back as it was");
    require(utf16Length(fromUnits) == units.size(), "its length is known beforehand");
    return 0;
}
