#include "quorvane/diagnostics/text/embeddedContent.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "quorvane/base/text/asciiCharacters.h"
#include "quorvane/base/text/textCase.h"

namespace quorvane {

namespace {

/// What a field of that name brings along; empty when it does no harm.
std::string_view contentOfFieldNamed(std::string_view name) {
    constexpr std::pair<std::string_view, std::string_view> fields[] = {
        {"MACROBUTTON", "a macro"},
        {"GOTOBUTTON", "a macro"},
        {"DDE", "a link to a program"},
        {"DDEAUTO", "a link to a program"},
        {"LINK", "a link to a file"},
        {"INCLUDE", "a link to a file"},
        {"INCLUDETEXT", "a link to a file"},
        {"INCLUDEPICTURE", "a link to a file"},
        {"IMPORT", "a link to a file"},
        {"RD", "a link to a file"},
        {"DATABASE", "a link to a file"},
        {"EMBED", "an object"},
        {"CONTROL", "a program"},
        {"HTMLACTIVEX", "a program"},
        {"PRINT", "commands for the printer"},
    };
    for (const auto& [field, what] : fields) {
        if (equalIgnoringCase(name, field)) {
            return what;
        }
    }
    return {};
}

/// The first word of a text, or what its first quotation marks hold.
std::string firstWord(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return std::string(text.starts_with('"') ? text.substr(1, text.find('"', 1) - 1)
                                             : text.substr(0, text.find(' ')));
}

}  // namespace

std::string_view contentOfWord(const RtfWord& word) {
    switch (word.brings) {
        case RtfContent::Object:
            return "an object";
        case RtfContent::Picture:
            return "a picture";
        case RtfContent::BinaryData:
            return "binary data";
        case RtfContent::FileLink:
            return "a link to a file";
        case RtfContent::Program:
            return "a program";
        case RtfContent::Macro:
            return "a macro";
        case RtfContent::None:
            break;
    }
    return {};
}

std::string_view contentOfField(std::string_view instruction) {
    instruction.remove_prefix(std::min(instruction.find_first_not_of(' '), instruction.size()));
    const auto* const end = std::find_if_not(instruction.begin(), instruction.end(), isAsciiLetter);
    const std::string_view name(instruction.data(),
                                static_cast<std::size_t>(end - instruction.begin()));
    if (!equalIgnoringCase(name, "HYPERLINK")) {
        return contentOfFieldNamed(name);
    }
    const std::string target = lowerCase(firstWord(instruction.substr(name.size())));
    constexpr std::string_view harmless[] = {"http://", "https://", "mailto:", "\\l"};
    const bool isHarmless = target.empty() || std::any_of(std::begin(harmless), std::end(harmless),
                                                          [&](std::string_view begin) {
                                                              return target.starts_with(begin);
                                                          });
    return isHarmless ? std::string_view() : "a link to a file";
}

}  // namespace quorvane
