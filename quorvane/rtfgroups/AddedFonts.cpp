#include "quorvane/rtfgroups/AddedFonts.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/rtf/escape.h"
#include "quorvane/rtf/unicodeWords.h"
#include "quorvane/rtfgroups/CRtfGrpFontTable.h"

namespace quorvane {

namespace {

[[noreturn]] void refuse(const std::string& message) {
    raise(RunTimeError::InvalidProcedureCall, message);
}

/// The name as the font table holds it: each character is escaped by itself, and none is in a group
/// of its own. `\uc1` holds as far as the group of the font.
std::string nameInTable(std::string_view name) {
    if (name.empty()) {
        refuse("A font has a name.");
    }
    if (name.find_first_of(";\t\r\n") != std::string_view::npos) {
        refuse("The name of a font has no semicolon, tab or line break.");
    }
    rtfText(name);
    std::string rtf;
    std::string_view uc = "\\uc1";
    for (std::size_t at = 0; at < name.size();) {
        const Utf8Character character = utf8CharacterAt(name, at);
        if (character.code < 0x100) {
            rtf += rtfText(name.substr(at, character.length));
        } else {
            rtf += std::exchange(uc, {});
            appendUnicodeWords(character.code, rtf);
        }
        at += character.length;
    }
    return rtf;
}

}  // namespace

std::optional<std::int32_t> AddedFonts::number(std::string_view name) const {
    if (const auto known = CRtfGrpFontTable::fontNumber(name)) {
        return known;
    }
    if (const auto known = CRtfGrpFontTable::fontNumberOfName(name)) {
        return known;
    }
    const auto found = numbers_.find(lowerCase(name));
    return found == numbers_.end() ? std::nullopt : std::optional(found->second);
}

std::int32_t AddedFonts::add(std::string_view name) {
    const auto number = CRtfGrpFontTable::fontCount + static_cast<std::int32_t>(entries_.size());
    std::string entry =
        "{\\f" + std::to_string(number) + "\\fnil\\fcharset0 " + nameInTable(name) + ";}";
    if (number > largestNumber) {
        refuse("A document has no more than " + std::to_string(largestNumber + 1) + " fonts.");
    }
    const auto added = numbers_.emplace(lowerCase(name), number).first;
    try {
        entries_.push_back(std::move(entry));
    } catch (...) {
        numbers_.erase(added);
        throw;
    }
    return number;
}

void AddedFonts::use(TableUser user, std::int32_t number) noexcept {
    users_.needs(user,
                 static_cast<std::size_t>(std::max(number - CRtfGrpFontTable::fontCount + 1, 0)));
}

void AddedFonts::release(TableUser user) noexcept {
    const std::size_t needed = users_.release(user);
    entries_.resize(std::min(needed, entries_.size()));
    std::erase_if(numbers_, [needed](const auto& entry) {
        return static_cast<std::size_t>(entry.second - CRtfGrpFontTable::fontCount) >= needed;
    });
}

}  // namespace quorvane
