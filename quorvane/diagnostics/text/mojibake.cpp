#include "quorvane/diagnostics/text/mojibake.h"

#include <array>
#include <map>
#include <utility>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane {

namespace {

constexpr std::string_view ofOthers = " Other characters are affected too.";

}  // namespace

std::optional<MeantCharacter> meantCharacterAt(std::string_view text, std::size_t at) {
    std::string bytes;
    std::size_t end = at;
    std::array<std::size_t, 5> ends{};
    while (bytes.size() < 4 && end < text.size()) {
        const Utf8Character character = utf8CharacterAt(text, end);
        const std::string byte = codePage1252FromUtf8(text.substr(end, character.length));
        if (byte.size() != 1 || static_cast<unsigned char>(byte[0]) < 0x80) {
            break;
        }
        end += character.length;
        bytes += byte;
        ends[bytes.size()] = end;
    }
    const Utf8Character meant =
        bytes.empty() ? Utf8Character{strayByte} : utf8CharacterAt(bytes, 0);
    if (meant.code >= strayByte || meant.length < 2) {
        return std::nullopt;
    }
    return MeantCharacter{bytes.substr(0, meant.length), meant.code, ends[meant.length] - at};
}

void keepFirstMojibake(std::vector<Diagnostic>& diagnostics) {
    std::vector<Diagnostic> kept;
    std::map<DiagnosticId, std::size_t> firsts;
    for (Diagnostic& diagnostic : diagnostics) {
        if (!diagnostic.isMojibake) {
            kept.push_back(std::move(diagnostic));
            continue;
        }
        const auto [first, isNew] = firsts.emplace(diagnostic.id, kept.size());
        if (isNew) {
            kept.push_back(std::move(diagnostic));
        } else if (std::string& message = kept[first->second].message;
                   !message.ends_with(ofOthers)) {
            message += ofOthers;
        }
    }
    diagnostics = std::move(kept);
}

}  // namespace quorvane
