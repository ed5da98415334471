#include "quorvane/base/text/TextEncoding.h"

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane {

TextEncoding encodingOf(std::string_view bytes, EncodingChoice choice) {
    if (isMarkedExtended(bytes)) {
        choice = EncodingChoice::Utf8;
    }
    if (choice == EncodingChoice::Windows1252) {
        return TextEncoding::Windows1252;
    }
    if (bytes.starts_with(utf8Mark)) {
        return TextEncoding::Utf8WithMark;
    }
    const bool isUtf8 = choice == EncodingChoice::Utf8 ||
                        (asciiRunEnd(bytes, 0) < bytes.size() && !findNotUtf8(bytes));
    return isUtf8 ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

std::optional<std::size_t> findNotUtf8(std::string_view bytes) {
    for (std::size_t at = asciiRunEnd(bytes, 0); at < bytes.size(); at = asciiRunEnd(bytes, at)) {
        const Utf8Character character = utf8CharacterAt(bytes, at);
        const bool isSurrogate = character.code >= 0xD800 && character.code < 0xE000;
        if (character.code >= strayByte || isSurrogate) {
            return at;
        }
        at += character.length;
    }
    return std::nullopt;
}

std::string decodedText(std::string bytes, TextEncoding encoding) {
    if (encoding == TextEncoding::Windows1252) {
        if (asciiRunEnd(bytes, 0) < bytes.size()) {
            bytes = utf8FromCodePage1252(bytes);
        }
        return bytes;
    }
    bytes.erase(0, bytesBeforeText(encoding));
    return bytes;
}

std::string encodedText(std::string text, TextEncoding encoding) {
    if (encoding == TextEncoding::Windows1252) {
        return codePage1252FromUtf8(text);
    }
    if (encoding == TextEncoding::Utf8WithMark) {
        text.insert(0, utf8Mark);
    }
    return text;
}

}  // namespace quorvane
