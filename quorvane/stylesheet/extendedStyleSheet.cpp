#include "quorvane/stylesheet/extendedStyleSheet.h"

#include <optional>
#include <string>

#include "quorvane/base/text/placeholders.h"
#include "quorvane/rtf/escape.h"
#include "quorvane/stylesheet/ExtendedDefinition.h"
#include "quorvane/stylesheet/ExtendedSheetParts.h"
#include "quorvane/stylesheet/styleInheritance.h"

namespace quorvane {

namespace {

void refuse(const ExtendedViolationReport& report, ExtendedFault fault, std::string_view part,
            std::string_view argument = {}) {
    report({fault, part, withArguments(extendedFaultText(fault), {argument})});
}

void readPart(const ExtendedSheetPart& part, const ExtendedViolationReport& report,
              std::vector<ExtendedStyle>& styles) {
    using Kind = ExtendedSheetPart::Kind;
    const std::string_view brace = part.whole.substr(0, 1);
    switch (part.kind) {
        case Kind::Comment:
            return;
        case Kind::LoneBrace:
            return refuse(report, ExtendedFault::LoneBrace, brace, brace);
        case Kind::StrayText:
            return refuse(report, ExtendedFault::StrayText, part.whole);
        case Kind::UnclosedDefinition:
            refuse(report, ExtendedFault::LoneBrace, brace, brace);
            [[fallthrough]];
        case Kind::Definition:
            ExtendedDefinition(brace, part.body, report).read(styles);
    }
}

}  // namespace

std::vector<ExtendedStyle> readExtendedStyleSheet(std::string_view text,
                                                  const ExtendedViolationReport& report) {
    if (const std::optional<Unshowable> unshowable = findUnshowable(text)) {
        refuse(report, ExtendedFault::BadCharacter, text.substr(unshowable->position, 1),
               unshowable->message);
    }
    std::vector<ExtendedStyle> styles;
    ExtendedSheetParts parts(text);
    while (const std::optional<ExtendedSheetPart> part = parts.next()) {
        readPart(*part, report, styles);
    }
    inheritFormats(styles, text, report);
    return styles;
}

}  // namespace quorvane
