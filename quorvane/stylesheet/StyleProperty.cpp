#include "quorvane/stylesheet/StyleProperty.h"

#include <algorithm>
#include <iterator>

namespace quorvane {

namespace {

using Type = StyleValueType;

constexpr StyleChoice boldWords[] = {{"yes", "\\b"}, {"no", "\\b0"}};
constexpr StyleChoice italicWords[] = {{"yes", "\\i"}, {"no", "\\i0"}};
constexpr StyleChoice underlineWords[] = {
    {"yes", "\\ul"}, {"double", "\\uldb"}, {"dotted", "\\uld"}, {"no", "\\ulnone"}};
constexpr StyleChoice strikeWords[] = {{"yes", "\\strike"}, {"no", "\\strike0"}};
constexpr StyleChoice smallCapsWords[] = {{"yes", "\\scaps"}, {"no", "\\scaps0"}};
constexpr StyleChoice allCapsWords[] = {{"yes", "\\caps"}, {"no", "\\caps0"}};
constexpr StyleChoice superscriptWords[] = {{"yes", "\\super"}, {"no", "\\nosupersub"}};
constexpr StyleChoice subscriptWords[] = {{"yes", "\\sub"}, {"no", "\\nosupersub"}};
constexpr StyleChoice alignWords[] = {
    {"left", "\\ql"}, {"center", "\\qc"}, {"right", "\\qr"}, {"justify", "\\qj"}};
constexpr StyleChoice keepWithNextWords[] = {{"yes", "\\keepn"}, {"no", "\\keepn0"}};
constexpr StyleChoice keepTogetherWords[] = {{"yes", "\\keep"}, {"no", "\\keep0"}};

constexpr StyleProperty properties[] = {
    {.word = "font", .type = Type::Font, .rtf = "\\f"},
    {.word = "size", .type = Type::FontSize, .rtf = "\\fs"},
    {.word = "bold", .type = Type::Truth, .choices = boldWords},
    {.word = "italic", .type = Type::Truth, .choices = italicWords},
    {.word = "underline", .type = Type::Choice, .choices = underlineWords},
    {.word = "strike", .type = Type::Truth, .choices = strikeWords},
    {.word = "small-caps", .type = Type::Truth, .choices = smallCapsWords},
    {.word = "all-caps", .type = Type::Truth, .choices = allCapsWords},
    {.word = "superscript",
     .type = Type::Truth,
     .choices = superscriptWords,
     .group = "superscript"},
    {.word = "subscript", .type = Type::Truth, .choices = subscriptWords, .group = "superscript"},
    {.word = "color", .type = Type::Color, .rtf = "\\cf"},
    {.word = "background", .type = Type::Color},
    {.word = "letter-spacing",
     .type = Type::Length,
     .rtf = "\\expndtw",
     .shortest = -longestStyleLength},
    {.word = "language", .type = Type::Language, .rtf = "\\lang"},
    {.word = "align", .type = Type::Choice, .isForCharacters = false, .choices = alignWords},
    {.word = "space-before", .type = Type::Length, .isForCharacters = false, .rtf = "\\sb"},
    {.word = "space-after", .type = Type::Length, .isForCharacters = false, .rtf = "\\sa"},
    {.word = "indent-left", .type = Type::Length, .isForCharacters = false, .rtf = "\\li"},
    {.word = "indent-right", .type = Type::Length, .isForCharacters = false, .rtf = "\\ri"},
    {.word = "first-line",
     .type = Type::Length,
     .isForCharacters = false,
     .rtf = "\\fi",
     .shortest = -longestStyleLength},
    {.word = "line-height", .type = Type::LineHeight, .isForCharacters = false, .rtf = "\\sl"},
    {.word = "tab-stops", .type = Type::TabStops, .isForCharacters = false, .rtf = "\\tx"},
    {.word = "keep-with-next",
     .type = Type::Truth,
     .isForCharacters = false,
     .choices = keepWithNextWords},
    {.word = "keep-together",
     .type = Type::Truth,
     .isForCharacters = false,
     .choices = keepTogetherWords},
    {.word = "rtf", .type = Type::ControlWords},
};

constexpr StyleLanguage languages[] = {
    {"ar-SA", 1025}, {"bg-BG", 1026}, {"ca-ES", 1027}, {"cs-CZ", 1029},  {"da-DK", 1030},
    {"de-AT", 3079}, {"de-CH", 2055}, {"de-DE", 1031}, {"de-LU", 4103},  {"el-GR", 1032},
    {"en-AU", 3081}, {"en-CA", 4105}, {"en-GB", 2057}, {"en-IE", 6153},  {"en-IN", 16393},
    {"en-NZ", 5129}, {"en-US", 1033}, {"en-ZA", 7177}, {"es-AR", 11274}, {"es-ES", 3082},
    {"es-MX", 2058}, {"et-EE", 1061}, {"fi-FI", 1035}, {"fr-BE", 2060},  {"fr-CA", 3084},
    {"fr-CH", 4108}, {"fr-FR", 1036}, {"fr-LU", 5132}, {"he-IL", 1037},  {"hr-HR", 1050},
    {"hu-HU", 1038}, {"is-IS", 1039}, {"it-CH", 2064}, {"it-IT", 1040},  {"ja-JP", 1041},
    {"ko-KR", 1042}, {"lt-LT", 1063}, {"lv-LV", 1062}, {"nb-NO", 1044},  {"nl-BE", 2067},
    {"nl-NL", 1043}, {"nn-NO", 2068}, {"none", 1024},  {"pl-PL", 1045},  {"pt-BR", 1046},
    {"pt-PT", 2070}, {"ro-RO", 1048}, {"ru-RU", 1049}, {"sk-SK", 1051},  {"sl-SI", 1060},
    {"sq-AL", 1052}, {"sv-FI", 2077}, {"sv-SE", 1053}, {"th-TH", 1054},  {"tr-TR", 1055},
    {"uk-UA", 1058}, {"vi-VN", 1066}, {"zh-CN", 2052}, {"zh-TW", 1028},
};

}  // namespace

bool StyleProperty::isFor(StyleKind kind) const {
    switch (kind) {
        case StyleKind::Paragraph:
            return true;
        case StyleKind::Character:
            return isForCharacters;
        case StyleKind::Cell:
            break;
    }
    return word == "background";
}

std::span<const StyleProperty> styleProperties() {
    return properties;
}

const StyleProperty* findStyleProperty(std::string_view word) {
    const auto* const found =
        std::find_if(std::begin(properties), std::end(properties),
                     [&](const StyleProperty& property) { return property.word == word; });
    return found == std::end(properties) ? nullptr : found;
}

std::span<const StyleLanguage> styleLanguages() {
    return languages;
}

}  // namespace quorvane
