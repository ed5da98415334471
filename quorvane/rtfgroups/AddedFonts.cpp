#include "quorvane/rtfgroups/AddedFonts.h"

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/rtf/escape.h"
#include "quorvane/rtfgroups/CRtfGrpFontTable.h"

namespace quorvane {

namespace {

[[noreturn]] void refuse(const std::string& message) {
    raise(RtfError(static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall), message));
}

/// The name as the font table holds it. It stands in no group of its own there, which characters
/// beyond Latin-1 would need.
std::string nameInTable(std::string_view name) {
    if (name.empty()) {
        refuse("A font has a name.");
    }
    std::string rtf = rtfText(name);
    if (name.find_first_of(";\t\r\n") != std::string_view::npos ||
        rtf.find("\\u") != std::string::npos) {
        refuse(
            "The name of a font has only characters up to U+00FF, and no semicolon, tab or line "
            "break.");
    }
    return rtf;
}

}  // namespace

std::optional<std::int32_t> AddedFonts::number(std::string_view name) const {
    if (const auto known = CRtfGrpFontTable::fontNumber(name)) {
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

}  // namespace quorvane
